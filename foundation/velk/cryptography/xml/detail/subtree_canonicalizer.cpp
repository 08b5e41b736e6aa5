#include <velk/cryptography/xml/detail/subtree_canonicalizer.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/libxml_error_capture.hpp>

#include <libxml/c14n.h>
#include <libxml/xmlIO.h>

#include <algorithm>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

bool is_within(xmlNode* node, xmlNode* ancestor)
{
    for (; node != nullptr; node = node->parent) {
        if (node == ancestor) {
            return true;
        }
    }
    return false;
}

// Narrows the tree to apex, its subtree and its ancestors while the
// canonicaliser runs, so that it does not walk the rest of the document: the
// siblings of apex and of its ancestors are outside the node set and, not
// being ancestors, pass nothing on to apex. The links are restored on
// destruction.
class ancestor_window {
public:
    explicit ancestor_window(xmlNode* apex)
    {
        for (xmlNode* child = apex; child->parent != nullptr; child = child->parent) {
            xmlNode* parent = child->parent;
            saved_.push_back({parent, parent->children, parent->last, child, child->prev, child->next});
            parent->children = child;
            parent->last = child;
            child->prev = nullptr;
            child->next = nullptr;
        }
    }
    ~ancestor_window()
    {
        for (auto it = saved_.rbegin(); it != saved_.rend(); ++it) {
            it->parent->children = it->children;
            it->parent->last = it->last;
            it->child->prev = it->prev;
            it->child->next = it->next;
        }
    }
    ancestor_window(ancestor_window const&) = delete;
    ancestor_window& operator=(ancestor_window const&) = delete;

    bool is_ancestor(xmlNode* node) const
    {
        return std::any_of(saved_.begin(), saved_.end(), [node](links const& link) { return link.parent == node; });
    }

private:
    struct links {
        xmlNode* parent;
        xmlNode* children;
        xmlNode* last;
        xmlNode* child;
        xmlNode* prev;
        xmlNode* next;
    };
    std::vector<links> saved_;
};

// The node set of the canonicaliser, inside the window: everything but the
// ancestors of apex and the excluded subtree. libxml2 asks for attributes and
// namespace declarations with the element that carries (or inherits) them as
// `parent`.
struct selection {
    ancestor_window const* window;
    xmlNode* apex;
    xmlNode* excluded;  // null, or a node strictly under apex
    bool nothing;       // apex itself is excluded
};

int is_visible(void* data, xmlNode* node, xmlNode* parent)
{
    auto const* chosen = static_cast<selection const*>(data);
    xmlNode* element = node->type == XML_NAMESPACE_DECL || node->type == XML_ATTRIBUTE_NODE ? parent : node;
    if (chosen->nothing || chosen->window->is_ancestor(element)) {
        return 0;
    }
    if (chosen->excluded != nullptr) {
        for (xmlNode* current = element; current != chosen->apex; current = current->parent) {
            if (current == chosen->excluded) {
                return 0;
            }
        }
    }
    return 1;
}

int write_piece(void* context, char const* buffer, int length)
{
    auto const* output = static_cast<subtree_canonicalizer::sink const*>(context);
    (*output)(reinterpret_cast<unsigned char const*>(buffer), static_cast<std::size_t>(length));
    return length;
}

}  // namespace

bool subtree_canonicalizer::write(xmlDoc* document, xmlNode* apex, xmlNode* excluded, bool with_comments,
                                  sink const& output, core::result::stack& stack)
{
    libxml_error_capture errors;
    xmlOutputBuffer* buffer = xmlOutputBufferCreateIO(write_piece, nullptr, const_cast<sink*>(&output), nullptr);
    if (buffer == nullptr) {
        core::result::fresh<cryptography_result_category, 16>(stack, errors.get_message("xmlOutputBufferCreateIO"));
        return false;
    }
    bool const apex_excluded = excluded != nullptr && is_within(apex, excluded);
    bool const excluded_inside = excluded != nullptr && !apex_excluded && is_within(excluded, apex);
    ancestor_window const window(apex);
    selection chosen{&window, apex, excluded_inside ? excluded : nullptr, apex_excluded};
    int const written =
        xmlC14NExecute(document, is_visible, &chosen, XML_C14N_1_0, nullptr, with_comments ? 1 : 0, buffer);
    int const closed = xmlOutputBufferClose(buffer);
    if (written < 0 || closed < 0) {
        core::result::fresh<cryptography_result_category, 16>(stack, errors.get_message("xmlC14NExecute"));
        return false;
    }
    return true;
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

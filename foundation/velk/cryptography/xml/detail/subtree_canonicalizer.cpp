#include <velk/cryptography/xml/detail/subtree_canonicalizer.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/libxml_error_capture.hpp>

#include <libxml/c14n.h>
#include <libxml/xmlIO.h>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

struct selection {
    xmlNode* apex;
    xmlNode* excluded;
};

// The node set of the canonicaliser: what lies under apex and not under
// excluded. libxml2 asks for attributes and namespace declarations with the
// element that carries them (or inherits them) as `parent`.
int is_visible(void* data, xmlNode* node, xmlNode* parent)
{
    auto const* chosen = static_cast<selection const*>(data);
    bool const carried = node->type == XML_NAMESPACE_DECL || node->type == XML_ATTRIBUTE_NODE;
    bool inside = false;
    for (xmlNode* current = carried ? parent : node; current != nullptr; current = current->parent) {
        if (current == chosen->excluded) {
            return 0;
        }
        inside = inside || current == chosen->apex;
    }
    return inside ? 1 : 0;
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
    xmlOutputBuffer* buffer =
        xmlOutputBufferCreateIO(write_piece, nullptr, const_cast<sink*>(&output), nullptr);
    if (buffer == nullptr) {
        core::result::fresh<cryptography_result_category, 16>(stack, errors.get_message("xmlOutputBufferCreateIO"));
        return false;
    }
    selection chosen{apex, excluded};
    int const written = xmlC14NExecute(document, is_visible, &chosen, XML_C14N_1_0, nullptr, with_comments ? 1 : 0,
                                       buffer);
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

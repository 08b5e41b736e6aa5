#include <velk/cryptography/xml/detail/libxml_subtree.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/namespace_scope.hpp>
#include <velk/cryptography/xml/detail/node_arena.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/qualified_name.hpp>

#include <libxml/parser.h>

#include <cstring>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

// The blocks stay with the thread between documents: returning them to the
// system and asking again costs more than building the tree.
thread_local std::unique_ptr<node_arena> spare_arena;

}  // namespace

struct libxml_subtree::state {
    std::unique_ptr<node_arena> arena = spare_arena != nullptr ? std::move(spare_arena) : std::make_unique<node_arena>();
    xmlDoc* document = nullptr;

    state() = default;
    state(state const&) = delete;
    state& operator=(state const&) = delete;
    ~state()
    {
        if (document != nullptr) {
            // The nodes belong to the arena.
            document->children = nullptr;
            document->last = nullptr;
            xmlFreeDoc(document);
        }
        arena->reset();
        if (spare_arena == nullptr) {
            spare_arena = std::move(arena);
        }
    }
};

namespace {

xmlChar* chars(std::string const& text)
{
    return reinterpret_cast<xmlChar*>(const_cast<char*>(text.c_str()));
}

std::string_view prefix_of(std::string_view qualified_name)
{
    std::size_t const colon = qualified_name.find(':');
    return colon == std::string_view::npos ? std::string_view() : qualified_name.substr(0, colon);
}

// The local part of a name as a terminated string: the tail of the name.
xmlChar const* local_part_of(std::string const& qualified_name)
{
    std::size_t const colon = qualified_name.find(':');
    return chars(qualified_name) + (colon == std::string::npos ? 0 : colon + 1);
}

bool has_carriage_return(std::string const& text)
{
    return text.find('\r') != std::string::npos;
}

class builder {
public:
    builder(libxml_subtree::state& target, velk::xml::element const* excluded,
            std::span<libxml_subtree::replacement const> replacements)
        : target_(target), excluded_(excluded), replacements_(replacements)
    {
    }

    bool build_apex(std::span<velk::xml::element const* const> ancestors, velk::xml::element const& apex);
    std::string const& get_invalid_name() const { return invalid_name_; }

private:
    // A zeroed libxml2 structure. Copied from a zeroed one: the compiler
    // makes a few vector moves of that, where clearing would take a string
    // instruction that costs more than the rest of the node.
    template <class T>
    T* make()
    {
        static T const zero{};
        void* memory = target_.arena->allocate(sizeof(T), alignof(T));
        std::memcpy(memory, &zero, sizeof(T));
        return static_cast<T*>(memory);
    }
    xmlChar* keep(std::string_view text);
    // A namespace URI as the canonical form writes it. Canonical XML writes
    // a declaration as an attribute, escaped alike; libxml2's canonicaliser
    // writes the URI as it finds it, so it is given the escaped text. Of the
    // characters to escape only "&" can stand in a URI: one with "<", a quote
    // or a line end is no URI, and the canonicaliser, like save, refuses it
    // as it comes.
    xmlChar* keep_uri(std::string_view uri);
    // A parser turns every CR LF and lone CR of unescaped text into LF; the
    // saved text escapes CR in text and attribute values only.
    xmlChar* normalised_line_ends(std::string const& text);

    xmlNode* new_node(xmlElementType type);
    static void append_child(xmlNode* parent, xmlNode* child);
    xmlNs* new_namespace(xmlNode* node, std::string_view prefix, std::string_view uri);
    void make_declarations(xmlNode* node, std::size_t mark);
    xmlNs* resolve(std::string_view prefix, xmlNode* node) const;
    void add_attribute(xmlNode* node, xmlNs* ns, xmlChar const* name, std::string const& value);

    xmlNode* new_element(velk::xml::element const& value);
    void name_and_attributes(velk::xml::element const& value, xmlNode* node);
    bool add_children(velk::xml::element const& value, xmlNode* parent);
    xmlNode* build_element(velk::xml::element const& value);

    libxml_subtree::state& target_;
    velk::xml::element const* excluded_;
    std::span<libxml_subtree::replacement const> replacements_;
    namespace_scope scope_;
    std::string invalid_name_;
};

xmlChar* builder::keep(std::string_view text)
{
    auto* copy = static_cast<char*>(target_.arena->allocate(text.size() + 1, 1));
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return reinterpret_cast<xmlChar*>(copy);
}

xmlChar* builder::keep_uri(std::string_view uri)
{
    if (uri.find('&') == std::string_view::npos) {
        return keep(uri);
    }
    std::string escaped;
    for (char const c : uri) {
        escaped += c == '&' ? std::string_view("&amp;") : std::string_view(&c, 1);
    }
    return keep(escaped);
}

xmlChar* builder::normalised_line_ends(std::string const& text)
{
    if (!has_carriage_return(text)) {
        return chars(text);
    }
    auto* copy = static_cast<char*>(target_.arena->allocate(text.size() + 1, 1));
    std::size_t size = 0;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '\r') {
            copy[size++] = text[index];
        } else if (index + 1 >= text.size() || text[index + 1] != '\n') {
            copy[size++] = '\n';
        }
    }
    copy[size] = '\0';
    return reinterpret_cast<xmlChar*>(copy);
}

xmlNode* builder::new_node(xmlElementType type)
{
    xmlNode* node = make<xmlNode>();
    node->type = type;
    node->doc = target_.document;
    return node;
}

void builder::append_child(xmlNode* parent, xmlNode* child)
{
    child->parent = parent;
    if (parent->children == nullptr) {
        parent->children = child;
    } else {
        parent->last->next = child;
        child->prev = parent->last;
    }
    parent->last = child;
}

xmlNs* builder::new_namespace(xmlNode* node, std::string_view prefix, std::string_view uri)
{
    xmlNs* ns = make<xmlNs>();
    ns->type = XML_LOCAL_NAMESPACE;
    ns->href = keep_uri(uri);
    ns->prefix = prefix.empty() ? nullptr : keep(prefix);
    xmlNs** tail = &node->nsDef;
    while (*tail != nullptr) {
        tail = &(*tail)->next;
    }
    *tail = ns;
    return ns;
}

void builder::make_declarations(xmlNode* node, std::size_t mark)
{
    for (namespace_scope::entry& declaration : scope_.since(mark)) {
        declaration.ns = new_namespace(node, declaration.prefix, declaration.uri);
    }
}

xmlNs* builder::resolve(std::string_view prefix, xmlNode* node) const
{
    if (prefix == "xml") {
        // Held by the document and made by libxml2, which frees it too.
        return xmlSearchNs(target_.document, node, reinterpret_cast<xmlChar const*>("xml"));
    }
    namespace_scope::entry const* found = scope_.find(prefix);
    return found == nullptr || found->uri.empty() ? nullptr : found->ns;
}

void builder::add_attribute(xmlNode* node, xmlNs* ns, xmlChar const* name, std::string const& value)
{
    xmlAttr* property = make<xmlAttr>();
    property->type = XML_ATTRIBUTE_NODE;
    property->name = name;
    property->ns = ns;
    property->parent = node;
    property->doc = target_.document;
    xmlNode* contents = new_node(XML_TEXT_NODE);
    contents->content = chars(value);
    contents->parent = reinterpret_cast<xmlNode*>(property);
    property->children = contents;
    property->last = contents;
    xmlAttr** tail = &node->properties;
    xmlAttr* previous = nullptr;
    while (*tail != nullptr) {
        previous = *tail;
        tail = &(*tail)->next;
    }
    property->prev = previous;
    *tail = property;
}

xmlNode* builder::new_element(velk::xml::element const& value)
{
    // The tree's own rule: a name it can save is a name the canonical form
    // takes, and one it would refuse to save is refused here too.
    std::string const& name = value.get_qualified_name();
    if (!velk::xml::is_qualified_name(name)) {
        invalid_name_ = name;
        return nullptr;
    }
    xmlNode* node = new_node(XML_ELEMENT_NODE);
    node->name = chars(value.get_name());
    return node;
}

// Call with the element's declarations made.
void builder::name_and_attributes(velk::xml::element const& value, xmlNode* node)
{
    std::string_view const prefix = element_prefix(value);
    node->ns = resolve(prefix, node);
    if (node->ns == nullptr && !prefix.empty()) {
        // A prefix nothing declares: the name as written.
        node->name = chars(value.get_qualified_name());
    }
    for (velk::xml::attribute const& property : value.get_attributes()) {
        std::string const& name = property.get_name();
        std::string_view const attribute_prefix = prefix_of(name);
        xmlNs* ns = attribute_prefix.empty() ? nullptr : resolve(attribute_prefix, node);
        add_attribute(node, ns, ns == nullptr ? chars(name) : local_part_of(name), property.get_value());
    }
}

bool builder::add_children(velk::xml::element const& value, xmlNode* parent)
{
    for (libxml_subtree::replacement const& replaced : replacements_) {
        if (replaced.target == &value) {
            xmlNode* contents = new_node(XML_TEXT_NODE);
            contents->content = chars(*replaced.contents);
            append_child(parent, contents);
            return true;
        }
    }
    for (velk::xml::node const& child : value.get_node_range()) {
        xmlNode* added = nullptr;
        if (velk::xml::element const* nested = child.as_element()) {
            if (nested == excluded_) {
                continue;
            }
            added = build_element(*nested);
            if (added == nullptr) {
                return false;
            }
        } else if (velk::xml::text const* contents = child.as_text()) {
            added = new_node(XML_TEXT_NODE);
            added->content = chars(contents->get_contents());
        } else if (velk::xml::cdata_section const* section = child.as_cdata_section()) {
            added = new_node(XML_CDATA_SECTION_NODE);
            added->content = normalised_line_ends(section->get_contents());
        } else if (velk::xml::comment const* remark = child.as_comment()) {
            added = new_node(XML_COMMENT_NODE);
            added->content = normalised_line_ends(remark->get_contents());
        } else if (velk::xml::processing_instruction const* instruction = child.as_processing_instruction()) {
            added = new_node(XML_PI_NODE);
            added->name = chars(instruction->get_target());
            added->content = normalised_line_ends(instruction->get_data());
        }
        if (added != nullptr) {
            append_child(parent, added);
        }
    }
    return true;
}

xmlNode* builder::build_element(velk::xml::element const& value)
{
    xmlNode* node = new_element(value);
    if (node == nullptr) {
        return nullptr;
    }
    std::size_t const mark = scope_.size();
    scope_.enter(value);
    make_declarations(node, mark);
    name_and_attributes(value, node);
    bool const complete = add_children(value, node);
    scope_.truncate(mark);
    return complete ? node : nullptr;
}

bool builder::build_apex(std::span<velk::xml::element const* const> ancestors, velk::xml::element const& apex)
{
    xmlNode* node = new_element(apex);
    if (node == nullptr) {
        return false;
    }
    node->parent = reinterpret_cast<xmlNode*>(target_.document);
    target_.document->children = node;
    target_.document->last = node;
    // What the ancestors and apex itself declare, made on apex.
    namespace_scope context;
    for (velk::xml::element const* ancestor : ancestors) {
        context.enter(*ancestor);
    }
    context.enter(apex);
    for (namespace_scope::entry const& declaration : context.in_scope()) {
        scope_.push(declaration);
    }
    make_declarations(node, 0);
    name_and_attributes(apex, node);
    // The xml: attributes of the ancestors, the nearest first, unless apex
    // has its own.
    for (std::size_t index = ancestors.size(); index-- > 0;) {
        for (velk::xml::attribute const& property : ancestors[index]->get_attributes()) {
            if (prefix_of(property.get_name()) != "xml") {
                continue;
            }
            xmlNs* ns = resolve("xml", node);
            xmlChar const* local = local_part_of(property.get_name());
            if (xmlHasNsProp(node, local, ns->href) == nullptr) {
                add_attribute(node, ns, local, property.get_value());
            }
        }
    }
    return add_children(apex, node);
}

}  // namespace

libxml_subtree::libxml_subtree() = default;
libxml_subtree::libxml_subtree(libxml_subtree&& other) noexcept = default;
libxml_subtree& libxml_subtree::operator=(libxml_subtree&& other) noexcept = default;
libxml_subtree::~libxml_subtree() = default;

xmlDoc* libxml_subtree::get() const
{
    return state_ == nullptr ? nullptr : state_->document;
}

libxml_subtree libxml_subtree::build(std::span<velk::xml::element const* const> ancestors,
                                     velk::xml::element const& apex, velk::xml::element const* excluded,
                                     std::span<replacement const> replacements, core::result::stack& stack)
{
    static std::once_flag initialised;
    std::call_once(initialised, [] { xmlInitParser(); });

    libxml_subtree result;
    result.state_ = std::make_unique<state>();
    result.state_->document = xmlNewDoc(reinterpret_cast<xmlChar const*>("1.0"));
    if (result.state_->document == nullptr) {
        result.state_.reset();
        core::result::fresh<cryptography_result_category, 16>(stack, "xmlNewDoc");
        return result;
    }
    builder nodes(*result.state_, excluded, replacements);
    if (!nodes.build_apex(ancestors, apex)) {
        result.state_.reset();
        core::result::fresh<cryptography_result_category, 16>(
            stack, "nome de elemento inválido: \"" + nodes.get_invalid_name() + "\"");
    }
    return result;
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

#include <velk/xml/detail/tree_converter.hpp>

#include <velk/xml/detail/element_access.hpp>
#include <velk/xml/detail/namespace_uris.hpp>

#include <libxml/tree.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

char const* chars(xmlChar const* value)
{
    return value == nullptr ? "" : reinterpret_cast<char const*>(value);
}

std::string qualified_name(xmlNs const* ns, xmlChar const* local_name)
{
    if (ns == nullptr || ns->prefix == nullptr) {
        return chars(local_name);
    }
    std::string name(chars(ns->prefix));
    name += ':';
    name += chars(local_name);
    return name;
}

// An attribute's value is a list of text nodes (entity references cannot
// occur: no entity is ever declared); usually exactly one.
std::string attribute_value(xmlAttr const& value)
{
    xmlNode const* first = value.children;
    if (first != nullptr && first->next == nullptr) {
        return chars(first->content);
    }
    std::string joined;
    for (xmlNode const* part = first; part != nullptr; part = part->next) {
        joined += chars(part->content);
    }
    return joined;
}

// The namespaces of the elements read, one shared text per declaration.
class shared_uris {
public:
    std::shared_ptr<std::string const> of(xmlNs const* ns)
    {
        for (auto const& [declaration, uri] : known_) {
            if (declaration == ns) {
                return uri;
            }
        }
        auto uri = namespace_uris::shared(namespace_uris::as_declared(ns->href));
        known_.emplace_back(ns, uri);
        return uri;
    }

private:
    std::vector<std::pair<xmlNs const*, std::shared_ptr<std::string const>>> known_;
};

element convert_element(xmlNode& source, shared_uris& uris)
{
    auto contents = std::make_unique<element_access::contents_type>();
    contents->set_name(qualified_name(source.ns, source.name));
    if (source.ns != nullptr) {
        contents->namespace_uri = uris.of(source.ns);
    }
    if (source.nsDef != nullptr || source.properties != nullptr) {
        auto& more = contents->more_or_new();
        for (xmlNs const* declaration = source.nsDef; declaration != nullptr; declaration = declaration->next) {
            more.namespaces.emplace_back(chars(declaration->prefix), namespace_uris::as_declared(declaration->href));
        }
        for (xmlAttr const* property = source.properties; property != nullptr; property = property->next) {
            attribute& added =
                more.attributes.emplace_back(qualified_name(property->ns, property->name), attribute_value(*property));
            if (property->ns != nullptr) {
                added.set_namespace_uri(namespace_uris::as_declared(property->ns->href));
            }
        }
    }
    auto& children = contents->children;
    // Each child goes back to libxml2 as soon as it is converted: the parsed
    // tree shrinks as this one grows, and the two are never both whole.
    for (xmlNode* child = source.children; child != nullptr;) {
        xmlNode* const next = child->next;
        switch (child->type) {
        case XML_ELEMENT_NODE:
            children.emplace_back(convert_element(*child, uris));
            break;
        case XML_TEXT_NODE:
            children.emplace_back(text(chars(child->content)));
            break;
        case XML_CDATA_SECTION_NODE:
            children.emplace_back(cdata_section(chars(child->content)));
            break;
        case XML_COMMENT_NODE:
            children.emplace_back(comment(chars(child->content)));
            break;
        case XML_PI_NODE:
            children.emplace_back(processing_instruction(chars(child->name), chars(child->content)));
            break;
        default:
            // Entity references and DTD nodes need a DTD, which the parser refuses.
            break;
        }
        xmlUnlinkNode(child);
        xmlFreeNode(child);
        child = next;
    }
    return element_access::make(std::move(contents));
}

}  // namespace

element tree_converter::convert(_xmlNode& root)
{
    shared_uris uris;
    return convert_element(root, uris);
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

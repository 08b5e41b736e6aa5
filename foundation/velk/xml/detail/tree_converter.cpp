#include <velk/xml/detail/tree_converter.hpp>

#include <velk/xml/detail/element_access.hpp>
#include <velk/xml/detail/namespace_uris.hpp>

#include <libxml/tree.h>

#include <memory>
#include <string>

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

element convert_element(xmlNode const& source)
{
    auto contents = std::make_unique<element_access::contents_type>();
    contents->local_name = chars(source.name);
    contents->qualified_name = qualified_name(source.ns, source.name);
    if (source.ns != nullptr) {
        contents->namespace_uri = namespace_uris::as_declared(source.ns->href);
    }
    for (xmlNs const* declaration = source.nsDef; declaration != nullptr; declaration = declaration->next) {
        contents->namespaces.emplace_back(chars(declaration->prefix), namespace_uris::as_declared(declaration->href));
    }
    for (xmlAttr const* property = source.properties; property != nullptr; property = property->next) {
        attribute& added =
            contents->attributes.emplace_back(qualified_name(property->ns, property->name), attribute_value(*property));
        if (property->ns != nullptr) {
            added.set_namespace_uri(namespace_uris::as_declared(property->ns->href));
        }
    }
    auto& children = contents->children;
    for (xmlNode const* child = source.children; child != nullptr; child = child->next) {
        switch (child->type) {
        case XML_ELEMENT_NODE:
            children.emplace_back(convert_element(*child));
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
    }
    return element_access::make(std::move(contents));
}

}  // namespace

element tree_converter::convert(_xmlNode const& root)
{
    return convert_element(root);
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

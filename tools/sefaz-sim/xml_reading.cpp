#include "xml_reading.hpp"

namespace velk::tools::sefaz_sim::xml_reading {

namespace {

std::string owned_text(xmlChar* owned)
{
    std::string value = owned == nullptr ? std::string() : reinterpret_cast<char const*>(owned);
    xmlFree(owned);
    return value;
}

}  // namespace

bool is_named(xmlNode const* node, std::string_view name)
{
    return node != nullptr && node->type == XML_ELEMENT_NODE && reinterpret_cast<char const*>(node->name) == name;
}

xmlNode* child(xmlNode const* parent, std::string_view name)
{
    if (parent == nullptr) {
        return nullptr;
    }
    for (xmlNode* node = parent->children; node != nullptr; node = node->next) {
        if (is_named(node, name)) {
            return node;
        }
    }
    return nullptr;
}

std::vector<xmlNode*> children(xmlNode const* parent, std::string_view name)
{
    std::vector<xmlNode*> found;
    for (xmlNode* node = parent == nullptr ? nullptr : parent->children; node != nullptr; node = node->next) {
        if (is_named(node, name)) {
            found.push_back(node);
        }
    }
    return found;
}

xmlNode* descendant(xmlNode const* from, std::initializer_list<std::string_view> path)
{
    xmlNode* at = const_cast<xmlNode*>(from);
    for (std::string_view const step : path) {
        at = child(at, step);
    }
    return at;
}

std::string text(xmlNode const* element)
{
    return element == nullptr ? std::string() : owned_text(xmlNodeGetContent(element));
}

std::string text_at(xmlNode const* from, std::initializer_list<std::string_view> path)
{
    return text(descendant(from, path));
}

std::string attribute(xmlNode const* element, char const* name)
{
    return element == nullptr ? std::string()
                              : owned_text(xmlGetNoNsProp(element, reinterpret_cast<xmlChar const*>(name)));
}

std::string namespace_of(xmlNode const* element)
{
    return element == nullptr || element->ns == nullptr ? std::string()
                                                        : reinterpret_cast<char const*>(element->ns->href);
}

}  // namespace velk::tools::sefaz_sim::xml_reading

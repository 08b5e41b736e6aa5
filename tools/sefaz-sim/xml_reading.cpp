#include "xml_reading.hpp"

#include <libxml/xmlIO.h>
#include <libxml/xmlsave.h>

#include <memory>

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

std::string element_text(xmlNode const* element)
{
    if (element == nullptr) {
        return std::string();
    }
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> const own(xmlNewDoc(reinterpret_cast<xmlChar const*>("1.0")),
                                                         &xmlFreeDoc);
    // The copy declares on itself the namespaces it uses from outside.
    xmlNode* const copy = own ? xmlDocCopyNode(const_cast<xmlNode*>(element), own.get(), 1) : nullptr;
    xmlOutputBuffer* const buffer = copy == nullptr ? nullptr : xmlAllocOutputBuffer(nullptr);
    if (buffer == nullptr) {
        return std::string();
    }
    xmlDocSetRootElement(own.get(), copy);
    // Naming the encoding keeps accented letters as they are, not as references.
    xmlNodeDumpOutput(buffer, own.get(), copy, 0, 0, "UTF-8");
    std::string text(reinterpret_cast<char const*>(xmlOutputBufferGetContent(buffer)), xmlOutputBufferGetSize(buffer));
    xmlOutputBufferClose(buffer);
    return text;
}

}  // namespace velk::tools::sefaz_sim::xml_reading

#pragma once

#include <libxml/tree.h>

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace velk::tools::sefaz_sim::xml_reading {

// Reading a parsed message by the local names of its elements: the services
// ask for tags as the layouts name them and do not mind prefixes.

bool is_named(xmlNode const* node, std::string_view name);

// The first child element of that name; null when there is none.
xmlNode* child(xmlNode const* parent, std::string_view name);
// Every child element of that name, in document order.
std::vector<xmlNode*> children(xmlNode const* parent, std::string_view name);
// The element at the end of a path of child names; null when a step fails.
xmlNode* descendant(xmlNode const* from, std::initializer_list<std::string_view> path);

// The text inside an element; empty for a null one.
std::string text(xmlNode const* element);
// The text of the element at the end of the path; empty when absent.
std::string text_at(xmlNode const* from, std::initializer_list<std::string_view> path);
// An attribute without namespace; empty when absent.
std::string attribute(xmlNode const* element, char const* name);
// The URI of the element's namespace; empty when it has none.
std::string namespace_of(xmlNode const* element);

// The element and its contents as UTF-8 text, as the root of a document of
// its own: the namespaces it takes from its ancestors are declared on it, so
// that the text can go into another message unchanged in meaning.
std::string element_text(xmlNode const* element);

}  // namespace velk::tools::sefaz_sim::xml_reading

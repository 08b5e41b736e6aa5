#include <velk/xml/detail/namespace_uris.hpp>

#include <libxml/tree.h>
#include <libxml/uri.h>
#include <libxml/xmlmemory.h>

#include <array>
#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

std::shared_ptr<std::string const> namespace_uris::shared(std::string uri)
{
    if (uri.empty()) {
        return nullptr;
    }
    // Never destroyed, so that an element that outlives the static objects
    // still points at its namespace.
    static auto const* const well_known = new std::array<std::string const, 3>{
        "http://www.portalfiscal.inf.br/nfe",
        "http://www.w3.org/2000/09/xmldsig#",
        "http://www.w3.org/2003/05/soap-envelope",
    };
    for (std::string const& known : *well_known) {
        if (known == uri) {
            // Aliasing an empty owner: copies and destruction touch no count.
            return std::shared_ptr<std::string const>(std::shared_ptr<void>(), &known);
        }
    }
    return std::make_shared<std::string const>(std::move(uri));
}

std::string namespace_uris::as_declared(unsigned char const* href)
{
    std::string uri(href == nullptr ? "" : reinterpret_cast<char const*>(href));
    std::size_t kept = uri.find('&');
    if (kept == std::string::npos) {
        return uri;
    }
    constexpr std::string_view escaped = "&#38;";
    for (std::size_t index = kept; index < uri.size(); ++kept) {
        if (uri.compare(index, escaped.size(), escaped) == 0) {
            uri[kept] = '&';
            index += escaped.size();
        } else {
            uri[kept] = uri[index++];
        }
    }
    uri.resize(kept);
    return uri;
}

std::string namespace_uris::problem_of(std::string const& uri)
{
    if (uri.empty()) {
        return {};
    }
    xmlURIPtr parsed = xmlParseURI(uri.c_str());
    if (parsed == nullptr) {
        return "xmlns: '" + uri + "' is not a valid URI";
    }
    bool const absolute = parsed->scheme != nullptr && *parsed->scheme != '\0';
    xmlFreeURI(parsed);
    return absolute ? std::string() : "xmlns: URI " + uri + " is not absolute";
}

namespace {

// Calls visit(element, declaration) for every declaration of the document, in
// document order and without recursion, until it returns false.
template <class Visit>
bool each_declaration(xmlDoc const& document, Visit visit)
{
    xmlNode* node = document.children;
    while (node != nullptr) {
        if (node->type == XML_ELEMENT_NODE) {
            for (xmlNs* declaration = node->nsDef; declaration != nullptr; declaration = declaration->next) {
                if (!visit(*node, *declaration)) {
                    return false;
                }
            }
            if (node->children != nullptr) {
                node = node->children;
                continue;
            }
        }
        while (node != nullptr && node->next == nullptr) {
            node = node->parent;
            if (node != nullptr && node->type == XML_DOCUMENT_NODE) {
                node = nullptr;
            }
        }
        if (node != nullptr) {
            node = node->next;
        }
    }
    return true;
}

}  // namespace

bool namespace_uris::check_declared(_xmlDoc const& document, std::string& problem, int& line)
{
    return each_declaration(document, [&](xmlNode const& owner, xmlNs const& declaration) {
        problem = problem_of(as_declared(declaration.href));
        line = problem.empty() ? 0 : static_cast<int>(xmlGetLineNo(&owner));
        return problem.empty();
    });
}

void namespace_uris::escape_for_canonical_form(_xmlDoc& document)
{
    // A URI read by the parser holds no "<", quote or line end (it would be
    // no URI): only its "&", kept as "&#38;", needs writing as "&amp;".
    each_declaration(document, [](xmlNode const&, xmlNs& declaration) {
        std::string const uri = as_declared(declaration.href);
        if (uri.find('&') != std::string::npos) {
            std::string escaped;
            for (char const c : uri) {
                escaped += c == '&' ? std::string_view("&amp;") : std::string_view(&c, 1);
            }
            xmlFree(const_cast<xmlChar*>(declaration.href));
            declaration.href = xmlStrdup(reinterpret_cast<xmlChar const*>(escaped.c_str()));
        }
        return true;
    });
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

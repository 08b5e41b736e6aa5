#pragma once

#include <memory>
#include <string>

struct _xmlDoc;

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Namespace URIs as libxml2's parser hands them over. Without entity
// substitution (which the parser never does) libxml2 passes an "&" of a
// declaration on as the reference "&#38;", meant to be read again later, and
// keeps it so in the namespace; it also judges the URI with that reference in
// it, where the "#" reads as a fragment, and so refuses a URI with two "&" or
// an "&" after a "#" that is a good URI as declared.
class namespace_uris {
public:
    // The URI as an element keeps it, null for an empty one. The namespaces of
    // the documents this family writes and reads are kept once for the life of
    // the process and handed out by a pointer that owns nothing: an element in
    // one of them, the bulk of every tree, is copied and dropped without an
    // atomic count shared between threads. Any other URI gets a text of its
    // own, shared by count.
    static std::shared_ptr<std::string const> shared(std::string uri);

    // The URI as declared: each "&#38;" is one "&" (a raw "&" cannot occur).
    static std::string as_declared(unsigned char const* href);

    // Empty when the URI can be declared: empty (the undeclaration of the
    // default namespace) or a URI with a scheme, which is what the parser
    // reads and a canonical form takes. Else what is wrong, in libxml2's words.
    static std::string problem_of(std::string const& uri);

    // Whether every URI declared in the document, as declared, is a URI and
    // an absolute one (a canonical form takes no other). Else false, with
    // libxml2's words for what is wrong and the line of the declaration.
    static bool check_declared(_xmlDoc const& document, std::string& problem, int& line);

    // Gives each declaration of the parsed document the URI escaped as
    // Canonical XML writes it (a declaration is written as an attribute):
    // libxml2's canonicaliser writes it as it finds it.
    static void escape_for_canonical_form(_xmlDoc& document);
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

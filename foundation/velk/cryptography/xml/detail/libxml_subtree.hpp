#pragma once

// Internal: one element of a velk::xml tree and its descendants as a libxml2
// document of their own, for libxml2's canonicaliser.
//
// The nodes are not made by libxml2's tree functions: they are plain libxml2
// structures placed in an arena of this object and pointing at the strings of
// the velk tree, which is neither copied nor escaped. Such a document is only
// good for reading (the canonicaliser reads, and makes nothing in it but the
// xml namespace of the document, which libxml2 owns), and only while the velk
// tree it was built from stands unchanged. libxml2 never frees the nodes: the
// arena does, after the document has been detached from them.

#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <libxml/tree.h>

#include <memory>
#include <span>
#include <string>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class libxml_subtree {
public:
    // An element whose children are replaced by one text in the build.
    struct replacement {
        velk::xml::element const* target;
        std::string const* contents;
    };

    libxml_subtree();
    libxml_subtree(libxml_subtree&& other) noexcept;
    libxml_subtree& operator=(libxml_subtree&& other) noexcept;
    ~libxml_subtree();

    // `apex` becomes the root of the document. `ancestors` are its ancestors
    // in the caller's tree, outermost first: they are not built, but what they
    // pass on to apex under inclusive canonicalisation is, namely the
    // namespace declarations in scope and the xml: attributes, so the
    // canonical form of the document is that of apex in its context. `excluded`
    // (null for none) is left out with everything under it.
    //
    // The tree is the one libxml2 would parse from the text document::save
    // writes: namespaces are declared where that text declares them, and line
    // ends of CDATA sections, comments and processing instructions are
    // normalised as a parser would. Fails with code 16 on an element name that
    // is no qualified name.
    static libxml_subtree build(std::span<velk::xml::element const* const> ancestors,
                                velk::xml::element const& apex, velk::xml::element const* excluded,
                                std::span<replacement const> replacements, core::result::stack& stack);

    // Null after a failure.
    xmlDoc* get() const;

    // The document and the arena of its nodes.
    struct state;

private:
    std::unique_ptr<state> state_;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <cstddef>
#include <memory>

namespace velk::xml {
inline namespace v3 {

// An XML document: at most one root element.
class document {
public:
    document();
    document(document const& other);
    document(document&& other) noexcept;
    document& operator=(document const& other);
    document& operator=(document&& other) noexcept;
    ~document();

    // The largest input load reads, in bytes: libxml2 goes no further than
    // this into a document, and a larger one is refused before any of it is
    // parsed (code 1, "Document is too large").
    static constexpr std::size_t largest_input = 10'000'000;

    // Parses bytes into the tree, replacing what the document held. Whitespace
    // text is kept as text nodes, CDATA as CDATA sections, comments and
    // processing instructions inside the root as they are (those outside it
    // are dropped). Hostile input is refused on the stack (xml_result_category,
    // a fresh report): no DTD is accepted (code 2), so no entity is declared,
    // expanded or fetched, and nothing touches the network; malformed input,
    // libxml2's depth limit and largest_input included, is code 1. On failure the document keeps
    // what it held. Safe to call from several threads on distinct documents.
    bool load(core::byte_array const& bytes, core::result::stack& stack);

    // The serialised document: the declaration <?xml version="1.0"
    // encoding="UTF-8"?>, a line feed, then the root element with no further
    // formatting and no line feed at the end. Namespace declarations come
    // first on each element, then attributes in their order. Fails on a
    // document without root (code 7) or a tree with an element of empty or
    // invalid name (code 3); the result is then empty.
    static core::byte_array save(document const& value, core::result::stack& stack);

    // Makes the element the root. Fails (code 6) when the document has one
    // already.
    bool append_node(element const& root, core::result::stack& stack);
    bool append_node(element&& root, core::result::stack& stack);

    // Null when there is no root.
    element* get_root_element();
    element const* get_root_element() const;

private:
    struct impl;
    std::unique_ptr<impl> impl_;
};

}  // namespace v3
}  // namespace velk::xml

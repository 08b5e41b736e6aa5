#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>

#include <memory>

struct _xmlDoc;

namespace velk::xml {
inline namespace v3 {
namespace detail {

struct libxml2_document_deleter {
    void operator()(_xmlDoc* document) const;
};
using libxml2_document = std::unique_ptr<_xmlDoc, libxml2_document_deleter>;

// The one way this library has libxml2 read bytes. Documents come from the
// network and from callers' files, so the parse trusts nothing:
// - a document with a DOCTYPE is refused (code 2) as soon as the declaration
//   is seen, before its internal subset is read: no entity is ever declared,
//   so none is expanded ("billion laughs"), fetched (file:, http:) or used as a
//   parameter entity;
// - every namespace URI declared must be absolute, prefixed or not, since
//   no canonical form takes another;
// - nothing is loaded from the network, and libxml2's limits on depth, name and
//   text sizes stay in force;
// - blanks, CDATA sections and comments come through as written.
// Malformed input is code 1 with libxml2's message and line.
class safe_parser {
public:
    // Null on failure, with a fresh report on the stack.
    static libxml2_document parse(core::byte_array const& bytes, core::result::stack& stack);
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

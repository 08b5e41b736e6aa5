#pragma once

// Internal: the digest of one element of a velk::xml tree in its Canonical XML
// 1.0 form in context, shared by the signer and canonical_digest.

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/cryptography/xml/detail/canonical_serializer.hpp>
#include <velk/xml/element.hpp>

#include <span>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

// `ancestors` are those of `apex` from the root of its tree, outermost first;
// `excluded` (null for none) is left out with everything under it. Empty bytes
// and the stack failed on failure. `counted_id`, when not empty, is counted
// as subtree::counted_id says, the count left in the serializer.
core::byte_array digest_subtree(std::span<velk::xml::element const* const> ancestors, velk::xml::element const& apex,
                                velk::xml::element const* excluded, bool with_comments,
                                cryptographic_hash::algorithm algorithm, canonical_serializer& serializer,
                                core::result::stack& stack, std::string_view counted_id = {});

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

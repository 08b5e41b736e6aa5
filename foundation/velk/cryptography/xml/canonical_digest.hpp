#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/xml/element.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// The digest that an enveloped signature under `root` holds for a reference
// to `target`: the hash of target's Canonical XML 1.0 form in its context (the
// namespace declarations in scope at its place are part of it), as if the tree
// under root were saved and parsed. `target` must be an element of the tree
// under root (root itself included): else code 13 with "". Nothing is
// signed and the tree is not changed; a document's digest is known before it
// is signed (the NFC-e QR code needs it) and equals what the signer writes.
VELK_EXPORT core::byte_array canonical_digest(velk::xml::element const& root, velk::xml::element const& target,
                                              cryptographic_hash::algorithm algorithm, core::result::stack& stack);

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

#pragma once

// Internal: the names of the W3C XML Signature recommendation that the
// templates write and the signer reads back, as one table per kind of method.

#include <velk/core/optional.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>

#include <string>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

inline constexpr char signature_namespace[] = "http://www.w3.org/2000/09/xmldsig#";
inline constexpr char enveloped_signature_uri[] = "http://www.w3.org/2000/09/xmldsig#enveloped-signature";

// DigestMethod and RSA SignatureMethod identifiers of a hash algorithm; null
// for a value outside the enumeration.
char const* digest_uri(cryptographic_hash::algorithm algorithm);
char const* rsa_signature_uri(cryptographic_hash::algorithm algorithm);
core::optional<cryptographic_hash::algorithm> digest_from_uri(std::string const& uri);
core::optional<cryptographic_hash::algorithm> rsa_signature_from_uri(std::string const& uri);

// Canonical XML 1.0, without or with comments; from_uri gives with_comments.
char const* canonicalization_uri(bool with_comments);
core::optional<bool> canonicalization_from_uri(std::string const& uri);

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

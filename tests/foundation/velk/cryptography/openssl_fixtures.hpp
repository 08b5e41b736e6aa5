#pragma once

// Keys and bundles for the cryptography tests that the throw-away CA does not
// make: made here with OpenSSL directly.

#include <pki/issued_certificate.hpp>
#include <velk/core/byte_array.hpp>

#include <openssl/evp.h>

#include <cstdint>
#include <string>

namespace velk::test {

// A self-signed certificate with an EC P-256 key, as a PKCS#12 bundle.
core::byte_array make_ec_pkcs12(std::string const& password);

// The certificate as older tools export it: certificates encrypted with
// RC2-40, the key with 3DES.
core::byte_array make_legacy_pkcs12(tools::pki::issued_certificate const& certificate, std::string const& password);

// The bundle with its MAC's iteration count changed, the MAC itself left as
// it was (so it no longer matches unless the count is the same).
core::byte_array with_mac_iterations(core::byte_array const& bundle, std::uint64_t iterations);

// An Ed25519 private key as PEM, a key type the library does not accept.
std::string make_ed25519_pem();

// The PEM key encrypted with AES-256 under the passphrase.
std::string encrypt_pem_key(std::string const& private_key_pem, std::string const& passphrase);

// The public key of a PEM certificate (caller frees with EVP_PKEY_free).
EVP_PKEY* certificate_public_key(std::string const& certificate_pem);

}  // namespace velk::test

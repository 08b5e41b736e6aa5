#pragma once

namespace velk::cryptography {
inline namespace v3 {

// How certificates and keys are written as bytes.
enum class encoding : int {
    der = 0,  // binary ASN.1, as the TLS setup hands it to OpenSSL
    pem = 1,  // Base64 text between "-----BEGIN ...-----" lines
};

}  // namespace v3
}  // namespace velk::cryptography

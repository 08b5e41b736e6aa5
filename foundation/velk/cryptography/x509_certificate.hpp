#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/encoding.hpp>

#include <memory>
#include <string>

namespace velk::cryptography {
inline namespace v3 {

class evp_private_key;

namespace xml {
class signer;
}

// An X.509 certificate, immutable. Copies share it.
class VELK_EXPORT x509_certificate {
public:
    // An empty certificate: getters give empty values, to_byte_array fails.
    x509_certificate();

    // Reads one certificate. DER must hold exactly one certificate and nothing
    // after it; PEM reads the first certificate of the text. Fails with code 4
    // (code 8 for an encoding outside the enumeration).
    static x509_certificate from_byte_array(core::byte_array const& bytes, encoding format,
                                            core::result::stack& stack);

    bool empty() const;

    // Fails with code 4 on an empty certificate, code 8 on an unknown encoding.
    core::byte_array to_byte_array(encoding format, core::result::stack& stack) const;

    // The CN of the subject as UTF-8; for an e-CNPJ "RAZAO SOCIAL:CNPJ".
    // Empty when absent.
    std::string get_subject_common_name() const;
    std::string get_issuer_common_name() const;
    // Validity period, in UTC (offset 0).
    core::datetime get_not_before() const;
    core::datetime get_not_after() const;

    // True when the certificate's public key is that of the private key.
    bool matches(evp_private_key const& key) const;

private:
    friend class pkcs12;
    friend class evp_private_key;
    friend class xml::signer;
    struct impl;

    // The Base64 text of the DER form, as every signature carries it: encoded
    // once and kept with the certificate. Empty for an empty certificate or one
    // whose DER form could not be made.
    std::string const& get_der_base64() const;

    std::shared_ptr<impl const> impl_;
};

}  // namespace v3
}  // namespace velk::cryptography

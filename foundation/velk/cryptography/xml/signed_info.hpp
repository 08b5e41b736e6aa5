#pragma once

#include <velk/core/export.hpp>
#include <velk/cryptography/xml/method/canonicalization.hpp>
#include <velk/cryptography/xml/method/signature.hpp>
#include <velk/cryptography/xml/reference.hpp>

#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// SignedInfo: how it is canonicalised and signed, and its references.
class VELK_EXPORT signed_info {
public:
    signed_info(method::canonicalization const& canonicalization, method::signature const& signature)
        : canonicalization_(canonicalization), signature_(signature)
    {
    }

    void add_reference(reference const& value) { references_.push_back(value); }

    method::canonicalization const& get_canonicalization() const { return canonicalization_; }
    method::signature const& get_signature() const { return signature_; }
    std::vector<reference> const& get_references() const { return references_; }

private:
    method::canonicalization canonicalization_;
    method::signature signature_;
    std::vector<reference> references_;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/xml/key_info.hpp>
#include <velk/cryptography/xml/object.hpp>
#include <velk/cryptography/xml/signed_info.hpp>
#include <velk/xml/element.hpp>

#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// The unsigned Signature element: what the caller appends under the parent of
// the element to sign before running the signer.
class VELK_EXPORT signature_template {
public:
    signature_template(signed_info const& info, core::optional<key_info> const& key,
                       std::vector<object> const& objects);

    // Signature, declaring the XML Signature namespace as its default, with
    // SignedInfo (CanonicalizationMethod, SignatureMethod, each Reference with
    // its Transforms, DigestMethod and an empty DigestValue), an empty
    // SignatureValue, then KeyInfo (X509Data with an empty X509Certificate)
    // and the objects, when given. Fails with code 12 when SignedInfo has no
    // reference or KeyInfo holds nothing, code 11 for an algorithm without an
    // identifier.
    velk::xml::element get_element_template(core::result::stack& stack) const;

private:
    signed_info info_;
    core::optional<key_info> key_;
    std::vector<object> objects_;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

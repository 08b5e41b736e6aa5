#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/evp_private_key.hpp>
#include <velk/cryptography/x509_certificate.hpp>
#include <velk/xml/element.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// Computes an enveloped XML signature in place: fills the DigestValue of each
// reference, the SignatureValue and the X509Certificate of a template made by
// signature_template and appended under the parent of the signed element.
class VELK_EXPORT signer {
public:
    signer(x509_certificate const& certificate, evp_private_key const& key);

    // Signs the LAST child element named Signature of elemento_pai (an older
    // signature may stand before it). elemento_pai is taken as the root of its
    // document: each reference "#id" names the element under it whose
    // attribute Id is id, and is digested in its Canonical XML 1.0 form in
    // that context, without this Signature when the enveloped-signature
    // transform is listed. SignedInfo is canonicalised in its context too.
    //
    // Fails with code 7 (certificate and key do not match), 11 (algorithm
    // not supported, or not one the key can sign with), 12 (a part of the
    // template is missing), 13 and 14 (reference not found or not unique),
    // 15 (no Signature child), 16 (canonicalisation), or the failures of the
    // certificate, hash and key. On failure the tree is left as it was: the
    // template stays unsigned.
    bool execute(velk::xml::element& elemento_pai, core::result::stack& stack) const;

private:
    x509_certificate certificate_;
    evp_private_key key_;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

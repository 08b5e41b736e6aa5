#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// The enveloped signatures of the NF-e messages, as the authority checks
// them: RSA-SHA1 over Canonical XML 1.0, one reference by Id to the signed
// element, the enveloped-signature and Canonical XML 1.0 transforms, the
// signer's certificate in KeyInfo. Computed with libxml2's canonicalisation
// and OpenSSL, apart from the signing code of the library under test, so
// that each side checks the other.
class xml_signature {
public:
    enum class verdict {
        valid,
        not_standard,  // not of that form, or no usable certificate (298)
        differs,       // digest or signature value does not match (297)
    };
    struct outcome {
        verdict result = verdict::not_standard;
        std::string digest_value;  // Base64 of the digest computed, when valid
    };

    // Checks the Signature child of `root` that refers to root's child
    // `signed_name` (infNFe, infInut). root is taken as the root of a
    // document of its own, as the signer saw it: the namespaces declared
    // around it in the request play no part.
    static outcome verify(xmlNode const* root, std::string_view signed_name);

    // Canonical XML 1.0 (no comments) of `apex` and its contents in its
    // document, the namespaces in scope included, leaving out the subtree of
    // `excluded` (the enveloped signature). Empty when libxml2 fails.
    static std::string canonical_form(xmlDoc* document, xmlNode const* apex, xmlNode const* excluded = nullptr);

    // SHA-1 of the bytes, in Base64.
    static std::string sha1_base64(std::string const& bytes);
    static std::string to_base64(std::string const& bytes);
    // Whitespace is skipped; empty for a text that is no Base64.
    static std::string from_base64(std::string_view text);

    static constexpr char namespace_uri[] = "http://www.w3.org/2000/09/xmldsig#";
    static constexpr char canonical_xml[] = "http://www.w3.org/TR/2001/REC-xml-c14n-20010315";
    static constexpr char enveloped[] = "http://www.w3.org/2000/09/xmldsig#enveloped-signature";
    static constexpr char rsa_sha1[] = "http://www.w3.org/2000/09/xmldsig#rsa-sha1";
    static constexpr char sha1[] = "http://www.w3.org/2000/09/xmldsig#sha1";
};

}  // namespace velk::tools::sefaz_sim

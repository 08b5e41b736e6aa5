#pragma once

// What the tests of the archives share: the answers an authority gives to a
// document, an event and a disablement, and the canonical form of a signed
// element where it stands.

#include <support/xml_text.hpp>
#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/element.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::test {

// protNFe of layout 4.00 for a key, with the digest the authority saw.
inline std::string prot_nfe(std::string const& chave, std::string const& digest, std::string const& cstat = "100",
                            std::string const& motivo = "Autorizado o uso da NF-e")
{
    return "<protNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\"><infProt><tpAmb>2</tpAmb>"
           "<verAplic>SP_NFE_PL009_V4</verAplic><chNFe>" + chave + "</chNFe><dhRecbto>2024-02-01T14:07:09-03:00"
           "</dhRecbto><nProt>135240000654321</nProt><digVal>" + digest + "</digVal><cStat>" + cstat +
           "</cStat><xMotivo>" + motivo + "</xMotivo></infProt></protNFe>";
}

// retInutNFe of layout 4.00 that disables the range of the request.
inline std::string ret_inut_nfe(std::string const& ano_cnpj_mod_serie_faixa)
{
    return "<retInutNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\"><infInut><tpAmb>2</tpAmb>"
           "<verAplic>SP_NFE_PL009_V4</verAplic><cStat>102</cStat><xMotivo>Inutilizacao de numero homologado"
           "</xMotivo><cUF>35</cUF>" + ano_cnpj_mod_serie_faixa +
           "<dhRecbto>2024-02-01T14:07:09-03:00</dhRecbto><nProt>135240000777777</nProt></infInut></retInutNFe>";
}

// Canonical XML 1.0 of the first element of that name in the tree, as a
// signature over it digests it: saved on its own, it declares the namespace
// in scope where it stands.
inline std::string canonical_of(xml::element const& root, std::string const& name)
{
    xml::element const* found = first_element_named(root, name);
    if (found == nullptr) {
        ADD_FAILURE() << "no " << name << " under " << root.get_name();
        return {};
    }
    core::result::stack s;
    std::string const canonical = xml::canonicalize(core::byte_array(saved_text(*found)), {}, s).to_string();
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return canonical;
}

}  // namespace velk::test

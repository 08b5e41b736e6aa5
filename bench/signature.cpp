// The cost of signing an NFC-e against the cost of its one RSA-2048
// signature: all the XML work around the signature (the libxml2 trees of the
// signed element and of SignedInfo, two canonicalisations, digest, Base64)
// should add no more than 30 % to it. This NFC-e has twelve small items; see
// documento_fiscal.cpp for a typical one of four.
#include "throwaway_certificate.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/cryptography/xml/signature_template.hpp>
#include <velk/cryptography/xml/signer.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace {

namespace crypto = velk::cryptography;

constexpr char nfe_id[] = "NFe35240612345678000195650010000000011000000019";

crypto::pkcs12 const& certificate()
{
    return velk::bench::throwaway_certificate();
}

// An NFC-e of about 5 KB: identification, issuer, twelve items, totals,
// payment and the QR code supplement.
std::string nfce_text()
{
    std::string items;
    for (int item = 1; item <= 12; ++item) {
        char text[512];
        std::snprintf(text, sizeof text,
                      "<det nItem=\"%d\"><prod><cProd>%04d</cProd><cEAN>SEM GTIN</cEAN><xProd>PRODUTO DE TESTE NUMERO %d"
                      "</xProd><NCM>21069090</NCM><CFOP>5102</CFOP><uCom>UN</uCom><qCom>1.0000</qCom>"
                      "<vUnCom>10.00</vUnCom><vProd>10.00</vProd><cEANTrib>SEM GTIN</cEANTrib><uTrib>UN</uTrib>"
                      "<qTrib>1.0000</qTrib><vUnTrib>10.00</vUnTrib><indTot>1</indTot></prod><imposto><ICMS><ICMSSN102>"
                      "<orig>0</orig><CSOSN>102</CSOSN></ICMSSN102></ICMS></imposto></det>",
                      item, item, item);
        items += text;
    }
    return std::string("<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe versao=\"4.00\" Id=\"") + nfe_id +
           "\"><ide><cUF>35</cUF><cNF>00000001</cNF><natOp>VENDA</natOp><mod>65</mod><serie>1</serie><nNF>1</nNF>"
           "<dhEmi>2024-06-01T10:00:00-03:00</dhEmi><tpNF>1</tpNF><idDest>1</idDest><cMunFG>3550308</cMunFG>"
           "<tpImp>4</tpImp><tpEmis>1</tpEmis><cDV>9</cDV><tpAmb>2</tpAmb><finNFe>1</finNFe><indFinal>1</indFinal>"
           "<indPres>1</indPres><procEmi>0</procEmi><verProc>1.0</verProc></ide><emit><CNPJ>12345678000195</CNPJ>"
           "<xNome>EMPRESA DE TESTES LTDA</xNome><enderEmit><xLgr>RUA DAS FLORES</xLgr><nro>100</nro>"
           "<xBairro>CENTRO</xBairro><cMun>3550308</cMun><xMun>SAO PAULO</xMun><UF>SP</UF><CEP>01001000</CEP>"
           "</enderEmit><IE>123456789012</IE><CRT>1</CRT></emit>" +
           items +
           "<total><ICMSTot><vBC>0.00</vBC><vICMS>0.00</vICMS><vProd>120.00</vProd><vNF>120.00</vNF></ICMSTot>"
           "</total><transp><modFrete>9</modFrete></transp><pag><detPag><tPag>01</tPag><vPag>120.00</vPag></detPag>"
           "</pag></infNFe><infNFeSupl><qrCode><![CDATA[https://www.homologacao.nfce.fazenda.sp.gov.br/qrcode?p="
           "35240612345678000195650010000000011000000019|2|2|1|0123456789ABCDEF0123456789ABCDEF01234567]]></qrCode>"
           "<urlChave>https://www.homologacao.nfce.fazenda.sp.gov.br/consulta</urlChave></infNFeSupl></NFe>";
}

velk::xml::element signature_template()
{
    velk::xml::canonicalization_parameters::version_1_0 const parameters;
    crypto::xml::method::canonicalization const canonicalization(parameters);
    crypto::xml::reference reference(crypto::xml::method::digest::from_sha1());
    reference.set_uri(std::string("#") + nfe_id);
    reference.add_transform(crypto::xml::method::transform::from_enveloped_signature());
    reference.add_transform(crypto::xml::method::transform::from_canonicalization_method(canonicalization));
    crypto::xml::signed_info info(canonicalization,
                                  crypto::xml::method::signature::from_rsa(crypto::cryptographic_hash::algorithm::sha1));
    info.add_reference(reference);
    crypto::xml::key_info key;
    key.add_X509();
    velk::core::result::stack stack;
    return crypto::xml::signature_template(info, key, {}).get_element_template(stack);
}

void rsa_2048_signature(benchmark::State& state)
{
    crypto::evp_private_key const key = certificate().get_evp_private_key();
    velk::core::byte_array const signed_info(std::string(900, 'x'));
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key.sign(crypto::cryptographic_hash::algorithm::sha1, signed_info, stack));
    }
}
BENCHMARK(rsa_2048_signature);

// Each round removes the previous signature and signs a fresh template, as
// signing a document anew does.
void nfce_signature(benchmark::State& state)
{
    velk::core::result::stack stack;
    velk::xml::document document;
    document.load(velk::core::byte_array(nfce_text()), stack);
    velk::xml::element nfe = *document.get_root_element();
    velk::xml::element const unsigned_template = signature_template();
    crypto::xml::signer const signer(certificate().get_certificate(), certificate().get_evp_private_key());
    for (auto _ : state) {
        auto range = nfe.get_node_range();
        for (auto position = range.begin(); position != range.end(); ++position) {
            if (position->as_element() != nullptr && position->as_element()->get_name() == "Signature") {
                range.erase(position);
                break;
            }
        }
        nfe.append_node(unsigned_template);
        signer.execute(nfe, stack);
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
    state.counters["document_bytes"] = static_cast<double>(nfce_text().size());
}
BENCHMARK(nfce_signature);

}  // namespace

BENCHMARK_MAIN();

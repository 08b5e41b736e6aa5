#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include "demo_certificate.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::demo {

namespace {

using erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

// A small NF-e of the demo's own, as a generator would hand it over: one item
// sold from São Paulo in the test environment, everything the layout asks for
// but the signature.
constexpr char demo_nfe[] =
    R"(<NFe xmlns="http://www.portalfiscal.inf.br/nfe">)"
    R"(<infNFe versao="4.00" Id="NFe35240612345678000195550010000000011000000017">)"
    R"(<ide><cUF>35</cUF><cNF>00000001</cNF><natOp>VENDA DE MERCADORIA</natOp><mod>55</mod><serie>1</serie>)"
    R"(<nNF>1</nNF><dhEmi>2024-06-03T10:15:00-03:00</dhEmi><tpNF>1</tpNF><idDest>1</idDest>)"
    R"(<cMunFG>3550308</cMunFG><tpImp>1</tpImp><tpEmis>1</tpEmis><cDV>7</cDV><tpAmb>2</tpAmb><finNFe>1</finNFe>)"
    R"(<indFinal>1</indFinal><indPres>1</indPres><procEmi>0</procEmi><verProc>velk-demo</verProc></ide>)"
    R"(<emit><CNPJ>12345678000195</CNPJ><xNome>EMPRESA DEMONSTRACAO LTDA</xNome><enderEmit>)"
    R"(<xLgr>RUA DAS AMOSTRAS</xLgr><nro>100</nro><xBairro>CENTRO</xBairro><cMun>3550308</cMun>)"
    R"(<xMun>SAO PAULO</xMun><UF>SP</UF><CEP>01001000</CEP><cPais>1058</cPais><xPais>BRASIL</xPais></enderEmit>)"
    R"(<IE>111222333444</IE><CRT>1</CRT></emit>)"
    R"(<dest><CPF>12345678909</CPF><xNome>NF-E EMITIDA EM AMBIENTE DE HOMOLOGACAO - SEM VALOR FISCAL</xNome>)"
    R"(<enderDest><xLgr>AVENIDA DOS TESTES</xLgr><nro>200</nro><xBairro>BELA VISTA</xBairro>)"
    R"(<cMun>3550308</cMun><xMun>SAO PAULO</xMun><UF>SP</UF><CEP>01310100</CEP><cPais>1058</cPais>)"
    R"(<xPais>BRASIL</xPais></enderDest><indIEDest>9</indIEDest><email>cliente@exemplo.com.br</email></dest>)"
    R"(<det nItem="1"><prod><cProd>0001</cProd><cEAN>SEM GTIN</cEAN><xProd>CAFE TORRADO 500 G</xProd>)"
    R"(<NCM>09012100</NCM><CFOP>5102</CFOP><uCom>UN</uCom><qCom>2.0000</qCom><vUnCom>18.5000000000</vUnCom>)"
    R"(<vProd>37.00</vProd><cEANTrib>SEM GTIN</cEANTrib><uTrib>UN</uTrib><qTrib>2.0000</qTrib>)"
    R"(<vUnTrib>18.5000000000</vUnTrib><indTot>1</indTot></prod><imposto><ICMS><ICMSSN102><orig>0</orig>)"
    R"(<CSOSN>102</CSOSN></ICMSSN102></ICMS><PIS><PISOutr><CST>49</CST><vBC>0.00</vBC><pPIS>0.0000</pPIS>)"
    R"(<vPIS>0.00</vPIS></PISOutr></PIS><COFINS><COFINSOutr><CST>49</CST><vBC>0.00</vBC>)"
    R"(<pCOFINS>0.0000</pCOFINS><vCOFINS>0.00</vCOFINS></COFINSOutr></COFINS></imposto></det>)"
    R"(<total><ICMSTot><vBC>0.00</vBC><vICMS>0.00</vICMS><vICMSDeson>0.00</vICMSDeson><vFCP>0.00</vFCP>)"
    R"(<vBCST>0.00</vBCST><vST>0.00</vST><vFCPST>0.00</vFCPST><vFCPSTRet>0.00</vFCPSTRet><vProd>37.00</vProd>)"
    R"(<vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc><vII>0.00</vII><vIPI>0.00</vIPI>)"
    R"(<vIPIDevol>0.00</vIPIDevol><vPIS>0.00</vPIS><vCOFINS>0.00</vCOFINS><vOutro>0.00</vOutro>)"
    R"(<vNF>37.00</vNF></ICMSTot></total><transp><modFrete>9</modFrete></transp>)"
    R"(<pag><detPag><tPag>01</tPag><vPag>37.00</vPag></detPag></pag></infNFe></NFe>)";

documento_fiscal read_demo_document()
{
    core::result::stack stack;
    xml::document document;
    document.load(core::byte_array(std::string(demo_nfe)), stack);
    check(stack, "demo NF-e");
    documento_fiscal value = documento_fiscal::from_xml(document, stack);
    check(stack, "documento_fiscal");
    return value;
}

}  // namespace

void run_signature_step(demo_context& context)
{
    demo_context::say("signature step: a small NF-e read as a documento_fiscal and signed with a throw-away certificate");
    documento_fiscal document = read_demo_document();
    context.write({"signature/nfe-unsigned.xml", "NFe", "4.00", "55", "SP", false,
                   "A small NF-e carried by the demo, as documento_fiscal holds it before signing"},
                  to_text(document.get_xml(), "unsigned NF-e"));
    std::string const digest = document.get_digest_value();
    demo_context::say("  digest of infNFe before signing: " + digest);

    core::result::stack stack;
    cryptography::pkcs12 const certificate = make_demo_certificate(stack);
    check(stack, "certificate");

    document.assinar(certificate, stack);
    check(stack, "signature");
    if (document.get_digest_value() != digest) {
        throw demo_failure{"the signature digested another infNFe than the one computed before signing"};
    }
    context.write({"signature/nfe-signed.xml", "NFe", "4.00", "55", "SP", true,
                   "The same NF-e with its enveloped RSA-SHA1 signature (throw-away certificate); DigestValue " +
                       digest},
                  to_text(document.get_xml(), "signed NF-e"));
}

}  // namespace velk::demo

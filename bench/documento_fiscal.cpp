// documento_fiscal on a typical NFC-e (about 5 KB, four items, with its QR
// code supplement) and on an NF-e of 100 items: reading, the digest the QR
// code needs before signing, and signing. One RSA-2048 signature alone is the
// yardstick: signing the NFC-e should cost at most 1.3 times that.
#include "throwaway_certificate.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/xml/document.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <string>

namespace {

using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;

// One sold item, as a point of sale of a small business writes it.
std::string item(int number)
{
    char text[1400];
    std::snprintf(
        text, sizeof text,
        "<det nItem=\"%d\"><prod><cProd>%05d</cProd><cEAN>SEM GTIN</cEAN><xProd>PRODUTO DE DEMONSTRACAO %d</xProd>"
        "<NCM>21050010</NCM><CEST>2300100</CEST><CFOP>5405</CFOP><uCom>UN</uCom><qCom>1.0000</qCom>"
        "<vUnCom>12.0000000000</vUnCom><vProd>12.00</vProd><cEANTrib>SEM GTIN</cEANTrib><uTrib>UN</uTrib>"
        "<qTrib>1.0000</qTrib><vUnTrib>12.0000000000</vUnTrib><indTot>1</indTot></prod><imposto>"
        "<vTotTrib>0.00</vTotTrib><ICMS><ICMSSN500><orig>0</orig><CSOSN>500</CSOSN><vBCSTRet>0.00</vBCSTRet>"
        "<pST>0.0000</pST><vICMSSubstituto>0.00</vICMSSubstituto><vICMSSTRet>0.00</vICMSSTRet></ICMSSN500></ICMS>"
        "<PIS><PISOutr><CST>49</CST><vBC>0.00</vBC><pPIS>0.0000</pPIS><vPIS>0.00</vPIS></PISOutr></PIS>"
        "<COFINS><COFINSOutr><CST>49</CST><vBC>0.00</vBC><pCOFINS>0.0000</pCOFINS><vCOFINS>0.00</vCOFINS>"
        "</COFINSOutr></COFINS></imposto></det>",
        number, number, number);
    return text;
}

// An NF-e (model 55) or NFC-e (model 65, with infNFeSupl) of `items` items.
std::string document_text(int items, bool nfce)
{
    std::string const key = nfce ? "41240623285089000185650010000013051817822496"
                                 : "41240623285089000185550010000013051817822493";
    std::string text = "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe Id=\"NFe" + key +
                       "\" versao=\"4.00\"><ide><cUF>41</cUF><cNF>81782249</cNF><natOp>Venda de mercadoria</natOp>"
                       "<mod>" + (nfce ? "65" : "55") +
                       "</mod><serie>1</serie><nNF>1305</nNF><dhEmi>2024-06-11T15:32:17-03:00</dhEmi><tpNF>1</tpNF>"
                       "<idDest>1</idDest><cMunFG>4108809</cMunFG><tpImp>" + (nfce ? "4" : "1") +
                       "</tpImp><tpEmis>1</tpEmis><cDV>6</cDV><tpAmb>2</tpAmb><finNFe>1</finNFe><indFinal>1</indFinal>"
                       "<indPres>1</indPres><procEmi>0</procEmi><verProc>1.0.0</verProc></ide><emit>"
                       "<CNPJ>23285089000185</CNPJ><xNome>SORVETERIA DE DEMONSTRACAO LTDA</xNome><enderEmit>"
                       "<xLgr>AV CENTRAL</xLgr><nro>177</nro><xBairro>Centro</xBairro><cMun>4108809</cMun>"
                       "<xMun>GUAIRA</xMun><UF>PR</UF><CEP>85980000</CEP><cPais>1058</cPais><xPais>Brasil</xPais>"
                       "</enderEmit><IE>9077361720</IE><CRT>1</CRT></emit><dest><CPF>12345678909</CPF>"
                       "<xNome>CONSUMIDOR DE TESTE</xNome><indIEDest>9</indIEDest></dest>";
    for (int number = 1; number <= items; ++number) {
        text += item(number);
    }
    std::string const total = std::to_string(12 * items) + ".00";
    text += "<total><ICMSTot><vBC>0.00</vBC><vICMS>0.00</vICMS><vICMSDeson>0.00</vICMSDeson><vFCP>0.00</vFCP>"
            "<vBCST>0.00</vBCST><vST>0.00</vST><vFCPST>0.00</vFCPST><vFCPSTRet>0.00</vFCPSTRet><vProd>" +
            total +
            "</vProd><vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc><vII>0.00</vII><vIPI>0.00</vIPI>"
            "<vIPIDevol>0.00</vIPIDevol><vPIS>0.00</vPIS><vCOFINS>0.00</vCOFINS><vOutro>0.00</vOutro><vNF>" +
            total + "</vNF></ICMSTot></total><transp><modFrete>9</modFrete></transp><pag><detPag><tPag>01</tPag>"
                    "<vPag>" + total + "</vPag></detPag></pag></infNFe>";
    if (nfce) {
        text += "<infNFeSupl><qrCode><![CDATA[http://www.fazenda.pr.gov.br/nfce/qrcode?p=" + key +
                "|2|2|1|9D6AB4765658166993902F7F7C26FCD0965E328F]]></qrCode>"
                "<urlChave>http://www.fazenda.pr.gov.br/nfce/consulta</urlChave></infNFeSupl>";
    }
    return text + "</NFe>";
}

velk::xml::element parsed(std::string const& text)
{
    velk::core::result::stack stack;
    velk::xml::document document;
    document.load(velk::core::byte_array(text), stack);
    return *document.get_root_element();
}

void read(benchmark::State& state, int items, bool nfce)
{
    std::string const text = document_text(items, nfce);
    velk::xml::element const nfe = parsed(text);
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(documento_fiscal::from_xml(nfe, stack));
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
    state.counters["document_bytes"] = static_cast<double>(text.size());
}

void digest(benchmark::State& state, int items, bool nfce)
{
    velk::core::result::stack stack;
    documento_fiscal const document = documento_fiscal::from_xml(parsed(document_text(items, nfce)), stack);
    for (auto _ : state) {
        benchmark::DoNotOptimize(document.get_digest_value());
    }
    if (stack.has_failed() || document.get_digest_value().empty()) {
        state.SkipWithError("no digest");
    }
}

// Each round drops the signature of the round before and signs anew.
void sign(benchmark::State& state, int items, bool nfce)
{
    velk::cryptography::pkcs12 const& certificate = velk::bench::throwaway_certificate();
    velk::core::result::stack stack;
    documento_fiscal document = documento_fiscal::from_xml(parsed(document_text(items, nfce)), stack);
    for (auto _ : state) {
        document.assinar(certificate, stack);
    }
    if (stack.has_failed()) {
        state.SkipWithError(stack.to_string().c_str());
    }
}

void rsa_2048_signature(benchmark::State& state)
{
    velk::cryptography::evp_private_key const key = velk::bench::throwaway_certificate().get_evp_private_key();
    velk::core::byte_array const signed_info(std::string(900, 'x'));  // a canonical SignedInfo is about that long
    velk::core::result::stack stack;
    for (auto _ : state) {
        benchmark::DoNotOptimize(key.sign(velk::cryptography::cryptographic_hash::algorithm::sha1, signed_info, stack));
    }
}

BENCHMARK(rsa_2048_signature);
BENCHMARK_CAPTURE(read, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(digest, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(sign, nfce_4_items, 4, true);
BENCHMARK_CAPTURE(read, nfe_100_items, 100, false);
BENCHMARK_CAPTURE(digest, nfe_100_items, 100, false);
BENCHMARK_CAPTURE(sign, nfe_100_items, 100, false);

}  // namespace

BENCHMARK_MAIN();

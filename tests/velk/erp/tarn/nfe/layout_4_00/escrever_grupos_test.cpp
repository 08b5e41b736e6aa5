// The opening groups and the items as they are written, against the text the
// layout expects.

#include "layout_teste.hpp"

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::test::documento_de;
using velk::test::grupo;
using velk::test::grupos;
using velk::test::valor;

TEST(escrever_layout_4_00, frames_the_groups_in_NFe_and_infNFe_with_Id_before_versao)
{
    velk::core::result::stack stack;
    std::string const texto =
        velk::xml::document::save(documento_de(velk::test::nota_nfce_simples()), stack).to_string();
    std::string const inicio = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\">"
                               "<infNFe Id=\"NFe35240527164983000158650010000482131619382749\" versao=\"4.00\"><ide>";
    EXPECT_EQ(texto.substr(0, inicio.size()), inicio);
}

TEST(escrever_layout_4_00, writes_the_identification_of_an_nfce)
{
    EXPECT_EQ(grupo(documento_de(velk::test::nota_nfce_simples()), "ide"),
              "<ide><cUF>35</cUF><cNF>61938274</cNF><natOp>VENDA</natOp><mod>65</mod><serie>1</serie>"
              "<nNF>48213</nNF><dhEmi>2024-05-14T18:42:37-03:00</dhEmi><tpNF>1</tpNF><idDest>1</idDest>"
              "<cMunFG>3550308</cMunFG><tpImp>4</tpImp><tpEmis>1</tpEmis><cDV>9</cDV><tpAmb>2</tpAmb>"
              "<finNFe>1</finNFe><indFinal>1</indFinal><indPres>1</indPres><indIntermed>0</indIntermed>"
              "<procEmi>0</procEmi><verProc>velkerp-4.0.0</verProc></ide>");
}

TEST(escrever_layout_4_00, writes_the_issuer_with_its_address)
{
    EXPECT_EQ(grupo(documento_de(velk::test::nota_nfce_simples()), "emit"),
              "<emit><CNPJ>27164983000158</CNPJ><xNome>Padaria e Mercearia Vila Madalena Ltda</xNome>"
              "<xFant>Empório Vila Madalena</xFant><enderEmit><xLgr>Rua Fradique Coutinho</xLgr><nro>1126</nro>"
              "<xBairro>Vila Madalena</xBairro><cMun>3550308</cMun><xMun>São Paulo</xMun><UF>SP</UF>"
              "<CEP>05416001</CEP><cPais>1058</cPais><xPais>Brasil</xPais><fone>1138151234</fone></enderEmit>"
              "<IE>147293584118</IE><CRT>1</CRT></emit>");
}

TEST(escrever_layout_4_00, writes_every_kind_of_referenced_document_in_the_order_of_kinds)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    nota.set_cupons_referenciados(
            {cupom_referenciado().set_modelo(modelo_cupom_fiscal::ecf).set_ecf(7).set_coo(1532)})
        .set_nfp_referenciadas({nfp_referenciada()
                                    .set_uf_emitente(41)
                                    .set_ano_mes_emissao(2404)
                                    .set_cpf("51739284682")
                                    .set_ie("9051234567")
                                    .set_modelo(modelo_nf_produtor::nf_produtor)
                                    .set_serie("2")
                                    .set_numero(388)});
    std::string const ide = grupo(documento_de(nota), "ide");
    EXPECT_EQ(ide.substr(ide.find("<NFref>")),
              "<NFref><refNFe>35240408931527000141550010000006981715302842</refNFe></NFref>"
              "<NFref><refNF><cUF>35</cUF><AAMM>1911</AAMM><CNPJ>62084519000152</CNPJ><mod>01</mod>"
              "<serie>1</serie><nNF>15837</nNF></refNF></NFref>"
              "<NFref><refNFP><cUF>41</cUF><AAMM>2404</AAMM><CPF>51739284682</CPF><IE>9051234567</IE>"
              "<mod>04</mod><serie>2</serie><nNF>388</nNF></refNFP></NFref>"
              "<NFref><refECF><mod>2D</mod><nECF>007</nECF><nCOO>001532</nCOO></refECF></NFref></ide>");
}

TEST(escrever_layout_4_00, writes_recipient_delivery_place_and_xml_access)
{
    velk::xml::document const documento = documento_de(velk::test::nota_nfe_completa());
    EXPECT_EQ(grupo(documento, "dest"),
              "<dest><CNPJ>33587164000116</CNPJ><xNome>Hospital Santa Luzia de Copacabana S.A.</xNome>"
              "<enderDest><xLgr>Rua Barata Ribeiro</xLgr><nro>370</nro><xBairro>Copacabana</xBairro>"
              "<cMun>3304557</cMun><xMun>Rio de Janeiro</xMun><UF>RJ</UF><CEP>22040002</CEP><cPais>1058</cPais>"
              "<xPais>Brasil</xPais><fone>2125551234</fone></enderDest><indIEDest>9</indIEDest>"
              "<email>compras@hsantaluzia.com.br</email></dest>");
    EXPECT_EQ(grupo(documento, "entrega"),
              "<entrega><CNPJ>33587164000205</CNPJ><xLgr>Rodovia Washington Luiz</xLgr><nro>3300</nro>"
              "<xCpl>Galpão 4</xCpl><xBairro>Jardim Primavera</xBairro><cMun>3301702</cMun>"
              "<xMun>Duque de Caxias</xMun><UF>RJ</UF></entrega>");
    EXPECT_EQ(grupos(documento, "autXML"), (std::vector<std::string>{"<autXML><CPF>28461935764</CPF></autXML>",
                                                                     "<autXML><CNPJ>46291385000194</CNPJ></autXML>"}));
    EXPECT_TRUE(grupos(documento, "retirada").empty());
}

TEST(escrever_layout_4_00, writes_items_numbered_from_one_with_their_special_groups)
{
    std::vector<std::string> const det = grupos(documento_de(velk::test::nota_nfe_completa()), "det");
    ASSERT_EQ(det.size(), 3u);
    EXPECT_EQ(det[0],
              "<det nItem=\"1\"><prod><cProd>DIP500INJ100</cProd><cEAN>7891058300128</cEAN>"
              "<xProd>DIPIRONA SODICA 500MG/ML SOL INJ CX 100 AMP 2ML</xProd><NCM>30049099</NCM><CFOP>6108</CFOP>"
              "<uCom>CX</uCom><qCom>10.0000</qCom><vUnCom>185.0000000000</vUnCom><vProd>1850.00</vProd>"
              "<cEANTrib>7891058300128</cEANTrib><uTrib>CX</uTrib><qTrib>10.0000</qTrib>"
              "<vUnTrib>185.0000000000</vUnTrib><indTot>1</indTot><xPed>4500012345</xPed><nItemPed>10</nItemPed>"
              "<rastro><nLote>DP24051</nLote><qLote>10.000</qLote><dFab>2024-03-10</dFab><dVal>2026-03-09</dVal>"
              "</rastro><med><cProdANVISA>1058300020015</cProdANVISA><vPMC>412.35</vPMC></med></prod>"
              "<imposto><ICMS><ICMS00><orig>0</orig><CST>00</CST><modBC>3</modBC><vBC>1850.00</vBC>"
              "<pICMS>12.0000</pICMS><vICMS>222.00</vICMS></ICMS00></ICMS><PIS><PISNT><CST>04</CST></PISNT></PIS>"
              "<COFINS><COFINSNT><CST>04</CST></COFINSNT></COFINS><ICMSUFDest><vBCUFDest>1850.00</vBCUFDest>"
              "<vBCFCPUFDest>1850.00</vBCFCPUFDest><pFCPUFDest>2.0000</pFCPUFDest><pICMSUFDest>20.0000</pICMSUFDest>"
              "<pICMSInter>12.00</pICMSInter><pICMSInterPart>100.0000</pICMSInterPart><vFCPUFDest>37.00</vFCPUFDest>"
              "<vICMSUFDest>148.00</vICMSUFDest><vICMSUFRemet>0.00</vICMSUFRemet></ICMSUFDest></imposto></det>");
    EXPECT_EQ(det[1].substr(det[1].find("<indTot>"), det[1].find("<imposto>") - det[1].find("<indTot>")),
              "<indTot>1</indTot><DI><nDI>2408731562</nDI><dDI>2024-04-02</dDI><xLocDesemb>PORTO DE SANTOS"
              "</xLocDesemb><UFDesemb>SP</UFDesemb><dDesemb>2024-04-05</dDesemb><tpViaTransp>1</tpViaTransp>"
              "<vAFRMM>125.40</vAFRMM><tpIntermedio>1</tpIntermedio><cExportador>SZMED0042</cExportador><adi>"
              "<nAdicao>1</nAdicao><nSeqAdic>1</nSeqAdic><cFabricante>SZMED0042</cFabricante></adi></DI>"
              "<xPed>4500012345</xPed><nItemPed>20</nItemPed></prod>");
    EXPECT_EQ(det[2].substr(0, 21), "<det nItem=\"3\"><prod>");
    EXPECT_EQ(det[2].substr(det[2].find("<comb>"), det[2].find("<imposto>") - det[2].find("<comb>")),
              "<comb><cProdANP>820101034</cProdANP><descANP>OLEO DIESEL B S10 - COMUM</descANP>"
              "<UFCons>RJ</UFCons></comb></prod>");
}

TEST(escrever_layout_4_00, writes_a_whole_fuel_group_with_glp_cide_and_pump_readings)
{
    nota_fiscal nota = velk::test::nota_nfce_simples();
    std::vector<produto> produtos = nota.get_produtos();
    produtos[0].set_combustiveis(
        combustiveis()
            .set_codigo_produto_anp(210203001)
            .set_descricao_produto_anp("GLP")
            .set_informacoes_glp(informacoes_combustivel_glp()
                                     .set_percentual_derivado_do_petroleo(valor("60"))
                                     .set_percentual_gas_natural_nacional(valor("30.5"))
                                     .set_percentual_gas_natural_importado(valor("9.5"))
                                     .set_valor_partida(valor("7.3")))
            .set_codigo_autorizacao_codif("123")
            .set_quantidade_faturada_temperatura_ambiente(valor("13"))
            .set_uf_consumo("SP")
            .set_informacoes_cide_combustiveis(informacoes_cide_combustiveis()
                                                   .set_base_de_calculo(valor("13"))
                                                   .set_valor_aliquota(valor("0.1"))
                                                   .set_valor_cide(valor("1.3")))
            .set_encerrante_bomba_combustiveis(encerrante_bomba_combustiveis()
                                                   .set_identificacao_bico(3)
                                                   .set_identificacao_tanque(1)
                                                   .set_valor_inicial(valor("1502.5"))
                                                   .set_valor_final(valor("1515.5"))));
    nota.set_produtos(produtos);
    std::string const det = grupos(documento_de(nota), "det").at(0);
    EXPECT_EQ(det.substr(det.find("<comb>"), det.find("<imposto>") - det.find("<comb>")),
              "<comb><cProdANP>210203001</cProdANP><descANP>GLP</descANP><pGLP>60.0000</pGLP><pGNn>30.5000</pGNn>"
              "<pGNi>9.5000</pGNi><vPart>7.30</vPart><CODIF>123</CODIF><qTemp>13.0000</qTemp><UFCons>SP</UFCons>"
              "<CIDE><qBCProd>13.0000</qBCProd><vAliqProd>0.1000</vAliqProd><vCIDE>1.30</vCIDE></CIDE>"
              "<encerrante><nBico>3</nBico><nTanque>1</nTanque><vEncIni>1502.500</vEncIni>"
              "<vEncFin>1515.500</vEncFin></encerrante></comb></prod>");
}

TEST(escrever_layout_4_00, a_note_without_products_has_no_item)
{
    nota_fiscal nota = velk::test::nota_nfce_simples();
    nota.set_produtos({});
    velk::xml::document const documento = documento_de(nota);
    EXPECT_TRUE(grupos(documento, "det").empty());
    EXPECT_FALSE(grupo(documento, "total").empty());
}

}  // namespace

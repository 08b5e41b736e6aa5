// Members of the tree that the fiscal model never fills, written as other
// sources fill them.

#include "layout_teste.hpp"

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

namespace layout = velk::erp::tarn::nfe::layout_4_00;
namespace grupo = velk::erp::tarn::nfe::layout_4_00::grupo;
using velk::test::arvore_de;
using velk::test::documento_de;
using velk::test::escrito;
using velk::test::valor;

grupo::imposto& imposto_do_primeiro_item(layout::layout_4_00& arvore)
{
    return arvore.det.at(0).imposto;
}

TEST(escrever_outras_fontes, quantity_forms_of_pis_and_cofins_with_their_places)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    grupo::imposto& imposto = imposto_do_primeiro_item(arvore);
    imposto.PIS = grupo::PISOutr{99, grupo::PIS_quantidade{valor("1.5"), valor("0.8")}, valor("1.2")};
    imposto.PISST = grupo::PISST{grupo::PIS_quantidade{valor("1.5"), valor("0.8")}, valor("1.2")};
    imposto.COFINS = grupo::COFINSOutr{99, grupo::COFINS_quantidade{valor("1.5"), valor("3.6")}, valor("5.4")};
    imposto.COFINSST = grupo::COFINSST{grupo::COFINS_quantidade{valor("1.5"), valor("3.6")}, {}};

    EXPECT_EQ(escrito(arvore, "det", "PIS"),
              "<PIS><PISOutr><CST>99</CST><qBCProd>1.5000</qBCProd><vAliqProd>0.8000</vAliqProd><vPIS>1.20</vPIS>"
              "</PISOutr></PIS>");
    EXPECT_EQ(escrito(arvore, "det", "PISST"),
              "<PISST><qBCProd>1.5000</qBCProd><vAliqProd>0.8000</vAliqProd><vPIS>1.20</vPIS></PISST>");
    EXPECT_EQ(escrito(arvore, "det", "COFINS"),
              "<COFINS><COFINSOutr><CST>99</CST><qBCProd>1.50</qBCProd><vAliqProd>3.6000</vAliqProd>"
              "<vCOFINS>5.40</vCOFINS></COFINSOutr></COFINS>");
    EXPECT_EQ(escrito(arvore, "det", "COFINSST"),
              "<COFINSST><qBCProd>1.50</qBCProd><vAliqProd>3.6000</vAliqProd></COFINSST>");
}

TEST(escrever_outras_fontes, quantity_groups_and_substitution_by_rate)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    grupo::imposto& imposto = imposto_do_primeiro_item(arvore);
    imposto.PIS = grupo::PISQtde{3, valor("1000"), valor("0.1"), valor("100")};
    imposto.PISST = grupo::PISST{grupo::PIS_aliquota{valor("100"), valor("1.65")}, valor("1.65")};
    imposto.COFINS = grupo::COFINSQtde{3, valor("1000"), valor("0.5"), valor("500")};
    imposto.COFINSST = grupo::COFINSST{grupo::COFINS_aliquota{valor("100"), valor("7.6")}, valor("7.6")};

    EXPECT_EQ(escrito(arvore, "det", "PIS"),
              "<PIS><PISQtde><CST>03</CST><qBCProd>1000.0000</qBCProd><vAliqProd>0.1000</vAliqProd>"
              "<vPIS>100.00</vPIS></PISQtde></PIS>");
    EXPECT_EQ(escrito(arvore, "det", "PISST"), "<PISST><vBC>100.00</vBC><pPIS>1.6500</pPIS><vPIS>1.65</vPIS></PISST>");
    EXPECT_EQ(escrito(arvore, "det", "COFINS"),
              "<COFINS><COFINSQtde><CST>03</CST><qBCProd>1000.0000</qBCProd><vAliqProd>0.5000</vAliqProd>"
              "<vCOFINS>500.00</vCOFINS></COFINSQtde></COFINS>");
    EXPECT_EQ(escrito(arvore, "det", "COFINSST"),
              "<COFINSST><vBC>100.00</vBC><pCOFINS>7.6000</pCOFINS><vCOFINS>7.60</vCOFINS></COFINSST>");
}

TEST(escrever_outras_fontes, shared_icms)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    imposto_do_primeiro_item(arvore).ICMS_ou_ISSQN = grupo::ICMS{grupo::ICMSPart{
        .orig = 0, .CST = 10, .modBC = 3, .vBC = valor("100"), .pRedBC = {}, .pICMS = valor("12"), .vICMS = valor("12"),
        .modBCST = 4, .pMVAST = {}, .pRedBCST = {}, .vBCST = valor("140"), .pICMSST = valor("18"),
        .vICMSST = valor("13.2"), .pBCOp = valor("100"), .UFST = 35}};
    EXPECT_EQ(escrito(arvore, "det", "ICMS"),
              "<ICMS><ICMSPart><orig>0</orig><CST>10</CST><modBC>3</modBC><vBC>100.00</vBC><pICMS>12.0000</pICMS>"
              "<vICMS>12.00</vICMS><modBCST>4</modBCST><vBCST>140.00</vBCST><pICMSST>18.0000</pICMSST>"
              "<vICMSST>13.20</vICMSST><pBCOp>100.0000</pBCOp><UFST>35</UFST></ICMSPart></ICMS>");
}

TEST(escrever_outras_fontes, transport_with_withheld_icms_trailers_ferry_and_seals)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    arvore.transp.retTransp = grupo::retTransp{valor("300"), valor("300"), valor("12"), valor("36"), 5352, 3509502};
    arvore.transp.veicTransp.reset();
    arvore.transp.reboque = {grupo::veicTransp{"ABC1D23", "SP", {}}};
    arvore.transp.balsa = "BALSA RIO NEGRO 7";
    arvore.transp.vol.at(0).lacres = {grupo::lacres{"L-001"}, grupo::lacres{"L-002"}};
    std::string const transp = velk::test::grupo(documento_de(arvore), "transp");
    EXPECT_NE(transp.find("</transporta><retTransp><vServ>300.00</vServ><vBCRet>300.00</vBCRet>"
                          "<pICMSRet>12.0000</pICMSRet><vICMSRet>36.00</vICMSRet><CFOP>5352</CFOP>"
                          "<cMunFG>3509502</cMunFG></retTransp><reboque><placa>ABC1D23</placa><UF>SP</UF></reboque>"
                          "<balsa>BALSA RIO NEGRO 7</balsa><vol>"),
              std::string::npos)
        << transp;
    EXPECT_NE(transp.find("<pesoB>41.200</pesoB><lacres><nLacre>L-001</nLacre></lacres><lacres><nLacre>L-002"
                          "</nLacre></lacres></vol>"),
              std::string::npos)
        << transp;
}

TEST(escrever_outras_fontes, purchase_and_sugar_cane)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    arvore.compra = grupo::compra{"NE 2024/0042", "4500012345", {}};
    arvore.cana = grupo::cana{.safra = "2024/2025", .ref = "05/2024",
                              .forDia = {grupo::forDia{1, valor("12.5")}, grupo::forDia{2, valor("10")}},
                              .qTotMes = valor("22.5"), .qTotAnt = valor("100"), .qTotGer = valor("122.5"),
                              .deduc = {grupo::deduc{"FUNRURAL", valor("15.3")}}, .vFor = valor("2250"),
                              .vTotDed = valor("15.3"), .vLiqFor = valor("2234.7")};
    velk::xml::document const documento = documento_de(arvore);
    EXPECT_EQ(velk::test::grupo(documento, "compra"),
              "<compra><xNEmp>NE 2024/0042</xNEmp><xPed>4500012345</xPed></compra>");
    EXPECT_EQ(velk::test::grupo(documento, "cana"),
              "<cana><safra>2024/2025</safra><ref>05/2024</ref><forDia dia=\"1\"><qtde>12.5000000000</qtde></forDia>"
              "<forDia dia=\"2\"><qtde>10.0000000000</qtde></forDia><qTotMes>22.5000000000</qTotMes>"
              "<qTotAnt>100.0000000000</qTotAnt><qTotGer>122.5000000000</qTotGer><deduc><xDed>FUNRURAL</xDed>"
              "<vDed>15.30</vDed></deduc><vFor>2250.00</vFor><vTotDed>15.30</vTotDed><vLiqFor>2234.70</vLiqFor>"
              "</cana>");
}

}  // namespace

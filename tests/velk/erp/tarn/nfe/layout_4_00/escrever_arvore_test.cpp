// The writer on its own: members that only other sources fill, and values
// that have no text form.

#include "layout_teste.hpp"

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

namespace layout = velk::erp::tarn::nfe::layout_4_00;
using velk::core::result::stack;
using velk::test::arvore_de;

// The first group of that name in the tree's document.
std::string escrito(layout::layout_4_00 const& arvore, std::string const& tag)
{
    return velk::test::grupos(velk::test::documento_de(arvore), tag).at(0);
}

TEST(escrever_arvore, a_pick_up_place_holds_its_state_registration_as_a_number)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfce_simples());
    arvore.retirada = layout::grupo::retirada{
        .documento = layout::grupo::CPF{1234567890}, .xNome = "Sítio Boa Vista", .xLgr = "Estrada Municipal",
        .nro = "S/N", .xCpl = {}, .xBairro = "Zona Rural", .cMun = 3509502, .xMun = "Campinas", .UF = "SP",
        .CEP = 13100000, .cPais = {}, .xPais = {}, .fone = 19987654321, .email = {}, .IE = 244680170119};
    EXPECT_EQ(escrito(arvore, "retirada"),
              "<retirada><CPF>01234567890</CPF><xNome>Sítio Boa Vista</xNome><xLgr>Estrada Municipal</xLgr>"
              "<nro>S/N</nro><xBairro>Zona Rural</xBairro><cMun>3509502</cMun><xMun>Campinas</xMun><UF>SP</UF>"
              "<CEP>13100000</CEP><fone>19987654321</fone><IE>244680170119</IE></retirada>");
}

TEST(escrever_arvore, a_new_vehicle_is_written_in_the_order_of_its_group)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfce_simples());
    arvore.det[0].prod.especifico = layout::grupo::veicProd{
        .tpOp = 1, .chassi = "9BWZZZ377VT004251", .cCor = "01", .xCor = "BRANCO", .pot = "116", .cilin = "1598",
        .pesoL = velk::test::valor("1085"), .pesoB = velk::test::valor("1110.5"), .nSerie = "004251", .tpComb = "16",
        .nMotor = "CWS123456", .CMT = velk::test::valor("1.5"), .dist = "2470", .anoMod = 2025, .anoFab = 2024,
        .tpPint = "S", .tpVeic = 6, .espVeic = 1, .VIN = "N", .condVeic = 1, .cMod = 123456, .cCorDENATRAN = 11,
        .lota = 5, .tpRest = 0};
    std::string const det = escrito(arvore, "det");
    EXPECT_EQ(det.substr(det.find("<veicProd>"), det.find("<imposto>") - det.find("<veicProd>")),
              "<veicProd><tpOp>1</tpOp><chassi>9BWZZZ377VT004251</chassi><cCor>01</cCor><xCor>BRANCO</xCor>"
              "<pot>116</pot><cilin>1598</cilin><pesoL>1085.0000</pesoL><pesoB>1110.5000</pesoB>"
              "<nSerie>004251</nSerie><tpComb>16</tpComb><nMotor>CWS123456</nMotor><CMT>1.5000</CMT>"
              "<dist>2470</dist><anoMod>2025</anoMod><anoFab>2024</anoFab><tpPint>S</tpPint><tpVeic>6</tpVeic>"
              "<espVeic>1</espVeic><VIN>N</VIN><condVeic>1</condVeic><cMod>123456</cMod>"
              "<cCorDENATRAN>11</cCorDENATRAN><lota>5</lota><tpRest>0</tpRest></veicProd></prod>");
}

TEST(escrever_arvore, writes_the_alternatives_that_only_other_sources_choose)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    arvore.det[0].prod.especifico = layout::grupo::nRECOPI{"20240514123456789012"};
    arvore.ide.NFref = {layout::grupo::refCTe{"35240512345678000195570010000012341000012345"}};
    arvore.autXML = {layout::grupo::idEstrangeiro{"P1234567"}};
    arvore.entrega->documento = layout::grupo::idEstrangeiro{"EX-998877"};

    std::string const det = escrito(arvore, "det");
    EXPECT_NE(det.find("<nItemPed>10</nItemPed><rastro>"), std::string::npos);
    EXPECT_NE(det.find("</rastro><nRECOPI>20240514123456789012</nRECOPI></prod>"), std::string::npos) << det;
    EXPECT_NE(escrito(arvore, "ide").find(
                  "<NFref><refCTe>35240512345678000195570010000012341000012345</refCTe></NFref></ide>"),
              std::string::npos);
    EXPECT_EQ(escrito(arvore, "autXML"), "<autXML><idEstrangeiro>P1234567</idEstrangeiro></autXML>");
    EXPECT_EQ(escrito(arvore, "entrega").rfind("<entrega><idEstrangeiro>EX-998877</idEstrangeiro><xLgr>", 0), 0u);
}

struct data_invalida {
    char const* tag;
    void (*estragar)(layout::layout_4_00&);
};

class escrever_sem_texto : public testing::TestWithParam<data_invalida> {};

TEST_P(escrever_sem_texto, gives_the_converters_failure_and_the_tag_and_no_document)
{
    layout::layout_4_00 arvore = arvore_de(velk::test::nota_nfe_completa());
    GetParam().estragar(arvore);

    stack report;
    velk::xml::document const documento = layout::escrever_layout_4_00(arvore, report);
    EXPECT_EQ(documento.get_root_element(), nullptr);
    ASSERT_EQ(report.size(), 2u) << report.to_string();
    EXPECT_STREQ(report.begin()->get_category().get_name(), "core-converter");
    EXPECT_EQ(report.begin()->get_value(), 2);
    EXPECT_STREQ(report.top().get_category().get_name(), "erp-tarn-sefaz-data");
    EXPECT_EQ(report.top().get_value(), 10);
    ASSERT_NE(report.top().find_argument("element-name"), nullptr);
    EXPECT_EQ(*report.top().find_argument("element-name"), GetParam().tag);
}

INSTANTIATE_TEST_SUITE_P(
    datas, escrever_sem_texto,
    testing::Values(data_invalida{"dhEmi", [](layout::layout_4_00& a) { a.ide.dhEmi = {}; }},
                    data_invalida{"dhSaiEnt",
                                  [](layout::layout_4_00& a) {
                                      a.ide.dhSaiEnt = velk::core::datetime(velk::core::date(31, 2, 2024),
                                                                            velk::core::time(10, 0, 0, 0), -180);
                                  }},
                    data_invalida{"dVal", [](layout::layout_4_00& a) { a.det[0].prod.rastro[0].dVal = {}; }},
                    data_invalida{"dDI", [](layout::layout_4_00& a) { a.det[1].prod.DI[0].dDI = {}; }}));

}  // namespace

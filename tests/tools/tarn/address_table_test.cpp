// The calls tarn makes from the installed address table and QR code pages.
#include "tarn_authority.hpp"

#include <tarn/address_table.hpp>
#include <tarn/qrcode_pages.hpp>

#include <gtest/gtest.h>

namespace {

using namespace velk::tools::tarn;
using velk::erp::estado;
using velk::erp::tarn::ambiente;
using velk::erp::tarn::modelo;
using velk::erp::tarn::nfe::versao;

TEST(address_table, the_authorizer_of_each_state_and_model)
{
    address_table table;
    std::string error;
    ASSERT_TRUE(table.load(velk::test::tarn_data() / "sefaz-webservices.json", error)) << error;
    struct row {
        web_service service;
        estado uf;
        modelo model;
        ambiente environment;
        char const* endpoint;
        char const* action;
    } const rows[] = {
        {web_service::status, estado::sp, modelo::nfce, ambiente::homologacao,
         "https://homologacao.nfce.fazenda.sp.gov.br/ws/NFeStatusServico4.asmx",
         "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4/nfeStatusServicoNF"},
        {web_service::autorizacao, estado::sp, modelo::nfe, ambiente::producao,
         "https://nfe.fazenda.sp.gov.br/ws/nfeautorizacao4.asmx",
         "http://www.portalfiscal.inf.br/nfe/wsdl/NFeAutorizacao4/nfeAutorizacaoLote"},
        // BA issues its NF-e itself and its NFC-e through SVRS.
        {web_service::recepcao_evento, estado::ba, modelo::nfce, ambiente::homologacao,
         "https://nfce-homologacao.svrs.rs.gov.br/ws/recepcaoevento/recepcaoevento4.asmx",
         "http://www.portalfiscal.inf.br/nfe/wsdl/NFeRecepcaoEvento4/nfeRecepcaoEvento"},
        // The GTIN catalogue answers for every state, in production only.
        {web_service::consulta_gtin, estado::ac, modelo::nfe, ambiente::homologacao,
         "https://dfe-servico.svrs.rs.gov.br/ws/ccgConsGTIN/ccgConsGTIN.asmx",
         "http://www.portalfiscal.inf.br/nfe/wsdl/ccgConsGtin/ccgConsGTIN"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.endpoint);
        velk::erp::tarn::nfe::web_server_info info;
        ASSERT_TRUE(table.locate(each.service, each.uf, each.model, each.environment, info, error)) << error;
        EXPECT_EQ(info.get_endpoint_url(), each.endpoint);
        EXPECT_EQ(info.get_action_url(), each.action);
        EXPECT_EQ(info.get_action_url().rfind(info.get_namespace_url() + "/", 0), 0u);
        EXPECT_EQ(info.get_namespace_header(), "") << "layout 4.00 sends no nfeCabecMsg";
    }
}

TEST(qrcode_pages, by_state_environment_and_layout)
{
    qrcode_pages pages;
    std::string error;
    ASSERT_TRUE(pages.load(velk::test::tarn_data() / "nfce-qrcode.json", error)) << error;
    EXPECT_EQ(pages.page(estado::sp, ambiente::homologacao, versao::versao_4_00, error),
              "https://www.homologacao.nfce.fazenda.sp.gov.br/NFCeConsultaPublica/Paginas/ConsultaQRCode.aspx?");
    EXPECT_EQ(pages.page(estado::es, ambiente::producao, versao::versao_4_00, error),
              "http://app.sefaz.es.gov.br/ConsultaNFCe/");
    EXPECT_NE(pages.page(estado::pr, ambiente::producao, versao::versao_3_10, error),
              pages.page(estado::pr, ambiente::producao, versao::versao_4_00, error));
    EXPECT_EQ(pages.page(estado::ma, ambiente::homologacao, versao::versao_4_00, error), "");
    EXPECT_NE(error.find("MA em homologação"), std::string::npos) << error;
}

}  // namespace

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_autorizacao.hpp>

#include "../../documentos_teste.hpp"

#include <support/files.hpp>
#include <support/report.hpp>
#include <support/schema.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace velk::erp::tarn;
using nfe::sefaz_data::requisicao::documento_fiscal;
using nfe::sefaz_data::requisicao::lote_autorizacao;
using velk::core::result::stack;
using velk::test::report_line;

chave_acesso key_of(std::string const& text)
{
    chave_acesso value;
    velk::core::value_converter<chave_acesso>::make_value(value, text.data(), text.size());
    return value;
}

lote_autorizacao lote_4_00()
{
    lote_autorizacao lote;
    lote.set_versao(nfe::versao::versao_4_00);
    return lote;
}

TEST(lote_autorizacao, writes_only_what_the_layout_admits)
{
    lote_autorizacao lote;
    EXPECT_TRUE(lote.get_indicador_sincrono());
    EXPECT_EQ(lote.get_versao(), nfe::versao::versao_3_10);
    EXPECT_EQ(lote.get_id(), 0u);
    stack s;
    lote.get_xml(s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 7") << "an enviNFe holds one document at least";

    lote = lote_4_00();
    s.reset();
    documento_fiscal const nfce = velk::test::documento_assinado(velk::test::nota_nfce_simples());
    lote.append_documento_fiscal(nfce, s);
    lote.set_indicador_sincrono(false);
    std::string const written = velk::test::element_text(lote.get_xml(s));
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(written.substr(0, written.find("<NFe")),
              "<enviNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\"><idLote>0</idLote>"
              "<indSinc>0</indSinc>");

    struct row {
        char const* caso;
        unsigned long long id;
        std::size_t documentos;
        nfe::versao versao_layout;
        std::string report;
    } const rows[] = {
        {"identifier of 15 digits", 999999999999999ULL, 50, nfe::versao::versao_4_00, ""},
        {"identifier of 16 digits", 1000000000000000ULL, 1, nfe::versao::versao_4_00,
         "core-converter 2 / erp-tarn-sefaz-data 9 request-name=lote_autorizacao field-name=id_lote"},
        {"51 documents", 1, 51, nfe::versao::versao_4_00,
         "erp-tarn-sefaz-data 9 request-name=lote_autorizacao field-name=documentos"},
        {"version without text", 1, 1, static_cast<nfe::versao>(8),
         "core-converter 2 / erp-tarn-sefaz-data 9 request-name=lote_autorizacao field-name=versao"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.caso);
        lote_autorizacao cheio = lote_4_00();
        stack r;
        for (std::size_t count = 0; count < each.documentos; ++count) {
            cheio.append_documento_fiscal(nfce, r);
        }
        cheio.set_id(each.id);
        cheio.set_versao(each.versao_layout);
        cheio.get_xml(r);
        EXPECT_EQ(report_line(r), each.report);
    }
}

TEST(lote_autorizacao, signed_documents_go_out_as_they_were_signed)
{
    documento_fiscal const nfce = velk::test::documento_assinado(velk::test::nota_nfce_simples());
    documento_fiscal const nfe = velk::test::documento_assinado(velk::test::nota_nfe_completa());
    lote_autorizacao lote = lote_4_00();
    lote.set_id(202405140001);
    stack s;
    lote.append_documento_fiscal(nfce, s);
    lote.append_documento_fiscal(velk::test::document_of(nfe.get_xml()), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();

    std::string const text = velk::test::saved_text(lote.get_xml(s));
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / "enviNFe_v4.00.xsd",
                                                  velk::core::byte_array(text)),
              std::vector<std::string>());
    velk::xml::element const enviado = velk::test::parse_element(text);
    EXPECT_EQ(velk::test::child_element_names(enviado),
              (std::vector<std::string>{"idLote", "indSinc", "NFe", "NFe"}));
    // Each document, taken out of the batch, still carries a good signature.
    for (velk::xml::node const& child : enviado.get_node_range()) {
        if (child.as_element() != nullptr && child.as_element()->get_name() == "NFe") {
            auto const verified = velk::test::xmlsec_verify(velk::test::saved_text(*child.as_element()),
                                                            "http://www.portalfiscal.inf.br/nfe:infNFe",
                                                            velk::test::test_certificates::instance().ca_pem());
            EXPECT_TRUE(verified.success) << verified.output;
        }
    }

    documento_fiscal const primeiro = lote.get_primeiro_documento(s);
    EXPECT_EQ(primeiro.get_modelo(), modelo::nfce);
    documento_fiscal const achado = lote.get_documento_fiscal(nfe.get_chave_acesso(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(achado.get_digest_value(), nfe.get_digest_value());
}

TEST(lote_autorizacao, documents_come_in_only_in_the_batch_version)
{
    lote_autorizacao lote;  // left at 3.10
    stack s;
    lote.append_documento_fiscal(velk::test::documento_assinado(velk::test::nota_nfce_simples()), s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 6");
    EXPECT_STREQ(s.top().get_message(), "A versão informada difere da versão esperada");
    s.reset();
    lote.get_primeiro_documento(s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 7") << "nothing was appended";

    // A note is generated in the batch's version, without signature: 3.10
    // here, 4.00 in a batch of 4.00.
    s.reset();
    lote.append_documento_fiscal(velk::test::nota_nfce_simples(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(lote.get_primeiro_documento(s).get_versao(), velk::erp::tarn::nfe::versao::versao_3_10);
    lote_autorizacao nova = lote_4_00();
    nova.append_documento_fiscal(velk::test::nota_nfe_completa(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::child_element_names(nova.get_primeiro_documento(s).get_xml()),
              (std::vector<std::string>{"infNFe"}));

    // A tree that is no document is refused by the reading.
    nova.append_documento_fiscal(velk::test::parse_or_fail("<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"/>"), s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 1 element-name=NFe/infNFe");
}

TEST(lote_autorizacao, looking_a_document_up_by_its_key)
{
    documento_fiscal const nfce = velk::test::documento_assinado(velk::test::nota_nfce_simples());
    stack s;
    lote_autorizacao lote = lote_4_00();
    lote.append_documento_fiscal(nfce, s);
    ASSERT_FALSE(s.has_failed());

    chave_acesso const outra = key_of("35240511222333000181550010000000011000000010");
    lote.get_documento_fiscal(outra, s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 7");

    chave_acesso::data campos;
    campos.cnpj = "11222333000181";
    campos.serie = 1000;
    s.reset();
    lote.get_documento_fiscal(chave_acesso(std::move(campos)), s);
    EXPECT_EQ(report_line(s),
              "core-converter 2 / erp-tarn-sefaz-data 9 request-name=lote_autorizacao field-name=chave_acesso");
}

}  // namespace

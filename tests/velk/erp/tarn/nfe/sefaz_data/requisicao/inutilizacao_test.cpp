#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>

#include <support/files.hpp>
#include <support/report.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace velk::erp::tarn;
using velk::core::result::stack;
using velk::erp::estado;
using nfe::sefaz_data::requisicao::inutilizacao;
using velk::test::report_line;

constexpr char id_infinut[] = "http://www.portalfiscal.inf.br/nfe:infInut";

// The range of the examples: numbers 10 to 20 of series 1 of 2024.
struct faixa {
    nfe::versao versao_layout = nfe::versao::versao_4_00;
    ambiente tipo_ambiente = ambiente::homologacao;
    std::string justificativa = "Numeracao pulada por falha do sistema emissor";
    estado uf = estado::sp;
    modelo modelo_documento = modelo::nfe;
    unsigned ano = 24;
    unsigned serie = 1;
    unsigned inicial = 10;
    unsigned final_ = 20;
    unsigned long long cnpj = 191;

    inutilizacao pedir(stack& s) const
    {
        return inutilizacao::from_data(versao_layout, tipo_ambiente, justificativa, uf, modelo_documento, ano, serie,
                                       inicial, final_, cnpj, s);
    }
};

TEST(inutilizacao, writes_the_range_with_its_identifier)
{
    stack s;
    inutilizacao const pedido = faixa{}.pedir(s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::element_text(pedido.get_xml()),
              "<inutNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\">"
              "<infInut Id=\"ID35240000000000019155001000000010000000020\"><tpAmb>2</tpAmb><xServ>INUTILIZAR</xServ>"
              "<cUF>35</cUF><ano>24</ano><CNPJ>00000000000191</CNPJ><mod>55</mod><serie>1</serie>"
              "<nNFIni>10</nNFIni><nNFFin>20</nNFFin><xJust>Numeracao pulada por falha do sistema emissor</xJust>"
              "</infInut></inutNFe>");
    EXPECT_EQ(pedido.get_cnpj(), 191u);
    EXPECT_EQ(pedido.get_serie(), 1u);
    EXPECT_EQ(pedido.get_numero_final(), 20u);
    EXPECT_EQ(pedido.get_modelo(), modelo::nfe);

    // Nothing relates the fields: a backwards range of an NFC-e of
    // production goes out as given.
    faixa estranha;
    estranha.inicial = 999999999;
    estranha.final_ = 1;
    estranha.modelo_documento = modelo::nfce;
    estranha.tipo_ambiente = ambiente::producao;
    estranha.uf = estado::rs;
    estranha.justificativa = "Inutilização ok";  // 15 characters, 17 bytes
    velk::xml::element const outra = estranha.pedir(s).get_xml();
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::string const outra_text = velk::test::element_text(outra);
    EXPECT_NE(outra_text.find("<infInut Id=\"ID43240000000000019165001999999999000000001\"><tpAmb>1</tpAmb>"),
              std::string::npos)
        << outra_text;
}

TEST(inutilizacao, signed_it_passes_the_schema_and_an_independent_verifier)
{
    stack s;
    inutilizacao pedido = faixa{}.pedir(s);
    pedido.assinar(velk::test::taxpayer_pkcs12(), s);
    pedido.assinar(velk::test::taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::child_element_names(pedido.get_xml()),
              (std::vector<std::string>{"infInut", "Signature"}))
        << "signing again replaces the signature";
    std::string const text = velk::test::saved_text(pedido.get_xml());
    EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / "inutNFe_v4.00.xsd",
                                                  velk::core::byte_array(text)),
              std::vector<std::string>());
    auto const verified =
        velk::test::xmlsec_verify(text, id_infinut, velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;

    // Read back from its text, it signs again alike.
    inutilizacao relido = inutilizacao::from_xml(velk::test::parse_element(text), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    relido.assinar(velk::test::taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_TRUE(velk::test::xmlsec_verify(velk::test::saved_text(relido.get_xml()), id_infinut,
                                          velk::test::test_certificates::instance().ca_pem())
                    .success);
}

TEST(inutilizacao, a_field_without_text_is_named_and_gives_a_default_request)
{
    struct row {
        char const* caso;
        std::function<void(faixa&)> alterar;
        char const* campo;
    } const rows[] = {
        {"version", [](faixa& f) { f.versao_layout = static_cast<nfe::versao>(7); }, "versao"},
        {"environment", [](faixa& f) { f.tipo_ambiente = static_cast<ambiente>(4); }, "ambiente"},
        {"state", [](faixa& f) { f.uf = static_cast<estado>(99); }, "estado"},
        {"model", [](faixa& f) { f.modelo_documento = static_cast<modelo>(3); }, "modelo"},
        {"series of four digits", [](faixa& f) { f.serie = 1000; }, "serie"},
        {"first number of ten digits", [](faixa& f) { f.inicial = 1000000000; }, "numero_inicial"},
        {"last number of ten digits", [](faixa& f) { f.final_ = 1000000000; }, "numero_final"},
        // What the schema does not admit.
        {"year of three digits", [](faixa& f) { f.ano = 100; }, "ano"},
        {"CNPJ of fifteen digits", [](faixa& f) { f.cnpj = 100000000000000ULL; }, "cnpj"},
        {"first number 0", [](faixa& f) { f.inicial = 0; }, "numero_inicial"},
        {"justification of 14 characters", [](faixa& f) { f.justificativa = "Numero pulado!"; }, "justificativa"},
        {"justification ending in a space", [](faixa& f) { f.justificativa += ' '; }, "justificativa"},
        {"justification with a line break", [](faixa& f) { f.justificativa += "\nlinha"; }, "justificativa"},
        {"justification beyond Latin-1", [](faixa& f) { f.justificativa += " \u20AC"; }, "justificativa"},
        {"justification not UTF-8", [](faixa& f) { f.justificativa += "\xC3"; }, "justificativa"},
        {"justification of 256 characters", [](faixa& f) { f.justificativa = std::string(256, 'x'); },
         "justificativa"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.caso);
        faixa f;
        each.alterar(f);
        stack s;
        inutilizacao const pedido = f.pedir(s);
        EXPECT_EQ(report_line(s), std::string("core-converter 2 / erp-tarn-sefaz-data 9 request-name=inutilizacao "
                                              "field-name=") +
                                      each.campo);
        EXPECT_EQ(pedido.get_xml().get_name(), "");
        EXPECT_EQ(pedido.get_cnpj(), 0u);
    }
}

TEST(inutilizacao, read_from_a_tree_with_each_refusal)
{
    stack s;
    std::string const good = velk::test::saved_text(faixa{}.pedir(s).get_xml());
    inutilizacao const lido = inutilizacao::from_xml(velk::test::parse_element(good), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(lido.get_versao(), nfe::versao::versao_4_00);
    EXPECT_EQ(lido.get_ambiente(), ambiente::homologacao);
    EXPECT_EQ(lido.get_estado(), estado::sp);
    EXPECT_EQ(lido.get_ano(), 24u);
    EXPECT_EQ(lido.get_cnpj(), 191u);
    EXPECT_EQ(lido.get_numero_inicial(), 10u);
    EXPECT_EQ(lido.get_justificativa(), "Numeracao pulada por falha do sistema emissor");

    auto const replaced = [&good](std::string const& from, std::string const& to) {
        std::string text = good;
        text.replace(text.find(from), from.size(), to);
        return text;
    };
    struct row {
        char const* caso;
        std::string text;
        std::string report;
    } const rows[] = {
        {"another root", "<inutCTe versao=\"4.00\"/>", "erp-tarn-sefaz-data 1 element-name=inutNFe"},
        {"no version", replaced(" versao=\"4.00\"", ""), "erp-tarn-sefaz-data 4 attribute-name=inutNFe/versao"},
        {"unknown version", replaced("versao=\"4.00\"", "versao=\"5.00\""),
         "core-converter 2 / erp-tarn-sefaz-data 3 attribute-name=inutNFe/versao attribute-value=5.00"},
        {"no CNPJ", replaced("<CNPJ>00000000000191</CNPJ>", ""),
         "erp-tarn-sefaz-data 1 element-name=inutNFe/infInut/CNPJ"},
        {"model of no document", replaced("<mod>55</mod>", "<mod>57</mod>"),
         "core-converter 2 / erp-tarn-sefaz-data 2 element-name=inutNFe/infInut/mod element-value=57"},
        {"series that is no number", replaced("<serie>1</serie>", "<serie>A</serie>"),
         "core-converter 2 / erp-tarn-sefaz-data 2 element-name=inutNFe/infInut/serie element-value=A"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.caso);
        stack failed;
        inutilizacao::from_xml(velk::test::parse_element(each.text), failed);
        EXPECT_EQ(report_line(failed), each.report);
    }
}

}  // namespace

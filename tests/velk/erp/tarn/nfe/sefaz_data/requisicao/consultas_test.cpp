#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_recibo.hpp>

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/xml_text.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

using namespace velk::erp::tarn;
using namespace velk::erp::tarn::nfe::sefaz_data;
using velk::core::result::stack;

std::string const key_text = "35240611222333000181550010000012341876543210";

chave_acesso key()
{
    chave_acesso value;
    velk::core::value_converter<chave_acesso>::make_value(value, key_text.data(), key_text.size());
    return value;
}

struct query_case {
    char const* name;
    std::function<velk::xml::element(stack&)> xml;
    char const* schema;  // empty where the layouts have no schema for it
    std::string expected;
};

TEST(consultas, write_their_messages_in_order_and_by_the_schemas)
{
    std::string const ns = "xmlns=\"http://www.portalfiscal.inf.br/nfe\"";
    query_case const cases[] = {
        {"consulta 4.00",
         [](stack& s) { return requisicao::consulta::from_data(key(), nfe::versao::versao_4_00, ambiente::homologacao).get_xml(s); },
         "consSitNFe_v4.00.xsd",
         "<consSitNFe " + ns + " versao=\"4.00\"><tpAmb>2</tpAmb><xServ>CONSULTAR</xServ><chNFe>" + key_text +
             "</chNFe></consSitNFe>"},
        {"consulta 3.10",
         [](stack& s) { return requisicao::consulta::from_data(key(), nfe::versao::versao_3_10, ambiente::producao).get_xml(s); },
         "consSitNFe_v3.10.xsd",
         "<consSitNFe " + ns + " versao=\"3.10\"><tpAmb>1</tpAmb><xServ>CONSULTAR</xServ><chNFe>" + key_text +
             "</chNFe></consSitNFe>"},
        {"consulta_recibo 4.00",
         [](stack& s) {
             return requisicao::consulta_recibo::from_data(ambiente::homologacao, nfe::versao::versao_4_00,
                                                           431000012345678ULL, velk::erp::estado::rs, modelo::nfce)
                 .get_xml(s);
         },
         "consReciNFe_v4.00.xsd",
         "<consReciNFe " + ns + " versao=\"4.00\"><tpAmb>2</tpAmb><nRec>431000012345678</nRec></consReciNFe>"},
        {"consulta_recibo 3.10",
         [](stack& s) {
             return requisicao::consulta_recibo::from_data(ambiente::producao, nfe::versao::versao_3_10,
                                                           351000000000001ULL, velk::erp::estado::sp, modelo::nfe)
                 .get_xml(s);
         },
         "consReciNFe_v3.10.xsd",
         "<consReciNFe " + ns + " versao=\"3.10\"><tpAmb>1</tpAmb><nRec>351000000000001</nRec></consReciNFe>"},
        {"consulta_recibo with a short receipt",
         [](stack& s) {
             return requisicao::consulta_recibo::from_data(ambiente::homologacao, nfe::versao::versao_4_00, 12345,
                                                           velk::erp::estado::rs, modelo::nfe)
                 .get_xml(s);
         },
         "", "<consReciNFe " + ns + " versao=\"4.00\"><tpAmb>2</tpAmb><nRec>12345</nRec></consReciNFe>"},
        {"consulta_gtin",
         [](stack& s) { return requisicao::consulta_gtin::from_data("7891000315507").get_xml(s); },
         "consGTIN_v1.00.xsd", "<consGTIN " + ns + " versao=\"1.00\"><GTIN>7891000315507</GTIN></consGTIN>"},
        {"consulta_gtin of nothing", [](stack& s) { return requisicao::consulta_gtin::from_data("").get_xml(s); }, "",
         "<consGTIN " + ns + " versao=\"1.00\"><GTIN></GTIN></consGTIN>"},
    };
    for (query_case const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        velk::xml::element const root = current.xml(s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(velk::test::element_text(root), current.expected);
        if (*current.schema != '\0') {
            auto const problems = velk::test::validate_against_schema(velk::test::schema_dir() / current.schema, root);
            EXPECT_TRUE(problems.empty()) << problems.front();
        }
    }
}

TEST(consultas, attribute_and_namespace_come_in_the_order_of_each_message)
{
    stack s;
    auto const& consulta = requisicao::consulta::from_data(key(), nfe::versao::versao_4_00, ambiente::producao).get_xml(s);
    ASSERT_EQ(consulta.get_attributes().size(), 1U);
    ASSERT_EQ(consulta.get_namespaces().size(), 1U);
    EXPECT_EQ(consulta.get_namespaces().front().get_prefix(), "");
    // The order of the two appends shows where a failure stops: consulta
    // converts and appends versao before it declares the namespace.
    auto const bad = requisicao::consulta::from_data(key(), static_cast<nfe::versao>(9), ambiente::producao).get_xml(s);
    EXPECT_TRUE(bad.get_namespaces().empty());
    s.reset();
    auto const bad_receipt = requisicao::consulta_recibo::from_data(ambiente::producao, static_cast<nfe::versao>(9), 1,
                                                                    velk::erp::estado::sp, modelo::nfe)
                                 .get_xml(s);
    EXPECT_EQ(bad_receipt.get_namespaces().size(), 1U);
    EXPECT_TRUE(bad_receipt.get_attributes().empty());
}

struct failure_case {
    char const* name;
    std::function<velk::xml::element(stack&)> xml;
    char const* request;
    char const* field;
};

// The query of a key made from fields, one of them changed.
velk::xml::element consulta_of_key(void (*change)(chave_acesso::data&), stack& s)
{
    chave_acesso::data fields;
    fields.cnpj = "11222333000181";
    change(fields);
    return requisicao::consulta::from_data(chave_acesso(std::move(fields)), nfe::versao::versao_4_00,
                                           ambiente::producao)
        .get_xml(s);
}

TEST(consultas, a_field_without_text_is_named_on_top_of_the_converter_failure)
{
    auto const invalid_version = static_cast<nfe::versao>(9);
    auto const invalid_environment = static_cast<ambiente>(5);
    failure_case const cases[] = {
        {"consulta, version",
         [&](stack& s) { return requisicao::consulta::from_data(key(), invalid_version, ambiente::producao).get_xml(s); },
         "consulta", "versao"},
        {"consulta, environment",
         [&](stack& s) {
             return requisicao::consulta::from_data(key(), nfe::versao::versao_4_00, invalid_environment).get_xml(s);
         },
         "consulta", "ambiente"},
        {"consulta, key with a wide series",
         [](stack& s) { return consulta_of_key([](chave_acesso::data& d) { d.serie = 1000; }, s); }, "consulta",
         "chave_acesso"},
        {"consulta, key with a check digit of 10",
         [](stack& s) { return consulta_of_key([](chave_acesso::data& d) { d.digito_verificador = 10; }, s); },
         "consulta", "chave_acesso"},
        {"consulta_recibo, version",
         [&](stack& s) {
             return requisicao::consulta_recibo::from_data(ambiente::producao, invalid_version, 1, velk::erp::estado::sp,
                                                           modelo::nfe)
                 .get_xml(s);
         },
         "consulta_recibo", "versão"},
        {"consulta_recibo, environment",
         [&](stack& s) {
             return requisicao::consulta_recibo::from_data(invalid_environment, nfe::versao::versao_4_00, 1,
                                                           velk::erp::estado::sp, modelo::nfe)
                 .get_xml(s);
         },
         "consulta_recibo", "ambiente"},
    };
    for (failure_case const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        current.xml(s);
        ASSERT_EQ(s.size(), 2U) << s.to_string();
        EXPECT_EQ(&s.begin()->get_category(), &velk::core::converter_result_category::instance());
        EXPECT_EQ(s.begin()->get_value(), 2);
        EXPECT_EQ(&s.get_category(), &result_category::instance());
        EXPECT_EQ(s.get_value(), 9);
        EXPECT_EQ(*s.top().find_argument("request-name"), current.request);
        EXPECT_EQ(*s.top().find_argument("field-name"), current.field);
    }
}

TEST(consultas, the_catalogue_version_has_one_text)
{
    using velk::erp::tarn::nfe::sefaz_data::detail::versao_layout_consulta_gtin;
    using converter = velk::core::chars_converter<versao_layout_consulta_gtin>;
    char buffer[8];
    unsigned long size = 3;
    EXPECT_EQ(converter::make_chars(buffer, size, versao_layout_consulta_gtin::versao_1_00),
              velk::core::converter_status::buffer_too_small);
    EXPECT_EQ(size, 4U);
    size = sizeof buffer;
    EXPECT_EQ(converter::make_chars(buffer, size, static_cast<versao_layout_consulta_gtin>(1)),
              velk::core::converter_status::invalid_value);

    versao_layout_consulta_gtin read = versao_layout_consulta_gtin::versao_1_00;
    for (std::string const text : {"1.0", "1.00 ", "4.00", ""}) {
        EXPECT_EQ(velk::core::value_converter<versao_layout_consulta_gtin>::make_value(read, text.data(), text.size()),
                  velk::core::converter_status::invalid_value)
            << text;
    }
    EXPECT_EQ(velk::core::value_converter<versao_layout_consulta_gtin>::make_value(read, "1.00", 4),
              velk::core::converter_status::done);

    auto gtin = requisicao::consulta_gtin::from_data("789");
    EXPECT_EQ(gtin.get_versao(), versao_layout_consulta_gtin::versao_1_00);
    gtin.set_gtin("7891000315507");
    auto const copy = gtin;
    EXPECT_EQ(copy.get_gtin(), "7891000315507");
}

}  // namespace

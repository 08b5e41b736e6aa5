#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/detail/soap/envelope.hpp>
#include <velk/erp/tarn/detail/soap/make_message.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

namespace soap = velk::erp::tarn::detail::soap;
namespace nfe = velk::erp::tarn::nfe;
using velk::core::byte_array;
using velk::core::result::stack;

constexpr char service_namespace[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4";
constexpr char status_request[] = R"(<consStatServ xmlns="http://www.portalfiscal.inf.br/nfe" versao="4.00">)"
                                  "<tpAmb>2</tpAmb><cUF>43</cUF><xServ>STATUS</xServ></consStatServ>";

velk::xml::document status_document()
{
    nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(nfe::versao::versao_4_00);
    request.set_estado(velk::erp::estado::rs);
    stack result;
    velk::xml::document document;
    document.append_node(request.get_xml(result), result);
    EXPECT_FALSE(result.has_failed()) << result.to_string();
    return document;
}

std::string envelope_of(soap::message const& request)
{
    stack result;
    std::string const text = soap::write_envelope(request, result).to_string();
    EXPECT_FALSE(result.has_failed()) << result.to_string();
    return text;
}

TEST(soap_envelope, bytes_for_each_prefix_and_header_form)
{
    std::string const frame_start = R"(<soap:Envelope xmlns:soap="http://www.w3.org/2003/05/soap-envelope" )";
    std::string const body_end = "</soap:Body></soap:Envelope>";
    struct row {
        char const* prefix;
        char const* header_form;
        std::string expected;
    };
    row const rows[] = {
        {"", "sem_namespace",
         frame_start + "xmlns=\"" + service_namespace +
             "\"><soap:Header><nfeCabecMsg><cUF>RS</cUF><versaoDados>4.00</versaoDados></nfeCabecMsg>"
             "</soap:Header><soap:Body><nfeDadosMsg>" + status_request + "</nfeDadosMsg>" + body_end},
        // Without a prefix both forms write the same tags.
        {"", "com_namespace",
         frame_start + "xmlns=\"" + service_namespace +
             "\"><soap:Header><nfeCabecMsg><cUF>RS</cUF><versaoDados>4.00</versaoDados></nfeCabecMsg>"
             "</soap:Header><soap:Body><nfeDadosMsg>" + status_request + "</nfeDadosMsg>" + body_end},
        {"nfe", "com_namespace",
         frame_start + "xmlns:nfe=\"" + service_namespace +
             "\"><soap:Header><nfe:nfeCabecMsg><nfe:cUF>RS</nfe:cUF><nfe:versaoDados>4.00</nfe:versaoDados>"
             "</nfe:nfeCabecMsg></soap:Header><soap:Body><nfe:nfeDadosMsg>" + status_request + "</nfe:nfeDadosMsg>" +
             body_end},
        {"nfe", "sem_namespace",
         frame_start + "xmlns:nfe=\"" + service_namespace +
             "\"><soap:Header><nfe:nfeCabecMsg><cUF>RS</cUF><versaoDados>4.00</versaoDados></nfe:nfeCabecMsg>"
             "</soap:Header><soap:Body><nfe:nfeDadosMsg>" + status_request + "</nfe:nfeDadosMsg>" + body_end},
        {"nfe", "",
         frame_start + "xmlns:nfe=\"" + service_namespace + "\"><soap:Body><nfe:nfeDadosMsg>" + status_request +
             "</nfe:nfeDadosMsg>" + body_end},
        {"", "Com_Namespace",
         frame_start + "xmlns=\"" + service_namespace + "\"><soap:Body><nfeDadosMsg>" + status_request +
             "</nfeDadosMsg>" + body_end},
    };
    velk::xml::document const document = status_document();
    for (row const& each : rows) {
        stack result;
        soap::message const request = soap::make_message(document, velk::erp::estado::rs, "4.00", service_namespace,
                                                         each.prefix, each.header_form, result);
        ASSERT_FALSE(result.has_failed()) << result.to_string();
        EXPECT_EQ(envelope_of(request), each.expected) << "prefix '" << each.prefix << "', form '"
                                                        << each.header_form << "'";
    }
}

TEST(soap_envelope, namespaces_in_key_order_and_header_values_as_they_are)
{
    soap::message request;
    request.namespaces = {{"xsi", "urn:x"}, {"", "urn:default"}, {"a", "urn:a"}};
    soap::header_element outer("outer", "a");
    outer.children.emplace_back("empty", "");
    outer.children.emplace_back("raw", "", "1 < 2 & \"3\"");
    request.header.push_back(outer);
    request.header.emplace_back("alone", "", "");
    request.body.emplace_back("vazio", "a");
    EXPECT_EQ(envelope_of(request),
              R"(<soap:Envelope xmlns:soap="http://www.w3.org/2003/05/soap-envelope" xmlns="urn:default" )"
              R"(xmlns:a="urn:a" xmlns:xsi="urn:x"><soap:Header><a:outer><empty /><raw>1 < 2 & "3"</raw></a:outer>)"
              R"(<alone /></soap:Header><soap:Body><a:vazio></a:vazio></soap:Body></soap:Envelope>)");
}

TEST(soap_envelope, a_tree_that_cannot_be_saved_fails_the_envelope)
{
    soap::message request;
    request.body.emplace_back("nfeDadosMsg", "");
    request.body.front().children.emplace_back(velk::xml::element(""));
    stack result;
    EXPECT_TRUE(soap::write_envelope(request, result).empty());
    EXPECT_TRUE(result.has_failed());
}

TEST(soap_envelope, document_without_root_is_servico_code_9)
{
    stack result;
    soap::message const request =
        soap::make_message(velk::xml::document(), velk::erp::estado::sp, "4.00", service_namespace, "",
                           "sem_namespace", result);
    ASSERT_EQ(result.size(), 1u);
    EXPECT_EQ(result.get_category(), nfe::servico_result_category::instance());
    EXPECT_EQ(result.get_value(), 9);
    EXPECT_TRUE(request.body.empty() && request.header.empty() && request.namespaces.empty());
}

TEST(soap_envelope, strip_xml_declaration_of_both_forms_and_the_blanks_after_it)
{
    struct row {
        char const* given;
        char const* expected;
    } const rows[] = {
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a/>", "<a/>"},
        {"<?xml version=\"1.0\"?>\r\n\t <a/> ", "<a/> "},
        {"<?xml version=\"1.0\" encoding=\"UTF-8\"?> \n", ""},
        {"<?xml version=\"1.0\" encoding=\"utf-8\"?><a/>", "<?xml version=\"1.0\" encoding=\"utf-8\"?><a/>"},
        {"<?xml version=\"1.0\"", "<?xml version=\"1.0\""},
        {"  <?xml version=\"1.0\"?><a/>", "  <?xml version=\"1.0\"?><a/>"},
        {"", ""},
    };
    for (row const& each : rows) {
        EXPECT_EQ(soap::strip_xml_declaration(byte_array(each.given)).to_string(), each.expected) << each.given;
    }
}

}  // namespace

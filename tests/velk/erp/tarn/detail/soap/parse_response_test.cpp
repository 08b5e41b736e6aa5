#include <velk/erp/tarn/detail/soap/extract_result_document.hpp>
#include <velk/erp/tarn/detail/soap/parse_response.hpp>
#include <velk/erp/tarn/nfe/processo_recuperar_resposta_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/status_autorizador.hpp>
#include <velk/erp/tarn/nfe/servico_result_category.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <support/files.hpp>

#include <gtest/gtest.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace {

namespace soap = velk::erp::tarn::detail::soap;
namespace nfe = velk::erp::tarn::nfe;
using velk::core::byte_array;
using velk::core::result::stack;
using fault_texts = std::unordered_map<std::string, std::string>;

std::string const envelope_open = R"(<s:Envelope xmlns:s="http://www.w3.org/2003/05/soap-envelope">)";
std::string const envelope_close = "</s:Envelope>";

std::vector<std::string> const status_tags = {"nfeStatusServicoNFResult", "nfeStatusServicoNF2Result",
                                              "nfeResultMsg"};

fault_texts arguments_of(stack const& result)
{
    fault_texts found;
    for (auto const& [name, value] : result.top().get_arguments()) {
        found[name] = value;
    }
    return found;
}

TEST(soap_parse_response, each_refusal_of_the_envelope_with_its_words)
{
    struct row {
        char const* case_name;
        std::string answer;
        std::string description;
    } const rows[] = {
        {"root of another name", "<s:Answer xmlns:s=\"urn:s\"/>", "root-element não é um 'Envelope'"},
        {"two bodies", envelope_open + "<s:Body/><s:Body/>" + envelope_close,
         "Foi encontrado mais de um body na mesma resposta da receita"},
        {"line break between Envelope and Body", envelope_open + "\n<s:Body/>" + envelope_close,
         "Foi encontrado um node inválido na resposta da receita"},
        {"comment in Envelope", envelope_open + "<!-- x --><s:Body/>" + envelope_close,
         "Foi encontrado um node inválido na resposta da receita"},
        {"element other than Header and Body", envelope_open + "<s:Trailer/><s:Body/>" + envelope_close,
         "Foi encontrado um node inválido na resposta da receita"},
        {"no Body", envelope_open + "<s:Header/>" + envelope_close, "Nenhuma element 'Body' encontrado"},
        {"text in Body", envelope_open + "<s:Body> <r/></s:Body>" + envelope_close,
         "O child node do 'Body' encontrado não é um element válido"},
        {"text in the result tag", envelope_open + "<s:Body><nfeResultMsg>\n<ret/></nfeResultMsg></s:Body>" +
                                       envelope_close,
         "O child node do 'nfeResultMsg' encontrado não é um element válido"},
    };
    for (row const& each : rows) {
        stack result;
        soap::message const answer = soap::parse_response(byte_array(each.answer), result);
        ASSERT_EQ(result.size(), 1u) << each.case_name;
        EXPECT_EQ(result.get_category(), nfe::servico_result_category::instance()) << each.case_name;
        EXPECT_EQ(result.get_value(), 16) << each.case_name;
        EXPECT_EQ(arguments_of(result), (fault_texts{{"description", each.description}, {"soap_message", each.answer}}))
            << each.case_name;
        EXPECT_TRUE(answer.body.empty()) << each.case_name;
    }
}

TEST(soap_parse_response, bytes_that_are_no_xml_chain_over_the_parser)
{
    byte_array const answer("<soap:Envelope><soap:Body>");
    stack result;
    soap::parse_response(answer, result);
    ASSERT_EQ(result.size(), 2u);
    EXPECT_EQ(result.begin()->get_category(), velk::xml::xml_result_category::instance());
    EXPECT_EQ(result.get_value(), 16);
    EXPECT_EQ(arguments_of(result), (fault_texts{{"description", "A receita não respondeu um xml válido"},
                                                 {"soap_message", answer.to_string()}}));
}

TEST(soap_parse_response, header_is_skipped_and_prefixes_dropped)
{
    std::string const text = envelope_open +
                              "<s:Header><h/></s:Header><s:Body><w:nfeResultMsg xmlns:w=\"urn:w\"><a/><b/>"
                              "</w:nfeResultMsg><other/></s:Body>" + envelope_close;
    stack result;
    soap::message const answer = soap::parse_response(byte_array(text), result);
    ASSERT_FALSE(result.has_failed()) << result.to_string();
    ASSERT_EQ(answer.body.size(), 2u);
    EXPECT_EQ(answer.body[0].name, "nfeResultMsg");
    EXPECT_EQ(answer.body[0].prefix, "");
    ASSERT_EQ(answer.body[0].children.size(), 2u);
    EXPECT_EQ(answer.body[0].children[1].get_name(), "b");
    EXPECT_TRUE(answer.body[1].children.empty());
    EXPECT_TRUE(answer.header.empty() && answer.namespaces.empty());
}

TEST(soap_parse_response, soap_faults_of_both_versions_become_arguments)
{
    struct row {
        char const* case_name;
        std::string fault;
        fault_texts expected;
    } const rows[] = {
        {"SOAP 1.2",
         "<s:Fault><s:Code><s:Value>s:Receiver</s:Value><s:Subcode><s:Value>x:Busy</s:Value></s:Subcode></s:Code>"
         "<s:Reason><s:Text xml:lang=\"en\">Busy</s:Text><s:Text xml:lang=\"pt\">Ocupado</s:Text></s:Reason>"
         "<s:Node>urn:node</s:Node><s:Role>urn:role</s:Role><s:Ignored>no</s:Ignored>"
         "<s:Detail><e xmlns=\"urn:e\">caf\xC3\xA9 a\\b\n</e></s:Detail></s:Fault>",
         {{"fault.code.value", "s:Receiver"},
          {"fault.code.subcode.value", "x:Busy"},
          {"fault.reason.text", "Ocupado"},
          {"fault.node", "urn:node"},
          {"fault.role", "urn:role"},
          {"fault.detail", "<s:Detail xmlns:s=\"http://www.w3.org/2003/05/soap-envelope\"><e xmlns=\"urn:e\">"
                           "caf\\xC3\\xA9 a\\\\b\\x0A</e></s:Detail>"}}},
        {"SOAP 1.1",
         "<s:Fault><faultcode>s:Server</faultcode><faultstring><![CDATA[Erro <interno>]]></faultstring>"
         "<faultactor>urn:actor</faultactor><detail><code>42</code></detail></s:Fault>",
         {{"fault.faultcode", "s:Server"},
          {"fault.faultstring", "Erro <interno>"},
          {"fault.faultactor", "urn:actor"},
          {"fault.detail", "<detail><code>42</code></detail>"}}},
        {"empty fault", "<s:Fault/>", {}},
    };
    for (row const& each : rows) {
        std::string const text = envelope_open + "<s:Body>" + each.fault + "</s:Body>" + envelope_close;
        stack result;
        soap::message const answer = soap::parse_response(byte_array(text), result);
        ASSERT_EQ(result.size(), 1u) << each.case_name;
        EXPECT_EQ(result.get_category(), nfe::servico_result_category::instance()) << each.case_name;
        EXPECT_EQ(result.get_value(), 4) << each.case_name;
        EXPECT_EQ(arguments_of(result), each.expected) << each.case_name;
        EXPECT_TRUE(answer.body.empty()) << each.case_name;
    }
}

TEST(soap_extract_result_document, refusals_by_count_and_name)
{
    using processo = nfe::processo_recuperar_resposta_result_category;
    struct row {
        char const* case_name;
        std::string body;
        int code;
        fault_texts expected;
    } const rows[] = {
        {"empty Body", "", 1, {{"numero-de-body-elements", "0"}}},
        {"two result tags", "<nfeResultMsg><r/></nfeResultMsg><nfeResultMsg><r/></nfeResultMsg>", 1,
         {{"numero-de-body-elements", "2"}}},
        {"unexpected tag", "<nfeResultMsgs><r/></nfeResultMsgs>", 2,
         {{"unexpected_element_name", "nfeResultMsgs"},
          {"valid_element_names", "[nfeStatusServicoNFResult, nfeStatusServicoNF2Result, nfeResultMsg]"}}},
        {"no document", "<nfeResultMsg/>", 3, {{"numero-de-child-elements", "0"}}},
        {"two documents", "<nfeResultMsg><a/><b/></nfeResultMsg>", 3, {{"numero-de-child-elements", "2"}}},
    };
    for (row const& each : rows) {
        stack result;
        soap::message const answer =
            soap::parse_response(byte_array(envelope_open + "<s:Body>" + each.body + "</s:Body>" + envelope_close),
                                 result);
        ASSERT_FALSE(result.has_failed()) << each.case_name << result.to_string();
        velk::xml::document const document = soap::extract_result_document(answer, status_tags, result);
        ASSERT_EQ(result.size(), 1u) << each.case_name;
        EXPECT_EQ(result.get_category(), processo::instance()) << each.case_name;
        EXPECT_EQ(result.get_value(), each.code) << each.case_name;
        EXPECT_EQ(arguments_of(result), each.expected) << each.case_name;
        EXPECT_EQ(document.get_root_element(), nullptr) << each.case_name;
    }
}

TEST(soap_samples, status_answer_of_an_authority_reads_to_the_end)
{
    stack result;
    soap::message const answer = soap::parse_response(velk::test::read_bytes(velk::test::sample("soap/retConsStatServ.xml")), result);
    ASSERT_FALSE(result.has_failed()) << result.to_string();
    velk::xml::document const document = soap::extract_result_document(answer, status_tags, result);
    ASSERT_FALSE(result.has_failed()) << result.to_string();
    auto const status = nfe::sefaz_data::resposta::status_autorizador::from_xml(document, result);
    ASSERT_FALSE(result.has_failed()) << result.to_string();
    EXPECT_EQ(status.get_codigo_status(), 107);
    EXPECT_EQ(status.get_motivo(), "Serviço em Operação");
    EXPECT_EQ(status.get_data_recebimento(),
              velk::core::datetime(velk::core::date(31, 5, 2015), velk::core::time(12, 24, 12, 0), -180));
    ASSERT_TRUE(status.get_tempo_medio().has_value());
    EXPECT_EQ(status.get_tempo_medio().value(), 1);
    EXPECT_FALSE(status.get_data_retorno().has_value());
    EXPECT_EQ(status.get_xml().get_name(), "retConsStatServ");
}

TEST(soap_samples, pretty_printed_answers_are_refused)
{
    for (char const* name : {"soap/2017reconsrec.xml", "soap/res_inut.xml"}) {
        stack result;
        soap::parse_response(velk::test::read_bytes(velk::test::sample(name)), result);
        ASSERT_EQ(result.size(), 1u) << name;
        EXPECT_EQ(result.get_value(), 16) << name;
        EXPECT_EQ(*result.top().find_argument("description"), "Foi encontrado um node inválido na resposta da receita")
            << name;
    }
}

}  // namespace

#include "authority_fixture.hpp"

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/assinar_elemento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/xml/node.hpp>

#include <support/files.hpp>
#include <support/partes_de_notas.hpp>
#include <support/notas_fiscais.hpp>
#include <support/schema.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

namespace velk::test {

namespace {

using tools::sefaz_sim::simulator_options;
using tools::sefaz_sim::web_services;

constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";

// The namespace of each service's body, by the root of its message.
std::string const& service_namespace(std::string const& root)
{
    static std::map<std::string, std::string> const namespaces = {
        {"consStatServ", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4"},
        {"enviNFe", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeAutorizacao4"},
        {"consReciNFe", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeRetAutorizacao4"},
        {"consSitNFe", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeConsultaProtocolo4"},
        {"inutNFe", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeInutilizacao4"},
        {"consGTIN", "http://www.portalfiscal.inf.br/nfe/wsdl/ccgConsGtin"},
        {"envEvento", "http://www.portalfiscal.inf.br/nfe/wsdl/NFeRecepcaoEvento4"},
    };
    return namespaces.at(root);
}

xml::element const* first_child_element(xml::element const& parent)
{
    for (xml::node const& child : parent.get_node_range()) {
        if (child.as_element() != nullptr) {
            return child.as_element();
        }
    }
    return nullptr;
}

std::string digits(unsigned value, int width)
{
    char text[16];
    std::snprintf(text, sizeof text, "%0*u", width, value);
    return text;
}

}  // namespace

std::string signed_element(xml::element root, std::string const& id)
{
    core::result::stack stack;
    erp::tarn::nfe::assinar_elemento(root, "#" + id, taxpayer_pkcs12(), stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return element_text(root);
}

std::string sefaz_answer::at(std::initializer_list<std::string_view> path) const
{
    xml::element const* at = &message;
    for (std::string_view const step : path) {
        at = at == nullptr ? nullptr : at->find_child(std::string(step));
    }
    return at == nullptr ? std::string() : at->get_contents();
}

bool sefaz_answer::has(std::initializer_list<std::string_view> path) const
{
    xml::element const* at = &message;
    for (std::string_view const step : path) {
        at = at == nullptr ? nullptr : at->find_child(std::string(step));
    }
    return at != nullptr;
}

int sefaz_answer::status() const
{
    std::string const code = message.get_name() == "retInutNFe" ? at({"infInut", "cStat"}) : at({"cStat"});
    return code.empty() ? -1 : std::stoi(code);
}

test_authority::test_authority(std::vector<std::string> const& options)
{
    std::vector<std::string> words = {"velk-sefaz-sim"};
    for (std::string const& word : sefaz_simulator::pki().server_arguments()) {
        words.push_back(word);
    }
    words.insert(words.end(), {"--schemas", schema_dir().string()});
    words.insert(words.end(), options.begin(), options.end());
    std::vector<char*> argv;
    for (std::string& word : words) {
        argv.push_back(word.data());
    }
    simulator_options parsed;
    std::string error;
    EXPECT_TRUE(simulator_options::parse(static_cast<int>(argv.size()), argv.data(), parsed, error)) << error;
    services_ = std::make_unique<web_services>(parsed);
    EXPECT_TRUE(services_->ready(error)) << error;
}

test_authority::~test_authority() = default;

web_services::reply test_authority::exchange(std::string const& envelope)
{
    return services_->respond("application/soap+xml; charset=utf-8", envelope);
}

sefaz_answer test_authority::ask(std::string const& message)
{
    web_services::reply const reply = exchange(envelope_of(message));
    EXPECT_EQ(reply.http_status, 200) << reply.body;
    sefaz_answer answer;
    answer.envelope = reply.body;
    xml::document const parsed = parse_or_fail(reply.body);
    xml::element const* const body =
        parsed.get_root_element() == nullptr ? nullptr : parsed.get_root_element()->find_child("Body");
    xml::element const* result = body == nullptr ? nullptr : first_child_element(*body);
    if (result != nullptr && result->get_name() != "nfeResultMsg") {
        result = result->find_child("nfeResultMsg");
    }
    xml::element const* const inside = result == nullptr ? nullptr : first_child_element(*result);
    if (inside == nullptr) {
        ADD_FAILURE() << "no message in the answer:\n" << reply.body;
        return answer;
    }
    answer.message = *inside;
    xml::attribute const* const versao = inside->find_attribute("", "versao");
    std::string const schema = inside->get_name() + "_v" + (versao == nullptr ? "" : versao->get_value()) + ".xsd";
    EXPECT_EQ(validate_against_schema(schema_dir() / schema, *inside), std::vector<std::string>()) << reply.body;
    return answer;
}

std::string envelope_of(std::string const& message)
{
    std::string const root = message.substr(1, message.find_first_of(" >") - 1);
    std::string const space = service_namespace(root);
    std::string const body = root == "consGTIN" ? "<ccgConsGTIN xmlns=\"" + space + "\"><nfeDadosMsg>" + message +
                                                      "</nfeDadosMsg></ccgConsGTIN>"
                                                : "<nfeDadosMsg xmlns=\"" + space + "\">" + message + "</nfeDadosMsg>";
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><soap12:Envelope "
           "xmlns:soap12=\"http://www.w3.org/2003/05/soap-envelope\"><soap12:Body>" +
           body + "</soap12:Body></soap12:Envelope>";
}

std::string batch(std::vector<std::string> const& documents, bool synchronous, std::string const& versao)
{
    std::string text = "<enviNFe versao=\"" + versao + "\" xmlns=\"" + nfe_namespace +
                       "\"><idLote>1042</idLote><indSinc>" + (synchronous ? "1" : "0") + "</indSinc>";
    for (std::string const& document : documents) {
        text += document;
    }
    return text + "</enviNFe>";
}

std::string query_by_key(std::string const& key, char const* ambiente)
{
    return std::string("<consSitNFe versao=\"4.00\" xmlns=\"") + nfe_namespace + "\"><tpAmb>" + ambiente +
           "</tpAmb><xServ>CONSULTAR</xServ><chNFe>" + key + "</chNFe></consSitNFe>";
}

std::string receipt_query(std::string const& receipt, char const* ambiente)
{
    return std::string("<consReciNFe versao=\"4.00\" xmlns=\"") + nfe_namespace + "\"><tpAmb>" + ambiente +
           "</tpAmb><nRec>" + receipt + "</nRec></consReciNFe>";
}

std::string gtin_query(std::string const& gtin)
{
    return std::string("<consGTIN versao=\"1.00\" xmlns=\"") + nfe_namespace + "\"><GTIN>" + gtin +
           "</GTIN></consGTIN>";
}

std::string status_query(char const* ambiente)
{
    return std::string("<consStatServ versao=\"4.00\" xmlns=\"") + nfe_namespace + "\"><tpAmb>" + ambiente +
           "</tpAmb><cUF>35</cUF><xServ>STATUS</xServ></consStatServ>";
}

std::string disablement(std::string const& cnpj, unsigned series, unsigned first, unsigned last,
                        char const* ambiente)
{
    std::string const id = "ID3524" + cnpj + "55" + digits(series, 3) + digits(first, 9) + digits(last, 9);
    std::string const text = std::string("<inutNFe versao=\"4.00\" xmlns=\"") + nfe_namespace + "\"><infInut Id=\"" +
                             id + "\"><tpAmb>" + ambiente + "</tpAmb><xServ>INUTILIZAR</xServ><cUF>35</cUF>" +
                             "<ano>24</ano><CNPJ>" + cnpj + "</CNPJ><mod>55</mod><serie>" + std::to_string(series) +
                             "</serie><nNFIni>" + std::to_string(first) + "</nNFIni><nNFFin>" + std::to_string(last) +
                             "</nNFFin><xJust>Numeração pulada por falha no sistema emissor</xJust></infInut>" +
                             "</inutNFe>";
    return signed_element(parse_element(text), id);
}

std::string unsigned_document(erp::fiscal::nota_fiscal const& nota)
{
    core::result::stack stack;
    auto const document = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_nota_fiscal(
        nota, erp::tarn::nfe::versao::versao_4_00, stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return element_text(document.get_xml());
}

std::string signed_document(std::string const& unsigned_text)
{
    return signed_element(parse_element(unsigned_text), "NFe" + key_of(unsigned_text));
}

std::string signed_document(erp::fiscal::nota_fiscal const& nota)
{
    return signed_document(unsigned_document(nota));
}

std::string nfe_number(unsigned number)
{
    return signed_document(renumbered(nota_nfe_completa(), number));
}

std::string nfce_number(unsigned number)
{
    return signed_document(renumbered(nota_nfce_simples(), number));
}

std::string key_of(std::string const& document)
{
    std::size_t const at = document.find("Id=\"NFe");
    return at == std::string::npos ? std::string() : document.substr(at + 7, 44);
}

std::string first_text(std::string const& xml, std::string const& tag)
{
    std::size_t const open = xml.find("<" + tag + ">");
    if (open == std::string::npos) {
        return std::string();
    }
    std::size_t const start = open + tag.size() + 2;
    return xml.substr(start, xml.find("</" + tag + ">", start) - start);
}

std::string replaced(std::string text, std::string const& from, std::string const& to)
{
    std::size_t at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    while (at != std::string::npos) {
        text.replace(at, from.size(), to);
        at = text.find(from, at + to.size());
    }
    return text;
}

}  // namespace velk::test

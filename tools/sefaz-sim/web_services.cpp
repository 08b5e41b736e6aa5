#include "web_services.hpp"

#include "soap_answer.hpp"

namespace velk::tools::sefaz_sim {

namespace {

constexpr char soap_content_type[] = "application/soap+xml; charset=utf-8";

// What --fault wrong-root answers instead: the answer of another service than
// the one asked.
constexpr char query_answer[] =
    "<retConsSitNFe versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
    "<verAplic>VELK-SIM-1.0</verAplic><cStat>217</cStat>"
    "<xMotivo>Rejeição: NF-e não consta na base de dados da SEFAZ</xMotivo><cUF>35</cUF>"
    "<dhRecbto>2024-06-01T10:00:00-03:00</dhRecbto>"
    "<chNFe>35240612345678000195550010000000011000000010</chNFe></retConsSitNFe>";
constexpr char status_answer[] =
    "<retConsStatServ versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
    "<verAplic>VELK-SIM-1.0</verAplic><cStat>107</cStat><xMotivo>Serviço em Operação</xMotivo><cUF>35</cUF>"
    "<dhRecbto>2024-06-01T10:00:00-03:00</dhRecbto><tMed>1</tMed></retConsStatServ>";

// What --fault soap-fault answers: a Receiver fault whose detail carries text
// with accents, as the authorities' .NET servers write it.
constexpr char fault_reason[] = "Serviço temporariamente indisponível";
constexpr char fault_detail[] =
    "<erro xmlns=\"urn:velk:sefaz-sim\"><codigo>999</codigo><descricao>Manutenção programada</descricao></erro>";

}  // namespace

web_services::web_services(simulator_options options)
    : options_(std::move(options)), validator_(options_.schemas), signer_(options_.certificate, options_.key),
      context_{options_, records_, signer_, validator_}, services_(service_handler::all(context_))
{
}

web_services::~web_services() = default;

bool web_services::ready(std::string& problem) const
{
    if (!signer_.valid()) {
        problem = "the server's certificate and key cannot sign answers";
        return false;
    }
    return true;
}

web_services::reply web_services::respond(std::string_view content_type, std::string_view body)
{
    switch (options_.injected) {
    case fault::http_500: return {500, "text/plain", "Internal Server Error", {"HTTP 500"}};
    case fault::malformed:
        return {200, soap_content_type,
                "<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body><nfeResultMsg>",
                {"malformed answer"}};
    case fault::soap_fault:
        return {200, soap_content_type, soap_answer::fault("soap:Receiver", fault_reason, fault_detail),
                {"SOAP fault"}};
    default: break;
    }
    if (content_type.rfind("application/soap+xml", 0) != 0) {
        return {415, "text/plain", "SOAP 1.2 (application/soap+xml) only", {"refused: not SOAP 1.2"}};
    }
    request_envelope::problem problem;
    std::unique_ptr<request_envelope> const envelope = request_envelope::parse(body, problem);
    if (!envelope) {
        return refusal(problem.version_mismatch ? 500 : 400,
                       problem.version_mismatch ? "soap:VersionMismatch" : "soap:Sender", problem.reason);
    }
    std::string const root = envelope->payload_name();
    auto const service = services_.find(root);
    if (service == services_.end()) {
        return refusal(400, "soap:Sender", "Serviço não disponível no simulador: " + root);
    }
    validation const checked = validator_.validate(envelope->payload(), root, envelope->payload_attribute("versao"));
    reply answered{200, soap_content_type, {}, checked.problems};
    std::string message = service->second->answer(*envelope, checked);

    // An operation element around the request has its answer in
    // <operation>Response, with nfeResultMsg inside.
    bool const wrapped = !envelope->operation().empty();
    std::string result_tag = wrapped ? envelope->operation() + "Response" : "nfeResultMsg";
    auto form = soap_answer::layout::compact;
    switch (options_.injected) {
    case fault::wrong_result_tag: result_tag = "nfeRespostaMsg"; break;
    case fault::wrong_root: message = root == "consSitNFe" ? status_answer : query_answer; break;
    case fault::text_node: form = soap_answer::layout::pretty; break;
    case fault::two_bodies: form = soap_answer::layout::two_bodies; break;
    default: break;
    }
    if (wrapped) {
        message = "<nfeResultMsg>" + message + "</nfeResultMsg>";
    }
    answered.body = soap_answer::result(envelope->service_namespace(), result_tag, message, form);
    answered.notes.push_back("answered " + root);
    return answered;
}

web_services::reply web_services::refusal(int http_status, std::string const& code, std::string const& reason) const
{
    return {http_status, soap_content_type, soap_answer::fault(code, reason), {"refused: " + reason}};
}

}  // namespace velk::tools::sefaz_sim

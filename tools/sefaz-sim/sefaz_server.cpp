#include "sefaz_server.hpp"

#include "soap_answer.hpp"

#include <httplib.h>
#include <openssl/ssl.h>
#include <sys/socket.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace velk::tools::sefaz_sim {

namespace {

constexpr char soap_content_type[] = "application/soap+xml; charset=utf-8";

// What --fault wrong-root answers instead: the answer of another service.
constexpr char other_service_answer[] =
    "<retConsSitNFe versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
    "<verAplic>VELK-SIM-1.0</verAplic><cStat>217</cStat>"
    "<xMotivo>Rejeicao: NF-e nao consta na base de dados da SEFAZ</xMotivo><cUF>35</cUF>"
    "<chNFe>35240612345678000195550010000000011000000010</chNFe></retConsSitNFe>";

// What --fault soap-fault answers: a Receiver fault whose detail carries text
// with accents, as the authorities' .NET servers write it.
constexpr char fault_reason[] = "Serviço temporariamente indisponível";
constexpr char fault_detail[] =
    "<erro xmlns=\"urn:velk:sefaz-sim\"><codigo>999</codigo><descricao>Manutenção programada</descricao></erro>";

void log(simulator_options const& options, httplib::Request const& request, char const* what)
{
    if (options.verbose) {
        std::fprintf(stderr, "velk-sefaz-sim: %s %s: %s\n", request.method.c_str(), request.target.c_str(), what);
    }
}

}  // namespace

sefaz_server::sefaz_server(simulator_options options)
    : options_(std::move(options)), validator_(options_.schemas), recorder_(options_.record),
      services_(service_handler::all())
{
}

sefaz_server::~sefaz_server() = default;

int sefaz_server::run()
{
    httplib::SSLServer server(options_.certificate.c_str(), options_.key.c_str(), options_.client_ca.c_str());
    if (!server.is_valid()) {
        std::fprintf(stderr, "velk-sefaz-sim: cannot use the certificate, key or client CA given\n");
        return 1;
    }
    SSL_CTX* const context = server.ssl_context();
    if (options_.tls_max == "1.2") {
        SSL_CTX_set_max_proto_version(context, TLS1_2_VERSION);
    } else if (options_.tls_max == "1.1") {
        // What a client must refuse: OpenSSL offers this only at level 0.
        // No client certificate is asked for: under TLS 1.1 the client
        // would have to sign with MD5 and SHA-1, which its OpenSSL refuses
        // at the default level, so only a server that does not ask gets as
        // far as an exchange with it.
        SSL_CTX_set_security_level(context, 0);
        SSL_CTX_set_min_proto_version(context, TLS1_1_VERSION);
        SSL_CTX_set_max_proto_version(context, TLS1_1_VERSION);
        SSL_CTX_set_cipher_list(context, "AES128-SHA:@SECLEVEL=0");
        SSL_CTX_set_verify(context, SSL_VERIFY_NONE, nullptr);
    }
    server.Post(".*", [this](httplib::Request const& request, httplib::Response& response) {
        handle(request, response);
    });
    int port = options_.port;
    if (port == 0) {
        port = server.bind_to_any_port(options_.host);
    } else if (!server.bind_to_port(options_.host, port)) {
        port = -1;
    }
    if (port <= 0) {
        std::fprintf(stderr, "velk-sefaz-sim: cannot listen on %s port %d\n", options_.host.c_str(), options_.port);
        return 1;
    }
    std::printf("%d\n", port);
    std::fflush(stdout);
    return server.listen_after_bind() ? 0 : 1;
}

void sefaz_server::handle(httplib::Request const& request, httplib::Response& response)
{
    recorder_.record(request);
    if (!options_.redirect_to.empty()) {
        log(options_, request, "redirected");
        response.status = options_.redirect_status;
        response.set_header("Location", options_.redirect_to);
        return;
    }
    switch (options_.injected) {
    case fault::close:
        log(options_, request, "closing without an answer");
        // The socket is shut down under the TLS session: the client reads
        // the end of the connection before any byte of an answer.
        if (request.ssl != nullptr) {
            ::shutdown(SSL_get_fd(request.ssl), SHUT_RDWR);
        }
        return;
    case fault::delay:
        log(options_, request, "waiting before the answer");
        std::this_thread::sleep_for(std::chrono::milliseconds(options_.delay_ms));
        break;
    case fault::http_500:
        log(options_, request, "HTTP 500");
        response.status = 500;
        response.set_content("Internal Server Error", "text/plain");
        return;
    case fault::malformed:
        log(options_, request, "malformed answer");
        response.set_content("<soap:Envelope xmlns:soap=\"http://www.w3.org/2003/05/soap-envelope\"><soap:Body>"
                             "<nfeResultMsg>",
                             soap_content_type);
        return;
    case fault::soap_fault:
        log(options_, request, "SOAP fault");
        response.set_content(soap_answer::fault("soap:Receiver", fault_reason, fault_detail), soap_content_type);
        return;
    default:
        break;
    }
    answer(request, response);
}

void sefaz_server::answer(httplib::Request const& request, httplib::Response& response)
{
    std::string const content_type = request.get_header_value("Content-Type");
    if (content_type.rfind("application/soap+xml", 0) != 0) {
        log(options_, request, "refused: not SOAP 1.2");
        response.status = 415;
        response.set_content("SOAP 1.2 (application/soap+xml) only", "text/plain");
        return;
    }
    request_envelope::problem refusal;
    std::unique_ptr<request_envelope> const envelope = request_envelope::parse(request.body, refusal);
    if (!envelope) {
        log(options_, request, refusal.reason.c_str());
        refuse(response, refusal.version_mismatch ? 500 : 400,
               refusal.version_mismatch ? "soap:VersionMismatch" : "soap:Sender", refusal.reason);
        return;
    }
    std::string const root = envelope->payload_name();
    auto const service = services_.find(root);
    if (service == services_.end()) {
        log(options_, request, "refused: no such service");
        refuse(response, 400, "soap:Sender", "Serviço não disponível no simulador: " + root);
        return;
    }
    validation const checked = validator_.validate(envelope->payload(), root, envelope->payload_attribute("versao"));
    for (std::string const& problem : checked.problems) {
        log(options_, request, problem.c_str());
    }
    std::string message = service->second->answer(*envelope, checked);
    std::string result_tag = "nfeResultMsg";
    auto form = soap_answer::layout::compact;
    switch (options_.injected) {
    case fault::wrong_result_tag: result_tag = "nfeRespostaMsg"; break;
    case fault::wrong_root: message = other_service_answer; break;
    case fault::text_node: form = soap_answer::layout::pretty; break;
    case fault::two_bodies: form = soap_answer::layout::two_bodies; break;
    default: break;
    }
    log(options_, request, "answered");
    response.set_content(soap_answer::result(envelope->service_namespace(), result_tag, message, form),
                         soap_content_type);
}

void sefaz_server::refuse(httplib::Response& response, int http_status, std::string const& code,
                          std::string const& reason) const
{
    response.status = http_status;
    response.set_content(soap_answer::fault(code, reason), soap_content_type);
}

}  // namespace velk::tools::sefaz_sim

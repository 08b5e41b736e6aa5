#include "sefaz_server.hpp"

#include <httplib.h>
#include <openssl/ssl.h>
#include <sys/socket.h>

#include <chrono>
#include <cstdio>
#include <thread>

namespace velk::tools::sefaz_sim {

namespace {

void log(simulator_options const& options, httplib::Request const& request, char const* what)
{
    if (options.verbose) {
        std::fprintf(stderr, "velk-sefaz-sim: %s %s: %s\n", request.method.c_str(), request.target.c_str(), what);
    }
}

}  // namespace

sefaz_server::sefaz_server(simulator_options options)
    : options_(std::move(options)), recorder_(options_.record), services_(options_)
{
}

sefaz_server::~sefaz_server() = default;

int sefaz_server::run()
{
    httplib::SSLServer server(options_.certificate.c_str(), options_.key.c_str(), options_.client_ca.c_str());
    std::string problem;
    if (!server.is_valid() || !services_.ready(problem)) {
        std::fprintf(stderr, "velk-sefaz-sim: cannot use the certificate, key or client CA given%s%s\n",
                     problem.empty() ? "" : ": ", problem.c_str());
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
    if (options_.injected == fault::close) {
        log(options_, request, "closing without an answer");
        // The socket is shut down under the TLS session: the client reads
        // the end of the connection before any byte of an answer.
        if (request.ssl != nullptr) {
            ::shutdown(SSL_get_fd(request.ssl), SHUT_RDWR);
        }
        return;
    }
    if (options_.injected == fault::delay) {
        log(options_, request, "waiting before the answer");
        std::this_thread::sleep_for(std::chrono::milliseconds(options_.delay_ms));
    }
    web_services::reply const reply = services_.respond(request.get_header_value("Content-Type"), request.body);
    for (std::string const& note : reply.notes) {
        log(options_, request, note.c_str());
    }
    response.status = reply.http_status;
    response.set_content(reply.body, reply.content_type);
}

}  // namespace velk::tools::sefaz_sim

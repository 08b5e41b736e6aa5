#pragma once

#include "exchange_recorder.hpp"
#include "schema_validator.hpp"
#include "service_handler.hpp"
#include "simulator_options.hpp"

#include <map>
#include <memory>
#include <string>

namespace httplib {
struct Request;
struct Response;
}  // namespace httplib

namespace velk::tools::sefaz_sim {

// The HTTPS server: mutual TLS, one POST per request, the injected fault or
// the answer of the service that the message's root chooses.
class sefaz_server {
public:
    explicit sefaz_server(simulator_options options);
    ~sefaz_server();

    // Listens, prints the port on stdout, and serves until the process is
    // ended. Returns the exit status when it cannot start.
    int run();

private:
    void handle(httplib::Request const& request, httplib::Response& response);
    // The answer when no fault comes before the services.
    void answer(httplib::Request const& request, httplib::Response& response);
    void refuse(httplib::Response& response, int http_status, std::string const& code,
                std::string const& reason) const;

    simulator_options options_;
    schema_validator validator_;
    exchange_recorder recorder_;
    std::map<std::string, std::unique_ptr<service_handler>, std::less<>> services_;
};

}  // namespace velk::tools::sefaz_sim

#pragma once

#include "exchange_recorder.hpp"
#include "simulator_options.hpp"
#include "web_services.hpp"

namespace httplib {
struct Request;
struct Response;
}  // namespace httplib

namespace velk::tools::sefaz_sim {

// The HTTPS server: mutual TLS, one POST per request, the faults of the
// connection, and the answer of the web services.
class sefaz_server {
public:
    explicit sefaz_server(simulator_options options);
    ~sefaz_server();

    // Listens, prints the port on stdout, and serves until the process is
    // ended. Returns the exit status when it cannot start.
    int run();

private:
    void handle(httplib::Request const& request, httplib::Response& response);

    simulator_options options_;
    exchange_recorder recorder_;
    web_services services_;
};

}  // namespace velk::tools::sefaz_sim

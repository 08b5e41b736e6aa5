#pragma once

#include "answer_signer.hpp"
#include "authority_records.hpp"
#include "schema_validator.hpp"
#include "service_handler.hpp"
#include "simulator_options.hpp"

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velk::tools::sefaz_sim {

// What the simulator answers to the body of a request: the SOAP processing
// behind the HTTPS server, the injected faults of the answer included. The
// faults of the connection itself (close, delay) are the server's. Holds the
// authority's memory, so one object is one authority.
class web_services {
public:
    struct reply {
        int http_status = 200;
        std::string content_type;
        std::string body;
        std::vector<std::string> notes;  // what happened, for --verbose
    };

    explicit web_services(simulator_options options);
    ~web_services();
    web_services(web_services const&) = delete;
    web_services& operator=(web_services const&) = delete;

    // False, with the reason, when the server's key and certificate cannot
    // sign answers.
    bool ready(std::string& problem) const;

    reply respond(std::string_view content_type, std::string_view body);

private:
    reply refusal(int http_status, std::string const& code, std::string const& reason) const;

    simulator_options options_;
    schema_validator validator_;
    authority_records records_;
    answer_signer signer_;
    service_context context_;
    std::map<std::string, std::unique_ptr<service_handler>, std::less<>> services_;
};

}  // namespace velk::tools::sefaz_sim

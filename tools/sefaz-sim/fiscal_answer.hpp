#pragma once

#include "request_envelope.hpp"
#include "schema_validator.hpp"

#include <string>

namespace velk::tools::sefaz_sim {

// What the answers of every service share: the status of the processing and
// the values echoed from the request.
class fiscal_answer {
public:
    // The outcome of a message by its validation: 107-style success is the
    // caller's; 215 for a schema failure, 239 for an unknown version.
    fiscal_answer(request_envelope const& request, validation const& checked, int success_status,
                  std::string success_reason);

    bool accepted() const { return accepted_; }
    int status() const { return status_; }
    std::string const& reason() const { return reason_; }
    // The request's versao when a schema of it exists, else "4.00".
    std::string const& versao() const { return versao_; }
    // tpAmb of the request when it is 1 or 2, else 2.
    std::string const& ambiente() const { return ambiente_; }
    // cUF of the request when it names a state, else 35: the simulator then
    // answers as the authorizer of Sao Paulo.
    std::string const& uf() const { return uf_; }

    // Application version written in verAplic.
    static char const* application_version() { return "VELK-SIM-1.0"; }
    // Now, in Brasilia time: AAAA-MM-DDThh:mm:ss-03:00.
    static std::string now();

private:
    bool accepted_ = false;
    int status_ = 0;
    std::string reason_;
    std::string versao_;
    std::string ambiente_;
    std::string uf_;
};

}  // namespace velk::tools::sefaz_sim

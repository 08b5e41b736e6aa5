#pragma once

#include "request_envelope.hpp"
#include "schema_validator.hpp"
#include "simulator_options.hpp"

#include <string>

namespace velk::tools::sefaz_sim {

// What the answers of every service share: the status of the processing and
// the version, environment and state they carry. The checks every message
// meets come first, in the authority's order: the service stopped (108 or
// 109), the authority's own failure (999, --fault unknown-error), a version
// without schema (239), the schema (215, or the service's own code), the
// environment (252). The service decides the rest.
class fiscal_answer {
public:
    // What the service reads from its message for those checks.
    struct message_facts {
        std::string ambiente;              // tpAmb of the request; empty for a message without one
        std::string uf;                    // cUF to answer with; anything else than a state's code gives 35
        std::string default_versao = "4.00";  // answered when the request's version has no schema
        int schema_status = 215;           // the rejection of a message that fails its schema
    };

    fiscal_answer(request_envelope const& request, validation const& checked, simulator_options const& options,
                  message_facts const& facts);

    // True once a status is set: by one of the common checks, or by decide.
    bool decided() const { return status_ != 0; }
    // Sets the status, with the text of the table or the one given.
    void decide(int status);
    void decide(int status, std::string reason);

    int status() const { return status_; }
    std::string const& reason() const { return reason_; }
    // The request's versao when a schema of it exists, else the default.
    std::string const& versao() const { return versao_; }
    // The environment of this authority.
    std::string const& ambiente() const { return ambiente_; }
    std::string const& uf() const { return uf_; }

    // tpAmb and verAplic, as most answers begin.
    std::string environment_tags() const;
    // cStat and xMotivo.
    std::string status_tags() const;

    // Application version written in verAplic.
    static char const* application_version() { return "VELK-SIM-1.0"; }
    // Now, in Brasilia time: AAAA-MM-DDThh:mm:ss-03:00.
    static std::string now();

private:
    int status_ = 0;
    std::string reason_;
    std::string versao_;
    std::string ambiente_;
    std::string uf_;
};

}  // namespace velk::tools::sefaz_sim

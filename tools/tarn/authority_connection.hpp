#pragma once

#include "address_table.hpp"
#include "option_table.hpp"
#include "simulator_session.hpp"
#include "tool_data.hpp"

#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/servico/servico_base.hpp>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// Where and how a run talks to an authority, from its options:
//
//   --sim            the bundled simulator, started for this run on a free
//                    loopback port with throw-away certificates
//   --sim-pasta DIR  a simulator left running by `tarn simulador --pasta DIR`
//   otherwise        the address table by --uf and --ambiente, or --endpoint,
//                    with the certificate of --pfx and the CAs of --ca
//
// With a simulator the TLS client certificate is the simulator's own, and so
// is the signing certificate unless --pfx gives one.
class authority_connection {
public:
    static std::vector<option_row> option_rows();

    // Throws command_error on bad options or a simulator that does not start.
    authority_connection(option_table const& options, tool_data& data);
    ~authority_connection();

    erp::tarn::ambiente ambiente() const { return ambiente_; }
    // Endpoint, SOAP action and namespace of the call.
    erp::tarn::nfe::web_server_info server(web_service service, erp::estado uf, erp::tarn::modelo modelo) const;
    cryptography::pkcs12 const& signing_certificate() const { return signing_; }
    // Certificate, authorities and time-out of the service object.
    void configure(erp::tarn::nfe::servico::servico_base& service) const;

private:
    tool_data& data_;
    erp::tarn::ambiente ambiente_ = erp::tarn::ambiente::homologacao;
    std::unique_ptr<simulator_session> simulator_;
    std::optional<std::string> endpoint_;
    cryptography::pkcs12 tls_;
    cryptography::pkcs12 signing_;
    std::string ca_file_;
    std::chrono::milliseconds timeout_{30000};
};

}  // namespace velk::tools::tarn

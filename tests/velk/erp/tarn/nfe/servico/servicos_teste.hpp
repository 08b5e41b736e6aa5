#pragma once

// A service ready to call the loopback authorities of the tests (the
// simulator, or an in-process one with a canned answer), and the description
// of such a server.

#include <support/sefaz_simulator.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

#include <chrono>
#include <string>

namespace velk::test {

// The taxpayer's certificate of the loopback PKI, the loopback CA trusted,
// ten seconds of time-out.
template <class Service>
Service ready()
{
    Service service;
    core::result::stack s;
    auto const& pki = sefaz_simulator::pki();
    service.set_auth(cryptography::pkcs12::from_byte_array(pki.client_pkcs12(), pki.password(), s),
                     pki.ca_file().string());
    service.set_timeout(std::chrono::seconds(10));
    return service;
}

// Every path of the URL reaches the same services; action and namespace are
// those of no service in particular.
inline erp::tarn::nfe::web_server_info server(std::string const& url,
                                              std::string const& header_form = "sem_namespace")
{
    erp::tarn::nfe::web_server_info info;
    info.set_endpoint_url(url);
    info.set_action_url("http://www.portalfiscal.inf.br/nfe/wsdl/Servico4/operacao");
    info.set_namespace_url("http://www.portalfiscal.inf.br/nfe/wsdl/Servico4");
    info.set_namespace_header(header_form);
    return info;
}

}  // namespace velk::test

#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

#include <support/sefaz_simulator.hpp>

#include <gtest/gtest.h>

#include <chrono>
#include <string>

// What the exchanges of the status service with the simulator share.
namespace velk::test::status_exchange {

inline constexpr char service_namespace[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4";
inline constexpr char action[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4/nfeStatusServicoNF";

// The simulator's client certificate as the library reads it.
inline cryptography::pkcs12 taxpayer_bundle()
{
    core::result::stack result;
    auto bundle = cryptography::pkcs12::from_byte_array(sefaz_simulator::pki().client_pkcs12(),
                                                        sefaz_simulator::pki().password(), result);
    EXPECT_FALSE(result.has_failed()) << result.to_string();
    return bundle;
}

// A service that trusts the simulator's CA and presents its client certificate.
inline erp::tarn::nfe::servico::status_autorizador ready_service(
    std::chrono::milliseconds timeout = std::chrono::milliseconds(10000))
{
    erp::tarn::nfe::servico::status_autorizador service;
    service.set_auth(taxpayer_bundle(), sefaz_simulator::pki().ca_file().string());
    service.set_timeout(timeout);
    return service;
}

inline erp::tarn::nfe::web_server_info server_at(std::string const& url, std::string const& prefix = "",
                                      std::string const& header_form = "")
{
    erp::tarn::nfe::web_server_info server;
    server.set_endpoint_url(url);
    server.set_action_url(action);
    server.set_namespace_url(service_namespace);
    server.set_namespace_prefix(prefix);
    server.set_namespace_header(header_form);
    return server;
}

inline erp::tarn::nfe::sefaz_data::requisicao::status_autorizador status_request(
    erp::tarn::nfe::versao versao = erp::tarn::nfe::versao::versao_4_00)
{
    erp::tarn::nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(versao);
    request.set_estado(erp::estado::sp);
    return request;
}

}  // namespace velk::test::status_exchange

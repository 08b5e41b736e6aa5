#pragma once

#include "json_file.hpp"

#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/web_server_info.hpp>

#include <filesystem>
#include <string>

namespace velk::tools::tarn {

// The web services of the NF-e system that tarn calls, by their keys in the
// address table.
enum class web_service {
    status,
    autorizacao,
    ret_autorizacao,
    consulta_protocolo,
    inutilizacao,
    recepcao_evento,
    consulta_gtin,
};

// The public address table installed with the tool (sefaz-webservices.json):
// for every service its SOAP action and namespace, for every state the
// authorizer of each model, for every authorizer its addresses by
// environment. The library holds no address: the tool gives them.
class address_table {
public:
    bool load(std::filesystem::path const& file, std::string& error);

    // Action and namespace of the service, the endpoint left as it is (for
    // --endpoint and the simulator).
    bool describe(web_service service, erp::tarn::nfe::web_server_info& info, std::string& error) const;
    // Everything of the call: the authorizer that serves the state for the
    // model, and its address in the environment. The GTIN catalogue has one
    // address for every state and environment (the query carries neither).
    bool locate(web_service service, erp::estado uf, erp::tarn::modelo modelo, erp::tarn::ambiente ambiente,
                erp::tarn::nfe::web_server_info& info, std::string& error) const;

private:
    json_file table_;
};

}  // namespace velk::tools::tarn

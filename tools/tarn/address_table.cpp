#include "address_table.hpp"

#include <array>

namespace velk::tools::tarn {

namespace {

constexpr std::array<char const*, 7> service_keys = {
    "status",       "autorizacao",     "ret_autorizacao", "consulta_protocolo",
    "inutilizacao", "recepcao_evento", "consulta_gtin"};

char const* key_of(web_service service)
{
    return service_keys[static_cast<std::size_t>(service)];
}

}  // namespace

bool address_table::load(std::filesystem::path const& file, std::string& error)
{
    return table_.load(file, error);
}

bool address_table::describe(web_service service, erp::tarn::nfe::web_server_info& info, std::string& error) const
{
    std::string const action = table_.text_at({"services", key_of(service), "action"});
    std::string const space = table_.text_at({"services", key_of(service), "wsdl_namespace"});
    if (action.empty() || space.empty()) {
        error = std::string("a tabela de endereços não descreve o serviço ") + key_of(service);
        return false;
    }
    info.set_action_url(action);
    info.set_namespace_url(space);
    // Layout 4.00 sends no nfeCabecMsg header.
    info.set_namespace_header("");
    return true;
}

bool address_table::locate(web_service service, erp::estado uf, erp::tarn::modelo modelo, erp::tarn::ambiente ambiente,
                           erp::tarn::nfe::web_server_info& info, std::string& error) const
{
    if (!describe(service, info, error)) {
        return false;
    }
    std::string const sigla = erp::get_uf(uf);
    std::string authorizer;
    std::string environment = ambiente == erp::tarn::ambiente::producao ? "production" : "homologation";
    if (service == web_service::consulta_gtin) {
        authorizer = "CCG";
        environment = "production";
    } else {
        authorizer = table_.text_at({"states", sigla, modelo == erp::tarn::modelo::nfce ? "nfce" : "nfe"});
    }
    if (authorizer.empty()) {
        error = "a tabela de endereços não tem autorizador para " + sigla;
        return false;
    }
    std::string const endpoint = table_.text_at({"authorizers", authorizer, environment, key_of(service)});
    if (endpoint.empty()) {
        error = std::string("o autorizador ") + authorizer + " não publica o serviço " + key_of(service) + " em " +
                (ambiente == erp::tarn::ambiente::producao ? "produção" : "homologação");
        return false;
    }
    info.set_endpoint_url(endpoint);
    info.set_ambiente(ambiente);
    return true;
}

}  // namespace velk::tools::tarn

#include "authority_connection.hpp"

#include "certificate_options.hpp"
#include "command_error.hpp"
#include "option_values.hpp"
#include "tool_paths.hpp"

#include <fstream>
#include <stdexcept>

namespace velk::tools::tarn {

namespace {

constexpr char system_authorities[] = "/etc/ssl/certs/ca-certificates.crt";

std::string first_line(std::filesystem::path const& file)
{
    std::ifstream in(file);
    std::string line;
    if (!std::getline(in, line)) {
        throw command_error::usage(
            "simulador", "não foi possível ler " + file.string() + ": o simulador de --sim-pasta está em execução?");
    }
    return line;
}

}  // namespace

std::vector<option_row> authority_connection::option_rows()
{
    return joined({{
                       {"uf", "UF", "estado do autorizador (sigla, como SP)"},
                       {"ambiente", "AMBIENTE", "homologacao (padrão) ou producao"},
                       {"sim", "", "inicia o simulador incluso numa porta livre e envia a ele"},
                       {"sim-pasta", "PASTA", "envia ao simulador de `tarn simulador --pasta PASTA`"},
                       {"endpoint", "URL", "envia a este endereço em vez do da tabela de endereços"},
                       {"ca", "ARQUIVO", "autoridades certificadoras aceitas do servidor (padrão: as do sistema)"},
                       {"tempo-limite", "SEGUNDOS", "limite de cada chamada (padrão 30)"},
                   },
                   certificate_options::option_rows()});
}

authority_connection::authority_connection(option_table const& options, tool_data& data) : data_(data)
{
    ambiente_ = option_values::choose<erp::tarn::ambiente>(
        options, "ambiente",
        {{"homologacao", erp::tarn::ambiente::homologacao}, {"producao", erp::tarn::ambiente::producao}},
        erp::tarn::ambiente::homologacao);
    if (auto const seconds = options.value("tempo-limite")) {
        timeout_ = std::chrono::seconds(option_values::number("--tempo-limite", *seconds, 1, 3600));
    }
    std::optional<cryptography::pkcs12> const own = certificate_options::load(options);
    endpoint_ = options.value("endpoint");
    if (options.has("sim") && options.has("sim-pasta")) {
        throw command_error::usage("opções", "use --sim ou --sim-pasta, não os dois");
    }
    if (options.has("sim")) {
        try {
            simulator_ = std::make_unique<simulator_session>(
                tool_paths::simulator(), simulator_session::temporary_folder(), false, data_.schemas());
        } catch (std::runtime_error const& error) {
            throw command_error(exit_status::transport, failure_report::describe("simulador", error.what()));
        }
        core::result::stack stack;
        tls_ = cryptography::pkcs12::from_byte_array(simulator_->pki().client_pkcs12(), simulator_->pki().password(),
                                                     stack);
        throw_if_failed(stack, "certificado do simulador");
        ca_file_ = simulator_->pki().ca_file().string();
        if (!endpoint_) {
            endpoint_ = simulator_->endpoint();
        }
    } else if (auto const folder = options.value("sim-pasta")) {
        std::filesystem::path const base(*folder);
        tls_ = certificate_options::of_simulator(base);
        ca_file_ = (base / simulator_session::ca_file).string();
        if (!endpoint_) {
            endpoint_ = first_line(base / simulator_session::endpoint_file);
        }
    } else {
        if (!own) {
            throw command_error::usage("certificado", "informe --pfx (ou use --sim)");
        }
        tls_ = *own;
        ca_file_ = options.value("ca").value_or(system_authorities);
    }
    signing_ = own ? *own : tls_;
}

authority_connection::~authority_connection() = default;

erp::tarn::nfe::web_server_info authority_connection::server(web_service service, erp::estado uf,
                                                             erp::tarn::modelo modelo) const
{
    erp::tarn::nfe::web_server_info info;
    std::string error;
    bool const found = endpoint_ ? data_.addresses().describe(service, info, error)
                                 : data_.addresses().locate(service, uf, modelo, ambiente_, info, error);
    if (!found) {
        throw command_error::usage("endereço", error);
    }
    if (endpoint_) {
        info.set_endpoint_url(*endpoint_);
        info.set_ambiente(ambiente_);
    }
    return info;
}

void authority_connection::configure(erp::tarn::nfe::servico::servico_base& service) const
{
    service.set_auth(tls_, ca_file_);
    service.set_timeout(timeout_);
}

}  // namespace velk::tools::tarn

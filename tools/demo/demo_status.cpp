#include "demo_steps.hpp"

#include <sefaz-sim/launch/loopback_pki.hpp>
#include <sefaz-sim/launch/simulator_process.hpp>
#include <velk/core/converter.hpp>
#include <velk/core/datetime.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>
#include <velk/xml/document.hpp>

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace velk::demo {

namespace {

namespace nfe = erp::tarn::nfe;

constexpr char service_namespace[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4";
constexpr char action[] = "http://www.portalfiscal.inf.br/nfe/wsdl/NFeStatusServico4/nfeStatusServicoNF";

// A folder for the throw-away certificates and the simulator's record,
// removed when the step ends.
struct work_folder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() / ("velk-demo-status-" + std::to_string(getpid()));
    work_folder() { std::filesystem::create_directories(path); }
    ~work_folder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

void stop_on_failure(core::result::stack const& stack, char const* what)
{
    if (stack.has_failed()) {
        throw demo_failure{std::string("status step, ") + what + ":\n" + stack.to_string()};
    }
}

std::string read_file(std::filesystem::path const& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream contents;
    contents << in.rdbuf();
    return contents.str();
}

}  // namespace

void run_status_step(demo_context& context)
{
    demo_context::say("status step: the status service over mutual TLS, against the local SEFAZ simulator");
    work_folder const work;
    tools::sefaz_sim::loopback_pki const pki(work.path / "pki");
    std::vector<std::string> arguments = pki.server_arguments();
    arguments.insert(arguments.end(), {"--record", (work.path / "record").string()});
    tools::sefaz_sim::simulator_process const simulator(tools::sefaz_sim::simulator_process::beside_this_program(),
                                                        arguments);
    demo_context::say("simulator listening on " + simulator.url(""));

    core::result::stack stack;
    nfe::servico::status_autorizador service;
    service.set_auth(cryptography::pkcs12::from_byte_array(pki.client_pkcs12(), pki.password(), stack),
                     pki.ca_file().string());
    stop_on_failure(stack, "certificate");
    service.set_timeout(std::chrono::milliseconds(10000));

    nfe::web_server_info server;
    server.set_endpoint_url(simulator.url("/ws/NFeStatusServico4/NFeStatusServico4.asmx"));
    server.set_action_url(action);
    server.set_namespace_url(service_namespace);

    nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(nfe::versao::versao_4_00);
    request.set_ambiente(erp::tarn::ambiente::homologacao);
    request.set_estado(erp::estado::sp);

    nfe::sefaz_data::resposta::status_autorizador const status = service.executar(request, server, stack);
    stop_on_failure(stack, "query");

    std::string const received = core::make_string(status.get_data_recebimento(), stack);
    stop_on_failure(stack, "answer");
    demo_context::say("  cStat    " + std::to_string(status.get_codigo_status()));
    demo_context::say("  xMotivo  " + status.get_motivo());
    demo_context::say("  dhRecbto " + received);
    if (status.get_tempo_medio().has_value()) {
        demo_context::say("  tMed     " + std::to_string(status.get_tempo_medio().value()) + " s");
    }

    context.write({"status/consStatServ-envelope.xml", "soap-envelope", "4.00", "", "SP", false,
                   "The SOAP 1.2 envelope of the status query as it reached the simulator"},
                  read_file(work.path / "record" / "0001.xml"));
    xml::document answer;
    answer.append_node(status.get_xml(), stack);
    std::string const answer_text = xml::document::save(answer, stack).to_string();
    stop_on_failure(stack, "answer");
    context.write({"status/retConsStatServ.xml", "retConsStatServ", "4.00", "", "SP", false,
                   "The simulator's answer to the status query, as the library read it"},
                  answer_text);
}

}  // namespace velk::demo

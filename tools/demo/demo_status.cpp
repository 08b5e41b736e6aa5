#include "demo_simulator.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/core/converter.hpp>
#include <velk/core/datetime.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/servico/status_autorizador.hpp>

namespace velk::demo {

namespace {

namespace nfe = erp::tarn::nfe;

}  // namespace

void run_status_step(demo_context& context)
{
    demo_context::say("status step: the status service over mutual TLS, against the local SEFAZ simulator");
    demo_simulator const simulator("status");

    core::result::stack stack;
    nfe::servico::status_autorizador service;
    service.set_auth(cryptography::pkcs12::from_byte_array(simulator.pki().client_pkcs12(),
                                                           simulator.pki().password(), stack),
                     simulator.pki().ca_file().string());
    check(stack, "status step, certificate");
    service.set_timeout(std::chrono::milliseconds(10000));

    nfe::sefaz_data::requisicao::status_autorizador request;
    request.set_versao(nfe::versao::versao_4_00);
    request.set_ambiente(erp::tarn::ambiente::homologacao);
    request.set_estado(erp::estado::sp);

    nfe::sefaz_data::resposta::status_autorizador const status =
        service.executar(request, simulator.server("NFeStatusServico4", "nfeStatusServicoNF"), stack);
    check(stack, "status step, query");

    std::string const received = core::make_string(status.get_data_recebimento(), stack);
    check(stack, "status step, answer");
    demo_context::say("  cStat    " + std::to_string(status.get_codigo_status()));
    demo_context::say("  xMotivo  " + status.get_motivo());
    demo_context::say("  dhRecbto " + received);
    if (status.get_tempo_medio().has_value()) {
        demo_context::say("  tMed     " + std::to_string(status.get_tempo_medio().value()) + " s");
    }

    context.write({"status/consStatServ-envelope.xml", "soap-envelope", "4.00", "", "SP", false,
                   "The SOAP 1.2 envelope of the status query as it reached the simulator"},
                  simulator.recorded_request(1));
    context.write({"status/retConsStatServ.xml", "retConsStatServ", "4.00", "", "SP", false,
                   "The simulator's answer to the status query, as the library read it"},
                  to_text(status.get_xml(), "status step, answer"));
}

}  // namespace velk::demo

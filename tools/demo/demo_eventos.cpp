#include "demo_archive.hpp"
#include "demo_certificate.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/core/converter.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>

#include <chrono>
#include <string>
#include <vector>

namespace velk::demo {

namespace {

namespace nfe = erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;
using erp::tarn::ambiente;

// What the sorting of the answers means to the caller.
char const* const grupos[] = {"success", "the authority's unknown error", "service down", "refused"};

std::string texto(erp::tarn::chave_acesso const& chave)
{
    core::result::stack stack;
    return core::make_string(chave, stack);
}

std::string numero(core::optional<unsigned long long> const& protocolo)
{
    return protocolo ? std::to_string(*protocolo) : std::string("none");
}

// The events' calls; each leaves its messages under eventos/.
resposta::lote_evento registrar(demo_authority& sefaz, requisicao::evento evento,
                                cryptography::pkcs12 const& certificado, unsigned long long id_lote,
                                std::string const& nome, char const* descricao)
{
    core::result::stack stack;
    evento.assinar(certificado, stack);
    check(stack, ("events step, signature of " + nome).c_str());
    requisicao::lote_evento lote;
    lote.set_id_lote(id_lote);
    lote.append(evento);
    resposta::lote_evento const resultado =
        sefaz.exchange(sefaz.evento(), lote, "NFeRecepcaoEvento4", "nfeRecepcaoEvento",
                       {"eventos/" + nome, "envEvento", "retEnvEvento", "1.00", true, true, descricao});
    // A registered event is kept beside its answer, as the proof of it.
    for (resposta::resposta_evento const& registro : resultado.get_eventos()) {
        if (core::visit([](auto const& r) { return r.get_numero_protocolo().has_value(); }, registro)) {
            sefaz.context().write({"eventos/" + nome + "-procEventoNFe.xml", "procEventoNFe", "1.00", "", "SP", true,
                                   std::string("The signed event (") + descricao + ") beside the authority's answer"},
                                  archive_event(evento, registro));
        }
    }
    return resultado;
}

void say_events(resposta::lote_evento const& lote)
{
    demo_context::say("  batch: cStat " + std::to_string(lote.get_codigo_status()) + " " + lote.get_motivo() + " (" +
                      grupos[nfe::obter_grupo_status_resposta(lote)] + ")");
    for (resposta::resposta_evento const& evento : lote.get_eventos()) {
        resposta::retorno_evento const& r =
            core::visit([](auto const& each) -> resposta::retorno_evento const& { return each; }, evento);
        std::string const chave = r.get_chave_acesso() ? texto(*r.get_chave_acesso()) : std::string("-");
        demo_context::say("  event on " + chave + ": cStat " + std::to_string(r.get_codigo_status()) + " " +
                          r.get_motivo() + ", protocol " + numero(r.get_numero_protocolo()) + " (" +
                          grupos[nfe::obter_grupo_status_resposta(evento)] + ")");
    }
}

core::datetime agora()
{
    using namespace std::chrono;
    auto const brasilia = floor<seconds>(system_clock::now()) - hours(3);
    auto const dia = floor<days>(brasilia);
    year_month_day const data(dia);
    hh_mm_ss const hora(brasilia - dia);
    return core::datetime(core::date(static_cast<unsigned>(data.day()), static_cast<unsigned>(data.month()),
                                     static_cast<int>(data.year())),
                          core::time(static_cast<unsigned>(hora.hours().count()),
                                     static_cast<unsigned>(hora.minutes().count()),
                                     static_cast<unsigned>(hora.seconds().count()), 0),
                          -180);
}

template <class Payload, class... Sequencia>
requisicao::evento evento_de(Payload const& payload, erp::tarn::chave_acesso const& chave, char const* what,
                             Sequencia... sequencia)
{
    core::result::stack stack;
    requisicao::evento made =
        requisicao::evento::from_data(payload, chave, ambiente::homologacao, agora(), sequencia..., stack);
    check(stack, what);
    return made;
}

}  // namespace

void run_events_step(demo_authority& sefaz, road_results const& road)
{
    demo_context::say("events step: a cancellation, a correction letter and a recipient's manifestation");
    requisicao::documento_fiscal const& nfce = road.nfce;
    requisicao::documento_fiscal const& nfe_55 = road.nfe;
    core::result::stack stack;
    cryptography::pkcs12 const certificado = make_demo_certificate(stack);
    check(stack, "events step, certificate");
    if (!road.nfce_protocolo.get_numero_protocolo()) {
        throw demo_failure{"events step: the NFC-e has no protocol number to cancel"};
    }
    unsigned long long const protocolo_nfce = *road.nfce_protocolo.get_numero_protocolo();

    demo_context::say("cancellation of the NFC-e (110111), naming its protocol");
    auto const cancelamento =
        requisicao::cancelamento::from_data("Venda desfeita a pedido do cliente no caixa", protocolo_nfce, stack);
    check(stack, "events step, cancellation");
    say_events(registrar(sefaz, evento_de(cancelamento, nfce.get_chave_acesso(), "events step, cancellation event"),
                         certificado, 1, "nfce-cancelamento", "the cancellation of the NFC-e"));

    demo_context::say("correction letter of the NF-e (110110), sequence 1");
    auto const carta =
        requisicao::carta_correcao::from_data("Endereco de entrega: Rua das Flores, 100, fundos", stack);
    check(stack, "events step, correction letter");
    say_events(registrar(sefaz, evento_de(carta, nfe_55.get_chave_acesso(), "events step, correction letter event", 1u),
                         certificado, 2, "nfe-carta-correcao", "the correction letter of the NF-e"));

    demo_context::say("the recipient confirms the operation of the NF-e (210200)");
    auto const confirmacao = requisicao::manifestacao_destinatario::from_data(
        requisicao::manifestacao_destinatario::tipo_manifestacao::confirmacao_operacao, stack);
    check(stack, "events step, manifestation");
    say_events(registrar(sefaz, evento_de(confirmacao, nfe_55.get_chave_acesso(), "events step, manifestation event"),
                         certificado, 3, "nfe-manifestacao", "the recipient's confirmation of the operation"));

    demo_context::say("query by access key of both, with their events");
    for (auto const& [documento, nome] :
         {std::pair{&nfce, "nfce-consulta"}, std::pair{&nfe_55, "nfe-consulta"}}) {
        resposta::consulta const consulta = sefaz.query_by_key(documento->get_chave_acesso(), "eventos/" + std::string(nome), "the query by key, with the note's events");
        std::size_t const eventos = consulta.get_eventos().size();
        demo_context::say("  " + texto(documento->get_chave_acesso()) + ": cStat " +
                          std::to_string(consulta.get_codigo_status()) + " " + consulta.get_motivo() + ", " +
                          std::to_string(eventos) + " event(s)");
    }
}

}  // namespace velk::demo

#include "demo_archive.hpp"
#include "demo_certificate.hpp"
#include "demo_simulator.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/core/converter.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>

#include <chrono>
#include <fstream>
#include <sstream>
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

// The signed document the authorization step kept in its nfeProc.
requisicao::documento_fiscal documento_autorizado(demo_context const& context, std::string const& arquivo)
{
    std::ifstream in(context.out() / arquivo, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    core::result::stack stack;
    xml::document lido;
    lido.load(core::byte_array(bytes.str()), stack);
    check(stack, ("events step, reading " + arquivo).c_str());
    xml::element const* const nfe_element =
        lido.get_root_element() == nullptr ? nullptr : lido.get_root_element()->find_child("NFe");
    if (nfe_element == nullptr) {
        throw demo_failure{"events step: no NFe in " + arquivo + "; the authorization step writes it"};
    }
    requisicao::documento_fiscal documento = requisicao::documento_fiscal::from_xml(*nfe_element, stack);
    check(stack, ("events step, document of " + arquivo).c_str());
    return documento;
}

// Whoever takes part in the step: the issuer and the recipient, both with
// the demo's certificate, and the simulator that stands for the authority.
// Every exchange leaves its request and its answer in the output folder.
class participantes {
public:
    participantes(demo_context& context, demo_simulator const& simulator) : context_(context), simulator_(simulator)
    {
        core::result::stack stack;
        cryptography::pkcs12 const tls = cryptography::pkcs12::from_byte_array(
            simulator.pki().client_pkcs12(), simulator.pki().password(), stack);
        check(stack, "events step, TLS certificate");
        std::string const ca = simulator.pki().ca_file().string();
        for (auto* service : std::initializer_list<nfe::servico::servico_base*>{&autorizacao_, &evento_, &consulta_}) {
            service->set_auth(tls, ca);
            service->set_timeout(std::chrono::seconds(10));
        }
    }

    resposta::lote_autorizacao autorizar(requisicao::documento_fiscal const& documento, std::string const& nome)
    {
        requisicao::lote_autorizacao lote;
        lote.set_versao(nfe::versao::versao_4_00);
        lote.set_id(++lotes_);
        lote.set_indicador_sincrono(true);
        core::result::stack stack;
        lote.append_documento_fiscal(documento, stack);
        check(stack, "events step, batch");
        return call(autorizacao_, lote, simulator_.server("NFeAutorizacao4", "nfeAutorizacaoLote"), nome,
                    {"enviNFe", "4.00", "retEnviNFe", "the NF-e's batch"});
    }

    resposta::lote_evento registrar(requisicao::evento evento, cryptography::pkcs12 const& certificado,
                                    std::string const& nome, std::string const& descricao)
    {
        core::result::stack stack;
        evento.assinar(certificado, stack);
        check(stack, ("events step, signature of " + nome).c_str());
        requisicao::lote_evento lote;
        lote.set_id_lote(++lotes_);
        lote.append(evento);
        resposta::lote_evento const resultado =
            call(evento_, lote, simulator_.server("NFeRecepcaoEvento4", "nfeRecepcaoEvento"), nome,
                 {"envEvento", "1.00", "retEnvEvento", descricao});
        // A registered event is kept beside its answer, as the proof of it.
        for (resposta::resposta_evento const& registro : resultado.get_eventos()) {
            if (core::visit([](auto const& r) { return r.get_numero_protocolo().has_value(); }, registro)) {
                context_.write({"eventos/" + nome + "-procEventoNFe.xml", "procEventoNFe", "1.00", "", "SP", true,
                                "The signed event (" + descricao + ") beside the authority's answer"},
                               archive_event(evento, registro));
            }
        }
        return resultado;
    }

    resposta::consulta consultar(erp::tarn::chave_acesso const& chave, std::string const& nome)
    {
        auto const pedido = requisicao::consulta::from_data(chave, nfe::versao::versao_4_00, ambiente::homologacao);
        return call(consulta_, pedido, simulator_.server("NFeConsultaProtocolo4", "nfeConsultaNF"), nome,
                    {"consSitNFe", "4.00", "retConsSitNFe", "the query by key"});
    }

private:
    struct troca {
        char const* pedido;
        char const* versao;
        char const* resposta;
        std::string descricao;
    };

    template <class Service, class Request>
    typename Service::resposta_type call(Service const& service, Request const& pedido,
                                         nfe::web_server_info servidor, std::string const& nome, troca const& t)
    {
        servidor.set_namespace_header("sem_namespace");
        core::result::stack stack;
        auto answer = service.executar(pedido, servidor, stack);
        check(stack, ("events step, " + nome).c_str());
        std::string const pedido_tipo = t.pedido;
        bool const assinado = pedido_tipo != "consSitNFe";
        context_.write({"eventos/" + nome + "-pedido.xml", "soap-envelope", t.versao, "", "SP", assinado,
                        "The SOAP 1.2 envelope with " + pedido_tipo + " (" + t.descricao +
                            ") as it reached the simulator"},
                       simulator_.recorded_request(++exchanges_));
        context_.write({"eventos/" + nome + "-resposta.xml", t.resposta, t.versao, "", "SP", pedido_tipo == "envEvento",
                        std::string("The simulator's ") + t.resposta + ", as the library read it"},
                       to_text(answer.get_xml(), nome.c_str()));
        return answer;
    }

    demo_context& context_;
    demo_simulator const& simulator_;
    unsigned exchanges_ = 0;
    unsigned long long lotes_ = 0;
    nfe::servico::autorizacao autorizacao_;
    nfe::servico::evento evento_;
    nfe::servico::consulta consulta_;
};

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

// The protocol number the authority gave the document.
unsigned long long protocolo_de(resposta::lote_autorizacao const& lote, std::string const& nome)
{
    std::vector<resposta::protocolo_nfe> const protocolos = lote.get_protocolos();
    if (protocolos.size() != 1 || !protocolos.front().get_numero_protocolo()) {
        throw demo_failure{"events step: " + nome + " was not authorized"};
    }
    resposta::protocolo_nfe const& p = protocolos.front();
    demo_context::say("  " + texto(p.get_chave_acesso()) + ": cStat " + std::to_string(p.get_codigo_status()) + " " +
                      p.get_motivo() + ", protocol " + numero(p.get_numero_protocolo()));
    return *p.get_numero_protocolo();
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

void run_events_step(demo_context& context)
{
    demo_context::say("events step: a cancellation, a correction letter and a recipient's manifestation");
    requisicao::documento_fiscal const nfce = documento_autorizado(context, "autorizacao/nfce-65-nfeProc.xml");
    requisicao::documento_fiscal const nfe_55 = documento_autorizado(context, "autorizacao/nfe-55-nfeProc.xml");
    demo_simulator const simulator("eventos");
    participantes sefaz(context, simulator);
    core::result::stack stack;
    cryptography::pkcs12 const certificado = make_demo_certificate(stack);
    check(stack, "events step, certificate");

    // The simulator remembers only what it authorized while it runs: this
    // step's authority is a new one, so the notes go to it first.
    demo_context::say("the notes of the authorization step, sent to this step's authority");
    unsigned long long const protocolo_nfce = protocolo_de(sefaz.autorizar(nfce, "nfce-autorizacao"), "the NFC-e");
    protocolo_de(sefaz.autorizar(nfe_55, "nfe-autorizacao"), "the NF-e");

    demo_context::say("cancellation of the NFC-e (110111), naming its protocol");
    auto const cancelamento =
        requisicao::cancelamento::from_data("Venda desfeita a pedido do cliente no caixa", protocolo_nfce, stack);
    check(stack, "events step, cancellation");
    say_events(sefaz.registrar(evento_de(cancelamento, nfce.get_chave_acesso(), "events step, cancellation event"),
                               certificado, "nfce-cancelamento", "the cancellation of the NFC-e"));

    demo_context::say("correction letter of the NF-e (110110), sequence 1");
    auto const carta =
        requisicao::carta_correcao::from_data("Endereco de entrega: Rua das Flores, 100, fundos", stack);
    check(stack, "events step, correction letter");
    say_events(sefaz.registrar(
        evento_de(carta, nfe_55.get_chave_acesso(), "events step, correction letter event", 1u), certificado,
        "nfe-carta-correcao", "the correction letter of the NF-e"));

    demo_context::say("the recipient confirms the operation of the NF-e (210200)");
    auto const confirmacao = requisicao::manifestacao_destinatario::from_data(
        requisicao::manifestacao_destinatario::tipo_manifestacao::confirmacao_operacao, stack);
    check(stack, "events step, manifestation");
    say_events(sefaz.registrar(
        evento_de(confirmacao, nfe_55.get_chave_acesso(), "events step, manifestation event"), certificado,
        "nfe-manifestacao", "the recipient's confirmation of the operation"));

    demo_context::say("query by access key of both, with their events");
    for (auto const& [documento, nome] :
         {std::pair{&nfce, "nfce-consulta"}, std::pair{&nfe_55, "nfe-consulta"}}) {
        resposta::consulta const consulta = sefaz.consultar(documento->get_chave_acesso(), nome);
        std::size_t const eventos = consulta.get_eventos().size();
        demo_context::say("  " + texto(documento->get_chave_acesso()) + ": cStat " +
                          std::to_string(consulta.get_codigo_status()) + " " + consulta.get_motivo() + ", " +
                          std::to_string(eventos) + " event(s)");
    }
}

}  // namespace velk::demo

#include "demo_archive.hpp"
#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_simulator.hpp"
#include "demo_steps.hpp"
#include "demo_xml.hpp"

#include <velk/core/converter.hpp>
#include <velk/cryptography/pkcs12.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>

#include <chrono>
#include <string>
#include <thread>

namespace velk::demo {

namespace {

namespace nfe = erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;
using erp::tarn::ambiente;
using erp::tarn::modelo;

// The issuer's side of the road: its certificate for the TLS connection and
// the services it calls, and the simulator that stands for the authority.
// Every exchange leaves its request (the envelope as it reached the
// authority) and its answer in the output folder.
class emissor {
public:
    emissor(demo_context& context, demo_simulator const& simulator) : context_(context), simulator_(simulator)
    {
        core::result::stack stack;
        cryptography::pkcs12 const tls = cryptography::pkcs12::from_byte_array(
            simulator.pki().client_pkcs12(), simulator.pki().password(), stack);
        check(stack, "authorization step, TLS certificate");
        std::string const ca = simulator.pki().ca_file().string();
        setup(autorizacao_, tls, ca);
        setup(recibo_, tls, ca);
        setup(consulta_, tls, ca);
        setup(inutilizacao_, tls, ca);
        setup(gtin_, tls, ca);
    }

    resposta::lote_autorizacao autorizar(requisicao::lote_autorizacao const& lote, std::string const& nome)
    {
        return call(autorizacao_, lote, simulator_.server("NFeAutorizacao4", "nfeAutorizacaoLote"), nome, "enviNFe",
                    "retEnviNFe");
    }
    resposta::lote_autorizacao consultar_recibo(unsigned long long recibo, std::string const& nome)
    {
        auto const pedido = requisicao::consulta_recibo::from_data(ambiente::homologacao, nfe::versao::versao_4_00,
                                                                   recibo, erp::estado::sp, modelo::nfe);
        return call(recibo_, pedido, simulator_.server("NFeRetAutorizacao4", "nfeRetAutorizacaoLote"), nome,
                    "consReciNFe", "retConsReciNFe");
    }
    resposta::consulta consultar(erp::tarn::chave_acesso const& chave, std::string const& nome)
    {
        auto const pedido = requisicao::consulta::from_data(chave, nfe::versao::versao_4_00, ambiente::homologacao);
        return call(consulta_, pedido, simulator_.server("NFeConsultaProtocolo4", "nfeConsultaNF"), nome, "consSitNFe",
                    "retConsSitNFe");
    }
    resposta::inutilizacao inutilizar(requisicao::inutilizacao const& pedido, std::string const& nome)
    {
        return call(inutilizacao_, pedido, simulator_.server("NFeInutilizacao4", "nfeInutilizacaoNF"), nome,
                    "inutNFe", "retInutNFe");
    }
    resposta::consulta_gtin consultar_gtin(std::string const& gtin, std::string const& nome)
    {
        return call(gtin_, requisicao::consulta_gtin::from_data(gtin), simulator_.server("ccgConsGtin", "ccgConsGTIN"),
                    nome, "consGTIN", "retConsGTIN");
    }

private:
    template <class Service>
    static void setup(Service& service, cryptography::pkcs12 const& tls, std::string const& ca)
    {
        service.set_auth(tls, ca);
        service.set_timeout(std::chrono::seconds(10));
    }

    template <class Service, class Request>
    typename Service::resposta_type call(Service const& service, Request const& pedido,
                                         nfe::web_server_info servidor, std::string const& nome,
                                         std::string const& tipo_pedido, std::string const& tipo_resposta)
    {
        servidor.set_namespace_header("sem_namespace");
        core::result::stack stack;
        auto resposta = service.executar(pedido, servidor, stack);
        check(stack, ("authorization step, " + nome).c_str());
        bool const assinado = tipo_pedido == "inutNFe" || tipo_pedido == "enviNFe";
        context_.write({"autorizacao/" + nome + "-pedido.xml", "soap-envelope",
                        tipo_pedido == "consGTIN" ? "1.00" : "4.00", "", "SP", assinado,
                        "The SOAP 1.2 envelope with " + tipo_pedido + " as it reached the simulator"},
                       simulator_.recorded_request(++exchanges_));
        context_.write({"autorizacao/" + nome + "-resposta.xml", tipo_resposta, "", "", "SP", false,
                        "The simulator's " + tipo_resposta + ", as the library read it"},
                       to_text(resposta.get_xml(), nome.c_str()));
        return resposta;
    }

    demo_context& context_;
    demo_simulator const& simulator_;
    unsigned exchanges_ = 0;
    nfe::servico::autorizacao autorizacao_;
    nfe::servico::consulta_recibo recibo_;
    nfe::servico::consulta consulta_;
    nfe::servico::inutilizacao inutilizacao_;
    nfe::servico::consulta_gtin gtin_;
};

std::string texto(erp::tarn::chave_acesso const& chave)
{
    core::result::stack stack;
    return core::make_string(chave, stack);
}

std::string protocolo(core::optional<unsigned long long> const& numero)
{
    return numero ? std::to_string(*numero) : std::string("none");
}

void say_batch(resposta::lote_autorizacao const& lote)
{
    std::string line = "  batch: cStat " + std::to_string(lote.get_codigo_status()) + " " + lote.get_motivo();
    if (lote.get_numero_recibo()) {
        line += ", receipt " + std::to_string(*lote.get_numero_recibo());
    }
    demo_context::say(line);
    for (resposta::protocolo_nfe const& p : lote.get_protocolos()) {
        demo_context::say("  document " + texto(p.get_chave_acesso()) + ": cStat " +
                          std::to_string(p.get_codigo_status()) + " " + p.get_motivo() + ", protocol " +
                          protocolo(p.get_numero_protocolo()));
    }
}

// The signed document, with the QR code first when it is an NFC-e.
requisicao::documento_fiscal documento_assinado(erp::fiscal::nota_fiscal const& nota,
                                                cryptography::pkcs12 const& certificado)
{
    core::result::stack stack;
    auto documento = requisicao::documento_fiscal::from_nota_fiscal(nota, nfe::versao::versao_4_00, stack);
    check(stack, "authorization step, document");
    if (documento.get_modelo() == modelo::nfce) {
        std::string const pagina = nfe::detail::obter_url_consulta_qrcode(documento, stack);
        check(stack, "authorization step, consultation page");
        nfe::informacoes_adicionais const qr(nfe::versao_qrcode::versao_200,
                                             std::string("https://www.homologacao.nfce.fazenda.sp.gov.br/consulta"),
                                             pagina);
        documento.gerar_qrcode(qr, demo_id_token, demo_csc, stack);
        documento.adicionar_url_chave(qr);
        check(stack, "authorization step, QR code");
    }
    documento.assinar(certificado, stack);
    check(stack, "authorization step, signature");
    return documento;
}

requisicao::lote_autorizacao lote_de(requisicao::documento_fiscal const& documento, unsigned long long id,
                                     bool sincrono)
{
    requisicao::lote_autorizacao lote;
    lote.set_versao(nfe::versao::versao_4_00);
    lote.set_id(id);
    lote.set_indicador_sincrono(sincrono);
    core::result::stack stack;
    lote.append_documento_fiscal(documento, stack);
    check(stack, "authorization step, batch");
    return lote;
}

// The protocol of an authorized document; the step fails on any other answer.
resposta::protocolo_nfe autorizado(resposta::lote_autorizacao const& lote)
{
    if (lote.get_protocolos().size() != 1 || lote.get_protocolos().front().get_codigo_status() != 100) {
        throw demo_failure{"authorization step: the document was not authorized"};
    }
    return lote.get_protocolos().front();
}

}  // namespace

void run_authorization_step(demo_context& context)
{
    demo_context::say("authorization step: the whole road against the local SEFAZ simulator acting as authority");
    demo_simulator const simulator("autorizacao");
    emissor sefaz(context, simulator);
    core::result::stack stack;
    cryptography::pkcs12 const certificado = make_demo_certificate(stack);
    check(stack, "authorization step, certificate");

    demo_context::say("NFC-e, authorized synchronously (indSinc 1)");
    requisicao::documento_fiscal const nfce = documento_assinado(demo_nfce(), certificado);
    resposta::lote_autorizacao const lote_nfce = sefaz.autorizar(lote_de(nfce, 1, true), "nfce-autorizacao");
    say_batch(lote_nfce);
    context.write({"autorizacao/nfce-65-nfeProc.xml", "nfeProc", "4.00", "65", "SP", true,
                   "The NFC-e with its QR code, signed, beside its authorization protocol"},
                  archive_authorization(nfce, autorizado(lote_nfce)));

    demo_context::say("NF-e, authorized asynchronously (indSinc 0) through its receipt");
    requisicao::documento_fiscal const nfe_55 = documento_assinado(demo_nfe(), certificado);
    resposta::lote_autorizacao lote_nfe = sefaz.autorizar(lote_de(nfe_55, 2, false), "nfe-autorizacao");
    say_batch(lote_nfe);
    if (!lote_nfe.get_numero_recibo()) {
        throw demo_failure{"authorization step: the asynchronous batch got no receipt"};
    }
    unsigned long long const recibo = *lote_nfe.get_numero_recibo();
    // Polling is the caller's: ask again while the batch is in processing.
    for (unsigned vez = 1; vez <= 5; ++vez) {
        lote_nfe = sefaz.consultar_recibo(recibo, "nfe-recibo-" + std::to_string(vez));
        say_batch(lote_nfe);
        if (lote_nfe.get_codigo_status() != 105) {
            break;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
    }
    context.write({"autorizacao/nfe-55-nfeProc.xml", "nfeProc", "4.00", "55", "SP", true,
                   "The NF-e, signed, beside its authorization protocol"},
                  archive_authorization(nfe_55, autorizado(lote_nfe)));

    demo_context::say("query by access key of both");
    for (auto const& [documento, nome] : {std::pair{&nfce, "nfce-consulta"}, std::pair{&nfe_55, "nfe-consulta"}}) {
        resposta::consulta const consulta = sefaz.consultar(documento->get_chave_acesso(), nome);
        auto const p = consulta.get_protocolo_nfe();
        core::optional<unsigned long long> const numero = p ? p->get_numero_protocolo() : std::nullopt;
        demo_context::say("  " + texto(documento->get_chave_acesso()) + ": cStat " +
                          std::to_string(consulta.get_codigo_status()) + " " + consulta.get_motivo() +
                          ", protocol " + protocolo(numero));
    }

    demo_context::say("disablement of the NFC-e numbers 3 to 9 of series 1");
    requisicao::inutilizacao pedido = requisicao::inutilizacao::from_data(
        nfe::versao::versao_4_00, ambiente::homologacao, "Numeros pulados por falha no sistema do caixa",
        erp::estado::sp, modelo::nfce, 24, 1, 3, 9, 12345678000195ULL, stack);
    check(stack, "authorization step, disablement");
    pedido.assinar(certificado, stack);
    check(stack, "authorization step, disablement signature");
    resposta::inutilizacao const inutilizado = sefaz.inutilizar(pedido, "inutilizacao");
    demo_context::say("  cStat " + std::to_string(inutilizado.get_codigo_status()) + " " + inutilizado.get_motivo() +
                      ", protocol " + protocolo(inutilizado.get_protocolo()));
    context.write({"autorizacao/inutilizacao-procInutNFe.xml", "procInutNFe", "4.00", "65", "SP", true,
                   "The signed disablement of the NFC-e numbers 3 to 9 beside the authority's answer"},
                  archive_disablement(pedido, inutilizado));

    demo_context::say("GTIN of the kettle sold in the NFC-e");
    resposta::consulta_gtin const produto = sefaz.consultar_gtin("7891234567895", "gtin");
    demo_context::say("  cStat " + std::to_string(produto.get_codigo_status()) + " " + produto.get_motivo() + ": " +
                      produto.get_desc_produto().value_or("-") + ", NCM " +
                      (produto.get_ncm() ? std::to_string(*produto.get_ncm()) : std::string("-")));
}

}  // namespace velk::demo

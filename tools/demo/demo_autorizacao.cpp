#include "demo_archive.hpp"
#include "demo_certificate.hpp"
#include "demo_notas.hpp"
#include "demo_authority.hpp"
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

// The issuer's calls of the road; each leaves its messages under autorizacao/.
exchange_files arquivos(std::string const& nome, char const* pedido, char const* resposta, char const* layout,
                        bool assinado, char const* descricao)
{
    return {"autorizacao/" + nome, pedido, resposta, layout, assinado, std::string(resposta) == "retInutNFe",
            descricao};
}

resposta::lote_autorizacao autorizar(demo_authority& sefaz, requisicao::lote_autorizacao const& lote,
                                     std::string const& nome)
{
    return sefaz.exchange(sefaz.autorizacao(), lote, "NFeAutorizacao4", "nfeAutorizacaoLote",
                          arquivos(nome, "enviNFe", "retEnviNFe", "4.00", true, "a batch of signed documents"));
}

resposta::lote_autorizacao consultar_recibo(demo_authority& sefaz, unsigned long long recibo, std::string const& nome)
{
    auto const pedido = requisicao::consulta_recibo::from_data(ambiente::homologacao, nfe::versao::versao_4_00, recibo,
                                                               erp::estado::sp, modelo::nfe);
    return sefaz.exchange(sefaz.recibo(), pedido, "NFeRetAutorizacao4", "nfeRetAutorizacaoLote",
                          arquivos(nome, "consReciNFe", "retConsReciNFe", "4.00", false, "the query by receipt"));
}

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

road_results run_authorization_step(demo_context& context, demo_authority& sefaz)
{
    demo_context::say("authorization step: the whole road against the local SEFAZ simulator acting as authority");
    core::result::stack stack;
    cryptography::pkcs12 const certificado = make_demo_certificate(stack);
    check(stack, "authorization step, certificate");

    demo_context::say("NFC-e, authorized synchronously (indSinc 1)");
    requisicao::documento_fiscal const nfce = documento_assinado(demo_nfce(), certificado);
    resposta::lote_autorizacao const lote_nfce = autorizar(sefaz, lote_de(nfce, 1, true), "nfce-autorizacao");
    say_batch(lote_nfce);
    context.write({"autorizacao/nfce-65-nfeProc.xml", "nfeProc", "4.00", "65", "SP", true,
                   "The NFC-e with its QR code, signed, beside its authorization protocol"},
                  archive_authorization(nfce, autorizado(lote_nfce)));

    demo_context::say("NF-e, authorized asynchronously (indSinc 0) through its receipt");
    requisicao::documento_fiscal const nfe_55 = documento_assinado(demo_nfe(), certificado);
    resposta::lote_autorizacao lote_nfe = autorizar(sefaz, lote_de(nfe_55, 2, false), "nfe-autorizacao");
    say_batch(lote_nfe);
    if (!lote_nfe.get_numero_recibo()) {
        throw demo_failure{"authorization step: the asynchronous batch got no receipt"};
    }
    unsigned long long const recibo = *lote_nfe.get_numero_recibo();
    // Polling is the caller's: ask again while the batch is in processing.
    for (unsigned vez = 1; vez <= 5; ++vez) {
        lote_nfe = consultar_recibo(sefaz, recibo, "nfe-recibo-" + std::to_string(vez));
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
        resposta::consulta const consulta = sefaz.query_by_key(documento->get_chave_acesso(), "autorizacao/" + std::string(nome), "the query by key");
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
    resposta::inutilizacao const inutilizado =
        sefaz.exchange(sefaz.inutilizacao(), pedido, "NFeInutilizacao4", "nfeInutilizacaoNF",
                       arquivos("inutilizacao", "inutNFe", "retInutNFe", "4.00", true, "a range of numbers"));
    demo_context::say("  cStat " + std::to_string(inutilizado.get_codigo_status()) + " " + inutilizado.get_motivo() +
                      ", protocol " + protocolo(inutilizado.get_protocolo()));
    context.write({"autorizacao/inutilizacao-procInutNFe.xml", "procInutNFe", "4.00", "65", "SP", true,
                   "The signed disablement of the NFC-e numbers 3 to 9 beside the authority's answer"},
                  archive_disablement(pedido, inutilizado));

    demo_context::say("GTIN of the kettle sold in the NFC-e");
    resposta::consulta_gtin const produto =
        sefaz.exchange(sefaz.gtin(), requisicao::consulta_gtin::from_data("7891234567895"), "ccgConsGtin",
                       "ccgConsGTIN", arquivos("gtin", "consGTIN", "retConsGTIN", "1.00", false, "a GTIN"));
    demo_context::say("  cStat " + std::to_string(produto.get_codigo_status()) + " " + produto.get_motivo() + ": " +
                      produto.get_desc_produto().value_or("-") + ", NCM " +
                      (produto.get_ncm() ? std::to_string(*produto.get_ncm()) : std::string("-")));
    return {nfce, autorizado(lote_nfce), nfe_55, autorizado(lote_nfe), pedido, inutilizado};
}

}  // namespace velk::demo

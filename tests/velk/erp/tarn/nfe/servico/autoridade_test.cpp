// The road of a document to its authorization, then to its events, and of a
// range to its disablement: the library's services against the simulator of
// this build, which answers as an authority, over mutual TLS on the loopback.
// What the authority refuses reaches the caller as the values of the answer.
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/servico/evento.hpp>
#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>

#include "../documentos_teste.hpp"
#include "../sefaz_data/requisicao/evento_teste.hpp"
#include "servicos_teste.hpp"

#include <support/files.hpp>
#include <support/report.hpp>
#include <support/schema.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

namespace nfe = velk::erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;
using velk::core::result::stack;
using velk::erp::estado;
using velk::erp::tarn::ambiente;
using velk::erp::tarn::chave_acesso;
using velk::erp::tarn::modelo;
using velk::test::ready;
using velk::test::sefaz_simulator;

// What the caller reads: status and reason, and of a protocol whether it
// carries a number of fifteen digits ("nProt") or none ("-").
std::string lido(unsigned status, std::string const& motivo, velk::core::optional<unsigned long long> numero = {},
                 bool com_numero = false)
{
    std::string line = std::to_string(status) + " " + motivo;
    if (com_numero) {
        line += numero && std::to_string(*numero).size() == 15 ? " nProt" : " -";
    }
    return line;
}

std::string lido(resposta::protocolo_nfe const& p)
{
    return lido(p.get_codigo_status(), p.get_motivo(), p.get_numero_protocolo(), true);
}

std::string lido(resposta::lote_autorizacao const& lote)
{
    std::string line = lido(lote.get_codigo_status(), lote.get_motivo());
    for (auto const& protocolo : lote.get_protocolos()) {
        line += " [" + lido(protocolo) + "]";
    }
    return line;
}

// One authority for a test: the simulator with its options, and the calls of
// each service to it. A failed call fails the test and reads as its report.
struct autoridade {
    sefaz_simulator simulator;
    nfe::web_server_info servidor = velk::test::server(simulator.url());

    explicit autoridade(std::vector<std::string> const& options = {}) : simulator(options) {}

    template <class Service, class Request>
    typename Service::resposta_type call(Request const& request) const
    {
        stack s;
        auto answer = ready<Service>().executar(request, servidor, s);
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        return answer;
    }

    resposta::lote_autorizacao autorizar(std::vector<requisicao::documento_fiscal> const& documentos,
                                         bool sincrono) const
    {
        requisicao::lote_autorizacao lote;
        lote.set_versao(nfe::versao::versao_4_00);
        lote.set_id(1);
        lote.set_indicador_sincrono(sincrono);
        stack s;
        for (auto const& documento : documentos) {
            lote.append_documento_fiscal(documento, s);
        }
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        return call<nfe::servico::autorizacao>(lote);
    }

    resposta::lote_autorizacao recibo(unsigned long long numero) const
    {
        return call<nfe::servico::consulta_recibo>(requisicao::consulta_recibo::from_data(
            ambiente::homologacao, nfe::versao::versao_4_00, numero, estado::sp, modelo::nfe));
    }

    resposta::consulta consultar(chave_acesso const& chave) const
    {
        return call<nfe::servico::consulta>(
            requisicao::consulta::from_data(chave, nfe::versao::versao_4_00, ambiente::homologacao));
    }

    // The events signed by the test taxpayer, in one batch. Every answer is
    // valid by the schema of the batch's answer.
    resposta::lote_evento registrar(std::vector<requisicao::evento> eventos) const
    {
        requisicao::lote_evento lote;
        lote.set_id_lote(7);
        stack s;
        for (requisicao::evento& evento : eventos) {
            evento.assinar(velk::test::taxpayer_pkcs12(), s);
            lote.append(evento);
        }
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        resposta::lote_evento answer = call<nfe::servico::evento>(lote);
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / "retEnvEvento_v1.00.xsd",
                                                      answer.get_xml()),
                  std::vector<std::string>());
        return answer;
    }

    resposta::inutilizacao inutilizar(unsigned inicial, unsigned final_) const
    {
        stack s;
        auto pedido = requisicao::inutilizacao::from_data(nfe::versao::versao_4_00, ambiente::homologacao,
                                                          "Numeracao pulada por falha do sistema emissor", estado::sp,
                                                          modelo::nfce, 24, 1, inicial, final_, 27164983000158ULL, s);
        pedido.assinar(velk::test::taxpayer_pkcs12(), s);
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        return call<nfe::servico::inutilizacao>(pedido);
    }
};

requisicao::documento_fiscal nfce(unsigned numero)
{
    return velk::test::documento_assinado(velk::test::renumbered(velk::test::nota_nfce_simples(), numero));
}

requisicao::documento_fiscal nfe_55(unsigned numero)
{
    return velk::test::documento_assinado(velk::test::renumbered(velk::test::nota_nfe_completa(), numero));
}

// The signed document with its text changed, read again and not signed again.
requisicao::documento_fiscal alterado(requisicao::documento_fiscal const& documento, std::string const& de,
                                      std::string const& para)
{
    std::string text = velk::test::saved_text(documento.get_xml());
    std::size_t const at = text.find(de);
    EXPECT_NE(at, std::string::npos) << de;
    text.replace(at, de.size(), para);
    stack s;
    auto read = requisicao::documento_fiscal::from_xml(velk::test::parse_element(text), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return read;
}

// The batch of events as the caller reads it: status and reason of the batch
// and of each event, with the status group of each.
std::string lido(resposta::lote_evento const& lote)
{
    std::string line = lido(lote.get_codigo_status(), lote.get_motivo()) + " (" +
                       std::to_string(nfe::obter_grupo_status_resposta(lote)) + ")";
    for (resposta::resposta_evento const& evento : lote.get_eventos()) {
        resposta::retorno_evento const& r =
            velk::core::visit([](auto const& each) -> resposta::retorno_evento const& { return each; }, evento);
        line += " [" + lido(r.get_codigo_status(), r.get_motivo(), r.get_numero_protocolo(), true) + " (" +
                std::to_string(nfe::obter_grupo_status_resposta(evento)) + ")]";
    }
    return line;
}

TEST(autoridade, an_nfce_authorized_at_once_and_found_by_its_key)
{
    autoridade const sefaz;
    requisicao::documento_fiscal const documento = nfce(1001);
    resposta::lote_autorizacao const lote = sefaz.autorizar({documento}, true);
    EXPECT_EQ(lido(lote), "104 Lote processado [100 Autorizado o uso da NF-e nProt]");
    EXPECT_FALSE(lote.get_numero_recibo().has_value());
    ASSERT_EQ(lote.get_protocolos().size(), 1u);
    resposta::protocolo_nfe const protocolo = lote.get_protocolos().front();
    stack s;
    EXPECT_EQ(velk::core::make_string(protocolo.get_chave_acesso(), s),
              velk::core::make_string(documento.get_chave_acesso(), s));
    EXPECT_EQ(velk::test::first_element_named(protocolo.get_xml(), "digVal")->get_contents(),
              documento.get_digest_value());

    resposta::consulta const consulta = sefaz.consultar(documento.get_chave_acesso());
    EXPECT_EQ(lido(consulta.get_codigo_status(), consulta.get_motivo()), "100 Autorizado o uso da NF-e");
    ASSERT_TRUE(consulta.get_protocolo_nfe().has_value());
    EXPECT_EQ(consulta.get_protocolo_nfe()->get_numero_protocolo().value_or(0),
              protocolo.get_numero_protocolo().value_or(1));
}

TEST(autoridade, an_nfe_authorized_through_its_receipt)
{
    autoridade const sefaz;
    requisicao::documento_fiscal const documento = nfe_55(2001);
    resposta::lote_autorizacao const recebido = sefaz.autorizar({documento}, false);
    EXPECT_EQ(lido(recebido), "103 Lote recebido com sucesso");
    ASSERT_TRUE(recebido.get_numero_recibo().has_value());
    unsigned long long const numero = *recebido.get_numero_recibo();
    EXPECT_EQ(std::to_string(numero).size(), 15u);

    // Asking too soon is no failure: the batch is still in processing.
    EXPECT_EQ(lido(sefaz.recibo(numero)), "105 Lote em processamento");
    EXPECT_EQ(lido(sefaz.recibo(numero)), "104 Lote processado [100 Autorizado o uso da NF-e nProt]");
    resposta::consulta const consulta = sefaz.consultar(documento.get_chave_acesso());
    EXPECT_EQ(consulta.get_codigo_status(), 100u);
}

struct recusa {
    char const* caso;
    std::vector<std::string> opcoes;  // of the simulator
    std::function<std::string(autoridade const&)> pedir;
    std::string lido;
};

// Each case against an authority of its own options.
template <std::size_t N>
void conferir(recusa const (&casos)[N])
{
    for (recusa const& each : casos) {
        SCOPED_TRACE(each.caso);
        autoridade const sefaz(each.opcoes);
        EXPECT_EQ(each.pedir(sefaz), each.lido);
    }
}

TEST(autoridade, each_refusal_reaches_the_caller_as_the_answer_says_it)
{
    auto const autorizar = [](std::vector<requisicao::documento_fiscal> const& documentos, bool sincrono = true) {
        return [documentos, sincrono](autoridade const& sefaz) { return lido(sefaz.autorizar(documentos, sincrono)); };
    };
    std::string const processado = "104 Lote processado ";
    recusa const recusas[] = {
        {"the same document twice", {},
         [](autoridade const& sefaz) {
             sefaz.autorizar({nfce(1101)}, true);
             // The reason names the protocol of the first and its time.
             std::string line = lido(sefaz.autorizar({nfce(1101)}, true));
             std::size_t const from = line.find(" [nProt:");
             std::size_t const to = line.find("] -]", from);
             if (from != std::string::npos && to != std::string::npos) {
                 line.replace(from, to + 1 - from, " [...]");
             }
             return line;
         },
         processado + "[204 Rejeição: Duplicidade de NF-e [...] -]"},
        {"a document changed after signing", {}, autorizar({alterado(nfce(1102), "<vNF>53.21", "<vNF>5.21")}),
         processado + "[297 Rejeição: Assinatura difere do calculado -]"},
        {"a key with a wrong check digit", {}, autorizar({velk::test::documento_assinado([] {
             auto nota = velk::test::renumbered(velk::test::nota_nfce_simples(), 1103);
             std::string chave = nota.get_chave_44_digitos();
             chave.back() = chave.back() == '9' ? '0' : static_cast<char>(chave.back() + 1);
             return nota.set_chave_44_digitos(chave);
         }())}),
         processado + "[236 Rejeição: Chave de Acesso com dígito verificador inválido -]"},
        {"a key that is not the document's", {}, autorizar({velk::test::documento_assinado(
             velk::test::renumbered(velk::test::nota_nfce_simples(), 1104).set_numero(1105))}),
         processado + "[502 Rejeição: Erro na Chave de Acesso - Campo Id não corresponde à concatenação dos campos "
                      "correspondentes -]"},
        {"a document of homologation to production", {"--ambiente", "1"}, autorizar({nfce(1106)}),
         processado + "[252 Rejeição: Ambiente informado diverge do Ambiente de recebimento -]"},
        {"a document its schema refuses", {},
         autorizar({alterado(nfce(1107), "<natOp>VENDA</natOp>", "<natOp>VENDA</natOp><natOp>VENDA</natOp>")}),
         "225 Rejeição: Falha no Schema XML do lote de NFe"},
        {"two documents to be answered at once", {}, autorizar({nfce(1108), nfce(1109)}),
         "452 Rejeição: Solicitada resposta síncrona para Lote com mais de uma NF-e (indSinc=1)"},
        {"a service stopped", {"--stopped", "short"}, autorizar({nfce(1110)}),
         "108 Serviço Paralisado Momentaneamente (curto prazo)"},
        {"a key never authorized", {},
         [](autoridade const& sefaz) {
             auto const consulta = sefaz.consultar(nfce(1111).get_chave_acesso());
             return lido(consulta.get_codigo_status(), consulta.get_motivo()) +
                    (consulta.get_protocolo_nfe() ? " with protocol" : "");
         },
         "217 Rejeição: NF-e não consta na base de dados da SEFAZ"},
        {"a receipt never given", {},
         [](autoridade const& sefaz) { return lido(sefaz.recibo(351000000000001ULL)); },
         "106 Lote não localizado"},
        {"a range that meets one disabled before", {},
         [](autoridade const& sefaz) {
             sefaz.inutilizar(300, 310);
             auto const inutilizado = sefaz.inutilizar(305, 320);
             return lido(inutilizado.get_codigo_status(), inutilizado.get_motivo(), inutilizado.get_protocolo(), true);
         },
         "563 Rejeição: Já existe pedido de Inutilização com a mesma faixa de inutilização -"},
    };
    conferir(recusas);
}

TEST(autoridade, a_range_disabled_and_a_product_of_the_catalogue)
{
    autoridade const sefaz;
    resposta::inutilizacao const inutilizado = sefaz.inutilizar(400, 402);
    EXPECT_EQ(lido(inutilizado.get_codigo_status(), inutilizado.get_motivo(), inutilizado.get_protocolo(), true),
              "102 Inutilização de número homologado nProt");
    EXPECT_EQ(inutilizado.get_numero_inicial().value_or(0), 400u);
    EXPECT_EQ(inutilizado.get_numero_final().value_or(0), 402u);
    EXPECT_EQ(inutilizado.get_cnpj().value_or(0), 27164983000158ULL);
    // A number of the range can no longer be authorized.
    EXPECT_EQ(lido(sefaz.autorizar({nfce(401)}, true)),
              "104 Lote processado [206 Rejeição: NF-e já está inutilizada na Base de dados da SEFAZ -]");

    auto const gtin = [&sefaz](char const* codigo) {
        return sefaz.call<nfe::servico::consulta_gtin>(requisicao::consulta_gtin::from_data(codigo));
    };
    resposta::consulta_gtin const achado = gtin("7894567002217");
    EXPECT_EQ(lido(achado.get_codigo_status(), achado.get_motivo()), "9490 Consulta realizada com sucesso");
    EXPECT_EQ(achado.get_desc_produto().value_or(""), "REFRIGERANTE COLA PET 2L");
    EXPECT_EQ(achado.get_ncm().value_or(0), 22021000u);
    EXPECT_EQ(achado.get_tipo_gtin().value_or(0), 13u);
    resposta::consulta_gtin const desconhecido = gtin("7891234567888");
    EXPECT_EQ(lido(desconhecido.get_codigo_status(), desconhecido.get_motivo()),
              "9494 Rejeição: GTIN não encontrado no Cadastro Centralizado de GTIN");
    EXPECT_FALSE(desconhecido.get_desc_produto().has_value());
}

// The events of the test notes, made by the library.
requisicao::evento evento_de(requisicao::cancelamento const& payload, chave_acesso const& chave)
{
    stack s;
    auto made = requisicao::evento::from_data(payload, chave, ambiente::homologacao, velk::test::momento_evento(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return made;
}

requisicao::evento cancelamento(requisicao::documento_fiscal const& documento, unsigned long long protocolo)
{
    stack s;
    return evento_de(requisicao::cancelamento::from_data("Venda desfeita a pedido do cliente", protocolo, s),
                     documento.get_chave_acesso());
}

// The NFC-e replaced by the one of the key given, issued offline.
requisicao::evento substituicao(requisicao::documento_fiscal const& documento, unsigned long long protocolo)
{
    stack s;
    return evento_de(requisicao::cancelamento::from_data("Venda registrada em contingencia", protocolo, 35, "pdv",
                                                         velk::test::chave_de_texto(velk::test::chave_nfce_offline), s),
                     documento.get_chave_acesso());
}

requisicao::evento carta(requisicao::documento_fiscal const& documento, unsigned sequencia)
{
    stack s;
    auto made = requisicao::evento::from_data(
        requisicao::carta_correcao::from_data("Endereco de entrega: Rua das Flores, 100", s),
        documento.get_chave_acesso(), ambiente::homologacao, velk::test::momento_evento(), sequencia, s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return made;
}

requisicao::evento epec(requisicao::documento_fiscal const& documento)
{
    stack s;
    auto const dest = requisicao::epec_nfe::destinatario::from_data(
        estado::rj, requisicao::epec_nfe::destinatario::cnpj{"11222333000181"}, "",
        {velk::core::decimal(5321, -2), velk::core::decimal(0, 0), velk::core::decimal(0, 0)}, s);
    auto made = requisicao::evento::from_data(
        requisicao::epec_nfe::from_data(estado::sp, velk::test::momento_evento(), 1, "111222333444", dest, s),
        documento.get_chave_acesso(), ambiente::homologacao, velk::test::momento_evento(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return made;
}

requisicao::evento ciencia(requisicao::documento_fiscal const& documento)
{
    stack s;
    auto made = requisicao::evento::from_data(
        requisicao::manifestacao_destinatario::from_data(
            requisicao::manifestacao_destinatario::tipo_manifestacao::ciencia_operacao, s),
        documento.get_chave_acesso(), ambiente::homologacao, velk::test::momento_evento(), s);
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return made;
}

// The protocol number of the document, authorized at once.
unsigned long long autorizado(autoridade const& sefaz, requisicao::documento_fiscal const& documento)
{
    auto const lote = sefaz.autorizar({documento}, true);
    return lote.get_protocolos().empty() ? 0 : lote.get_protocolos().front().get_numero_protocolo().value_or(0);
}

TEST(autoridade, each_event_registered_or_refused_reaches_the_caller_as_the_answer_says_it)
{
    std::string const processado = "128 Lote de Evento Processado (0) ";
    std::string const registrado = "135 Evento registrado e vinculado a NF-e nProt (0)";
    std::string const duplicado = "573 Rejeição: Duplicidade de Evento - (3)";
    recusa const casos[] = {
        {"a cancellation of a note authorized, then the same again", {},
         [](autoridade const& sefaz) {
             auto const nota = nfce(1201);
             auto const evento = cancelamento(nota, autorizado(sefaz, nota));
             std::string const primeiro = lido(sefaz.registrar({evento}));
             return primeiro + " | " + lido(sefaz.registrar({evento}));
         },
         processado + "[" + registrado + "] | " + processado + "[" + duplicado + "]"},
        {"a cancellation naming another protocol", {},
         [](autoridade const& sefaz) {
             auto const nota = nfce(1202);
             return lido(sefaz.registrar({cancelamento(nota, autorizado(sefaz, nota) + 1)}));
         },
         processado + "[222 Rejeição: Protocolo de Autorização de Uso difere do cadastrado - (3)]"},
        {"a cancellation of a key never authorized", {},
         [](autoridade const& sefaz) { return lido(sefaz.registrar({cancelamento(nfce(1203), 135240000000001)})); },
         processado + "[217 Rejeição: NF-e não consta na base de dados da SEFAZ - (3)]"},
        {"a cancellation by substitution, then a correction letter of the note cancelled", {},
         [](autoridade const& sefaz) {
             auto const nota = nfce(1204);
             std::string line = lido(sefaz.registrar({substituicao(nota, autorizado(sefaz, nota))}));
             return line + " | " + lido(sefaz.registrar({carta(nota, 1)}));
         },
         processado + "[" + registrado + "] | " + processado +
             "[580 Rejeição: O evento exige uma NF-e autorizada - (3)]"},
        {"correction letters: the next sequence, and the same one again", {},
         [](autoridade const& sefaz) {
             auto const nota = nfe_55(2201);
             autorizado(sefaz, nota);
             std::string const primeiro = lido(sefaz.registrar({carta(nota, 1), carta(nota, 2)}));
             return primeiro + " | " + lido(sefaz.registrar({carta(nota, 2)}));
         },
         processado + "[" + registrado + "] [" + registrado + "] | " + processado + "[" + duplicado + "]"},
        {"an EPEC before its note, and the recipient's awareness of a note held", {},
         [](autoridade const& sefaz) {
             auto const nota = nfe_55(2202);
             autorizado(sefaz, nota);
             return lido(sefaz.registrar({epec(nfe_55(2203)), ciencia(nota)}));
         },
         processado + "[136 Evento registrado, mas não vinculado a NF-e nProt (0)] [" + registrado + "]"},
        {"an event of homologation to production", {"--ambiente", "1"},
         [](autoridade const& sefaz) { return lido(sefaz.registrar({ciencia(nfe_55(2204))})); },
         processado + "[252 Rejeição: Ambiente informado diverge do Ambiente de recebimento - (3)]"},
        {"a service stopped", {"--stopped", "indefinite"},
         [](autoridade const& sefaz) { return lido(sefaz.registrar({ciencia(nfe_55(2205))})); },
         "109 Serviço Paralisado sem Previsão (2)"},
        {"the authority's own failure", {"--fault", "unknown-error"},
         [](autoridade const& sefaz) { return lido(sefaz.registrar({ciencia(nfe_55(2206))})); },
         "999 Rejeição: Erro não catalogado (1)"},
    };
    conferir(casos);
}

TEST(autoridade, a_cancelled_note_is_told_cancelled_with_its_events)
{
    autoridade const sefaz;
    auto const nota = nfe_55(2301);
    unsigned long long const protocolo = autorizado(sefaz, nota);
    sefaz.registrar({carta(nota, 1), ciencia(nota)});
    sefaz.registrar({cancelamento(nota, protocolo)});
    resposta::consulta const consulta = sefaz.consultar(nota.get_chave_acesso());
    EXPECT_EQ(lido(consulta.get_codigo_status(), consulta.get_motivo()), "101 Cancelamento de NF-e homologado");
    EXPECT_EQ(nfe::obter_grupo_status_resposta(consulta), 0);
    ASSERT_TRUE(consulta.get_protocolo_nfe().has_value());
    EXPECT_EQ(consulta.get_protocolo_nfe()->get_numero_protocolo().value_or(0), protocolo);
    std::vector<std::string> tipos;
    velk::xml::element const resposta_xml = consulta.get_xml();
    for (velk::xml::node const& child : resposta_xml.get_node_range()) {
        if (child.as_element() != nullptr && child.as_element()->get_name() == "procEventoNFe") {
            tipos.push_back(velk::test::first_element_named(*child.as_element(), "tpEvento")->get_contents());
        }
    }
    EXPECT_EQ(tipos, (std::vector<std::string>{"110110", "210210", "110111"}));
}

}  // namespace

#include "note_issuer.hpp"

#include "answer_fields.hpp"
#include "command_error.hpp"
#include "exchange.hpp"
#include "files.hpp"
#include "note_builder.hpp"

#include <velk/core/converter.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_autorizacao.hpp>

#include <array>
#include <chrono>
#include <thread>

namespace velk::tools::tarn {

namespace {

namespace nfe = erp::tarn::nfe;
namespace requisicao = nfe::sefaz_data::requisicao;
namespace resposta = nfe::sefaz_data::resposta;

// cStat of a batch still being processed.
constexpr unsigned em_processamento = 105;
// The waits before each query of a receipt; asking sooner only earns 105.
constexpr std::array<int, 8> receipt_waits_ms = {200, 500, 1000, 2000, 2000, 3000, 5000, 5000};

// The protocol of the document among those of the batch; null when the
// batch holds none for it.
resposta::protocolo_nfe const* protocol_of(std::vector<resposta::protocolo_nfe> const& protocols,
                                           std::string const& key)
{
    for (resposta::protocolo_nfe const& protocol : protocols) {
        if (answer_fields::key_text(protocol.get_chave_acesso()) == key) {
            return &protocol;
        }
    }
    return nullptr;
}

}  // namespace

note_issuer::note_issuer(authority_connection const& connection, qrcode_options const& qrcode, tool_data& data,
                         nfe::versao layout, std::optional<std::filesystem::path> output_folder)
    : connection_(connection), qrcode_(qrcode), data_(data), layout_(layout), output_folder_(std::move(output_folder))
{
    connection_.configure(autorizacao_);
    connection_.configure(recibo_);
    // Read once here, before any thread asks for them. The pages serve
    // NFC-e only: their absence is told by the notes that need them.
    data_.addresses();
    try {
        data_.pages();
    } catch (command_error const&) {
    }
}

issued_note note_issuer::issue(std::filesystem::path const& json_file) const
{
    issued_note note;
    note.report.set("arquivo", json_value::text(json_file.string()));
    try {
        run(json_file, note);
    } catch (command_error const& error) {
        note.status = error.status();
        note.report.set("situacao", json_value::text("falha"));
        note.report.set("erro", error.report());
    }
    return note;
}

void note_issuer::run(std::filesystem::path const& json_file, issued_note& note) const
{
    requisicao::documento_fiscal documento = note_builder::build(json_file, layout_);
    std::string const key = answer_fields::key_text(documento.get_chave_acesso());
    note.report.set("chave", json_value::text(key));
    note.report.set("modelo", json_value::text(documento.get_modelo() == erp::tarn::modelo::nfce ? "65" : "55"));
    qrcode_.apply(documento, data_);
    core::result::stack stack;
    documento.assinar(connection_.signing_certificate(), stack);
    throw_if_failed(stack, "assinatura");
    if (auto const qr = documento.get_qrcode_value()) {
        note.report.set("qrcode", json_value::text(*qr));
    }

    resposta::lote_autorizacao const lote = authorize(documento, note.report);
    std::vector<resposta::protocolo_nfe> const protocols = lote.get_protocolos();
    resposta::protocolo_nfe const* const protocol = protocol_of(protocols, key);
    unsigned const status = protocol != nullptr ? protocol->get_codigo_status() : lote.get_codigo_status();
    note.report.set("cStat", json_value::number(status));
    note.report.set("xMotivo", json_value::text(protocol != nullptr ? protocol->get_motivo() : lote.get_motivo()));
    if (protocol == nullptr || nfe::obter_grupo_status_resposta(*protocol) != nfe::grupo_sucesso) {
        note.status = exit_status::refused;
        note.report.set("situacao", json_value::text("recusada"));
        std::filesystem::path const signed_file = beside(json_file, "-assinado.xml");
        write_file(signed_file, xml_text(documento.get_xml(), "documento assinado"));
        note.report.set("assinado", json_value::text(signed_file.string()));
        return;
    }
    if (auto const number = protocol->get_numero_protocolo()) {
        note.report.set("protocolo", json_value::text(std::to_string(*number)));
    }
    auto const archive = nfe::sefaz_data::distribuicao::autorizacao::from_data(documento, *protocol, stack);
    throw_if_failed(stack, "nfeProc");
    std::filesystem::path const archive_file = beside(json_file, "-nfeProc.xml");
    write_file(archive_file, xml_text(archive.get_xml(), "nfeProc"));
    note.report.set("situacao", json_value::text("autorizada"));
    note.report.set("nfeProc", json_value::text(archive_file.string()));
}

resposta::lote_autorizacao note_issuer::authorize(requisicao::documento_fiscal const& documento,
                                                  json_value& report) const
{
    bool const synchronous = documento.get_modelo() == erp::tarn::modelo::nfce;
    requisicao::lote_autorizacao lote;
    lote.set_versao(documento.get_versao());
    lote.set_id(next_batch_++);
    lote.set_indicador_sincrono(synchronous);
    core::result::stack stack;
    lote.append_documento_fiscal(documento, stack);
    throw_if_failed(stack, "lote");
    resposta::lote_autorizacao answer = exchange(
        autorizacao_, lote,
        connection_.server(web_service::autorizacao, documento.get_estado(), documento.get_modelo()), "autorização");
    if (synchronous || !answer.get_numero_recibo()) {
        return answer;
    }
    report.set("recibo", json_value::text(std::to_string(*answer.get_numero_recibo())));
    return wait_for_receipt(documento, *answer.get_numero_recibo());
}

resposta::lote_autorizacao note_issuer::wait_for_receipt(requisicao::documento_fiscal const& documento,
                                                         unsigned long long receipt) const
{
    auto const pedido = requisicao::consulta_recibo::from_data(documento.get_ambiente(), documento.get_versao(),
                                                               receipt, documento.get_estado(), documento.get_modelo());
    auto const server =
        connection_.server(web_service::ret_autorizacao, documento.get_estado(), documento.get_modelo());
    for (int const wait : receipt_waits_ms) {
        std::this_thread::sleep_for(std::chrono::milliseconds(wait));
        resposta::lote_autorizacao answer = exchange(recibo_, pedido, server, "consulta do recibo");
        if (answer.get_codigo_status() != em_processamento) {
            return answer;
        }
    }
    throw command_error(
        exit_status::transport,
        failure_report::describe("consulta do recibo", "o lote do recibo " + std::to_string(receipt) +
                                                           " segue em processamento: consulte depois com tarn recibo"));
}

std::filesystem::path note_issuer::beside(std::filesystem::path const& json_file, char const* suffix) const
{
    std::filesystem::path const folder = output_folder_.value_or(json_file.parent_path());
    return folder / (json_file.stem().string() + suffix);
}

}  // namespace velk::tools::tarn

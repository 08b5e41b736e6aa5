#include "emitir_command.hpp"

#include "authority_connection.hpp"
#include "batch_runner.hpp"
#include "layout_option.hpp"
#include "note_issuer.hpp"
#include "option_values.hpp"
#include "qrcode_options.hpp"

namespace velk::tools::tarn {

emitir_command::emitir_command()
    : subcommand({"emitir", "gera, assina e autoriza notas em JSON; grava o nfeProc", "NOTA.json... [opções]",
                  "Cada nota (NotaFiscal em JSON) vira o documento do layout, recebe o QR code se for NFC-e,\n"
                  "é assinada e enviada: a NFC-e num lote síncrono, a NF-e num lote assíncrono cujo recibo\n"
                  "é consultado até a resposta. O nfeProc da nota autorizada é gravado ao lado do JSON\n"
                  "(NOTA-nfeProc.xml); a nota recusada deixa ali o documento assinado (NOTA-assinado.xml).\n"
                  "Várias notas: --jobs N emite N de cada vez, com uma barra de progresso no terminal e um\n"
                  "resumo ao fim. Saída: 0 todas autorizadas, 1 alguma recusada, 2 entrada inválida,\n"
                  "3 falha de transporte (o maior valor entre as notas). Com --json, uma nota dá o seu\n"
                  "relatório; várias, {\"notas\": [...], \"resumo\": {...}}.",
                  1, any_number},
                 joined({authority_connection::option_rows(),
                         qrcode_options::option_rows(),
                         {layout_option::row(),
                          {"saida", "PASTA", "grava os arquivos nesta pasta em vez de ao lado de cada nota"},
                          {"jobs", "N", "notas emitidas ao mesmo tempo (padrão 1)"}}}))
{
}

command_outcome emitir_command::run(option_table const& options, tool_data& data)
{
    unsigned const jobs =
        static_cast<unsigned>(option_values::number("--jobs", options.value("jobs").value_or("1"), 1, 64));
    authority_connection const connection(options, data);
    qrcode_options const qrcode(options, options.has("sim") || options.has("sim-pasta"));
    std::optional<std::filesystem::path> output;
    if (auto const folder = options.value("saida")) {
        output = *folder;
        std::error_code ignored;
        std::filesystem::create_directories(*output, ignored);
    }
    note_issuer const issuer(connection, qrcode, data, layout_option::read(options), output);
    std::vector<std::filesystem::path> const files(options.positionals().begin(), options.positionals().end());
    batch_runner::outcome batch = batch_runner(issuer, jobs).run(files);

    command_outcome outcome;
    outcome.status = batch.status;
    if (files.size() == 1) {
        outcome.report = std::move(batch.notes.front().report);
        return outcome;
    }
    json_value notes = json_value::array();
    for (issued_note& note : batch.notes) {
        notes.push(std::move(note.report));
    }
    outcome.report.set("notas", std::move(notes));
    outcome.report.set("resumo", std::move(batch.summary));
    return outcome;
}

void emitir_command::print_text(json_value const& report, std::FILE* out) const
{
    json_value const* const notes = report.find("notas");
    if (notes == nullptr) {
        print_report_text(report, out);
        return;
    }
    // One line per note, then the summary.
    for (json_value const& note : notes->items()) {
        auto const text = [&](char const* key) {
            json_value const* const found = note.find(key);
            return found != nullptr ? found->scalar() : std::string("-");
        };
        std::string line = text("arquivo") + ": " + text("situacao");
        if (note.find("cStat") != nullptr) {
            line += " " + text("cStat") + " " + text("xMotivo");
        }
        if (json_value const* const failure = note.find("erro")) {
            json_value const* const step = failure->find("etapa");
            line += " em " + (step != nullptr ? step->scalar() : std::string("?"));
        }
        std::fprintf(out, "%s\n", line.c_str());
    }
    json_value const* const summary = report.find("resumo");
    if (summary != nullptr) {
        print_report_text(json_value::object().set("resumo", *summary), out);
    }
}

}  // namespace velk::tools::tarn

#include "gerar_command.hpp"

#include "answer_fields.hpp"
#include "files.hpp"
#include "layout_option.hpp"
#include "note_builder.hpp"

namespace velk::tools::tarn {

gerar_command::gerar_command()
    : subcommand({"gerar", "gera o documento (sem assinatura) de uma nota em JSON", "NOTA.json [opções]",
                  "Lê a nota (NotaFiscal em JSON) e grava o documento NF-e ou NFC-e do layout, sem QR code\n"
                  "nem assinatura, em NOTA.xml ao lado dela (ou em --saida). Os passos seguintes são\n"
                  "`tarn qrcode` (NFC-e) e `tarn assinar`. Saída: 0 gravado, 2 nota inválida.",
                  1, 1},
                 {layout_option::row(), {"saida", "ARQUIVO", "grava o documento neste arquivo"}})
{
}

command_outcome gerar_command::run(option_table const& options, tool_data&)
{
    std::filesystem::path const input = options.positionals().front();
    auto const documento = note_builder::build(input, layout_option::read(options));
    std::filesystem::path const output = output_file(input, options.value("saida"), ".xml");
    write_file(output, xml_text(documento.get_xml(), "documento"));
    command_outcome outcome;
    outcome.report.set("chave", json_value::text(answer_fields::key_text(documento.get_chave_acesso())))
        .set("modelo", json_value::text(documento.get_modelo() == erp::tarn::modelo::nfce ? "65" : "55"))
        .set("documento", json_value::text(output.string()));
    return outcome;
}

}  // namespace velk::tools::tarn

#include "qrcode_command.hpp"

#include "command_error.hpp"
#include "files.hpp"
#include "qrcode_options.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::tools::tarn {

qrcode_command::qrcode_command()
    : subcommand(
          {"qrcode", "calcula o QR code de uma NFC-e (e o grava no documento)", "DOC.xml --token ID [opções]",
           "Calcula o endereço do QR code da NFC-e (versão 2.00 ou 1.00) com o CSC e o seu\n"
           "identificador, e o imprime. Com --saida grava o documento com infNFeSupl (qrCode e\n"
           "urlChave), pronto para `tarn assinar`. Um documento que já tem QR code o mantém.\n"
           "O CSC vem de --csc-arquivo ou da variável TARN_CSC, nunca da linha de comando.\n"
           "Saída: 0 feito, 2 documento, CSC ou token inválido.",
           1, 1},
          joined({qrcode_options::option_rows(), {{"saida", "ARQUIVO", "grava o documento com o QR code neste arquivo"}}}))
{
}

command_outcome qrcode_command::run(option_table const& options, tool_data& data)
{
    qrcode_options const qrcode(options, false);
    core::result::stack stack;
    auto documento = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_xml(
        read_xml(options.positionals().front()), stack);
    throw_if_failed(stack, "leitura do documento");
    if (documento.get_modelo() != erp::tarn::modelo::nfce) {
        throw command_error::usage("QR code", "o documento não é uma NFC-e (modelo 65)");
    }
    qrcode.apply(documento, data);
    command_outcome outcome;
    outcome.report.set("qrcode", json_value::text(documento.get_qrcode_value().value_or(std::string())));
    if (auto const url_chave = documento.get_url_chave()) {
        outcome.report.set("urlChave", json_value::text(*url_chave));
    }
    if (auto const output = options.value("saida")) {
        write_file(*output, xml_text(documento.get_xml(), "documento"));
        outcome.report.set("documento", json_value::text(*output));
    }
    return outcome;
}

}  // namespace velk::tools::tarn

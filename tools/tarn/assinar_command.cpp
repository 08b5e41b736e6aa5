#include "assinar_command.hpp"

#include "answer_fields.hpp"
#include "certificate_options.hpp"
#include "command_error.hpp"
#include "files.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::tools::tarn {

assinar_command::assinar_command()
    : subcommand({"assinar", "assina um documento NF-e ou NFC-e com o certificado A1", "DOC.xml [opções]",
                  "Assina o documento (o elemento NFe) com a assinatura envelopada, RSA-SHA1 sobre XML\n"
                  "canônico, e grava DOC-assinado.xml ao lado dele (ou em --saida). Uma assinatura\n"
                  "anterior é substituída. Uma NFC-e recebe o QR code antes (`tarn qrcode`).\n"
                  "O certificado é o de --pfx, ou o de teste de --sim-pasta. Saída: 0 assinado,\n"
                  "2 documento ou certificado inválido.",
                  1, 1},
                 joined({certificate_options::option_rows(),
                         {{"sim-pasta", "PASTA", "assina com o certificado de teste de `tarn simulador --pasta PASTA`"},
                          {"saida", "ARQUIVO", "grava o documento assinado neste arquivo"}}}))
{
}

command_outcome assinar_command::run(option_table const& options, tool_data&)
{
    std::optional<cryptography::pkcs12> certificate = certificate_options::load(options);
    if (!certificate) {
        std::optional<std::string> const folder = options.value("sim-pasta");
        if (!folder) {
            throw command_error::usage("certificado", "informe --pfx");
        }
        certificate = certificate_options::of_simulator(*folder);
    }
    std::filesystem::path const input = options.positionals().front();
    core::result::stack stack;
    auto documento = erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal::from_xml(read_xml(input), stack);
    throw_if_failed(stack, "leitura do documento");
    documento.assinar(*certificate, stack);
    throw_if_failed(stack, "assinatura");
    std::filesystem::path const output = output_file(input, options.value("saida"), "-assinado.xml");
    write_file(output, xml_text(documento.get_xml(), "documento assinado"));
    command_outcome outcome;
    outcome.report.set("chave", json_value::text(answer_fields::key_text(documento.get_chave_acesso())))
        .set("digest", json_value::text(documento.get_digest_value()))
        .set("documento", json_value::text(output.string()));
    return outcome;
}

}  // namespace velk::tools::tarn

#include "validar_command.hpp"

#include "command_error.hpp"
#include "document_checker.hpp"
#include "secret_source.hpp"

namespace velk::tools::tarn {

namespace {

secret_source const csc_source("csc-arquivo", "TARN_CSC");

void print_file(json_value const& report, std::FILE* out)
{
    auto const text = [&](char const* key) {
        json_value const* const found = report.find(key);
        return found != nullptr ? found->scalar() : std::string();
    };
    std::fprintf(out, "%s\n", text("arquivo").c_str());
    if (json_value const* const failure = report.find("erro")) {
        json_value const* reason = failure->find("motivo");
        if (json_value const* const reasons = failure->find("motivos");
            reasons != nullptr && !reasons->items().empty()) {
            reason = reasons->items().front().find("mensagem");
        }
        std::fprintf(out, "  erro: %s\n", reason != nullptr ? reason->scalar().c_str() : "ilegível");
        return;
    }
    std::fprintf(out, "  tipo: %s\n", text("tipo").c_str());
    if (json_value const* const findings = report.find("achados")) {
        for (json_value const& item : findings->items()) {
            std::fprintf(out, "  %s\n", finding::from_json(item).to_line().c_str());
        }
    }
}

}  // namespace

validar_command::validar_command()
    : subcommand({"validar", "confere esquema, assinatura, chave e QR code de documentos", "ARQUIVO.xml... [opções]",
                  "Diz que mensagem é cada arquivo (NFe, nfeProc, enviNFe, evento, procEventoNFe, inutNFe,\n"
                  "ProcInutNFe e as respostas) e confere, uma linha por achado: o esquema oficial instalado\n"
                  "com o tarn, cada assinatura (resumo e valor, XML canônico e RSA-SHA1), o dígito\n"
                  "verificador e os campos da chave de acesso, e, com o CSC, o hash do QR code da NFC-e.\n"
                  "Saída: 0 tudo confere, 1 algum achado falhou, 2 arquivo ilegível ou desconhecido.",
                  1, any_number},
                 {{"csc-arquivo", "ARQUIVO", "arquivo com o CSC para conferir o QR code (ou a variável TARN_CSC)"}})
{
}

command_outcome validar_command::run(option_table const& options, tool_data& data)
{
    std::string error;
    std::optional<std::string> csc = csc_source.read(options, error);
    if (!error.empty()) {
        throw command_error::usage("CSC", error);
    }
    document_checker checker(data.schemas(), std::move(csc));
    command_outcome outcome;
    json_value files = json_value::array();
    for (std::string const& file : options.positionals()) {
        command_outcome each;
        try {
            each = checker.check(file);
        } catch (command_error const& failure) {
            each.status = failure.status();
            each.report.set("arquivo", json_value::text(file)).set("erro", failure.report());
        }
        outcome.status = worst(outcome.status, each.status);
        files.push(std::move(each.report));
    }
    if (files.items().size() == 1) {
        outcome.report = files.items().front();
    } else {
        outcome.report.set("arquivos", std::move(files));
    }
    return outcome;
}

void validar_command::print_text(json_value const& report, std::FILE* out) const
{
    if (json_value const* const files = report.find("arquivos")) {
        for (json_value const& file : files->items()) {
            print_file(file, out);
        }
    } else {
        print_file(report, out);
    }
}

}  // namespace velk::tools::tarn

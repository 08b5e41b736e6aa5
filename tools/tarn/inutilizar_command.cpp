#include "inutilizar_command.hpp"

#include "answer_fields.hpp"
#include "authority_connection.hpp"
#include "command_error.hpp"
#include "exchange.hpp"
#include "files.hpp"
#include "model_option.hpp"
#include "option_values.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/servico/inutilizacao.hpp>

#include <chrono>

namespace velk::tools::tarn {

namespace {

namespace nfe = erp::tarn::nfe;

// The CNPJ of an e-CNPJ certificate, whose common name is "RAZAO SOCIAL:CNPJ".
std::string cnpj_of(cryptography::pkcs12 const& certificate)
{
    std::string const name = certificate.get_certificate().get_subject_common_name();
    std::size_t const colon = name.rfind(':');
    return colon == std::string::npos ? std::string() : name.substr(colon + 1);
}

unsigned this_year()
{
    std::chrono::year_month_day const today(std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()));
    return static_cast<unsigned>(static_cast<int>(today.year()) % 100);
}

}  // namespace

inutilizar_command::inutilizar_command()
    : subcommand({"inutilizar", "inutiliza uma faixa de números de uma série",
                  "--uf UF --serie S --de N --ate M --justificativa TEXTO",
                  "Pede ao autorizador da UF que inutilize os números de --de a --ate da série, no ano\n"
                  "(dois dígitos, padrão o corrente) e para o CNPJ do emitente (padrão o do certificado).\n"
                  "A justificativa tem de 15 a 255 caracteres. Com --saida grava o pedido assinado e a\n"
                  "resposta (procInutNFe). Saída: 0 homologado (102), 1 recusado, 2 uso inválido,\n"
                  "3 falha de transporte.",
                  0, 0},
                 joined({authority_connection::option_rows(),
                         {model_option::row(),
                          {"serie", "S", "série dos números"},
                          {"de", "N", "primeiro número da faixa"},
                          {"ate", "M", "último número da faixa"},
                          {"justificativa", "TEXTO", "motivo da inutilização"},
                          {"ano", "AA", "ano da inutilização, dois dígitos (padrão o corrente)"},
                          {"cnpj", "CNPJ", "CNPJ do emitente (padrão o do certificado)"},
                          {"saida", "ARQUIVO", "grava o pedido com a resposta (procInutNFe) neste arquivo"}}}))
{
}

command_outcome inutilizar_command::run(option_table const& options, tool_data& data)
{
    erp::estado const uf = option_values::required_uf(options);
    erp::tarn::modelo const modelo = model_option::read(options);
    auto const serie =
        static_cast<unsigned>(option_values::number("--serie", option_values::required(options, "serie"), 0, 999));
    auto const de =
        static_cast<unsigned>(option_values::number("--de", option_values::required(options, "de"), 1, 999999999));
    auto const ate =
        static_cast<unsigned>(option_values::number("--ate", option_values::required(options, "ate"), de, 999999999));
    std::string const justificativa = option_values::required(options, "justificativa");
    auto const ano = static_cast<unsigned>(
        option_values::number("--ano", options.value("ano").value_or(std::to_string(this_year())), 0, 99));
    authority_connection const connection(options, data);
    std::string const cnpj = options.value("cnpj").value_or(cnpj_of(connection.signing_certificate()));
    auto const cnpj_number = option_values::number("CNPJ", cnpj, 1, 99999999999999ULL);

    core::result::stack stack;
    auto request = nfe::sefaz_data::requisicao::inutilizacao::from_data(nfe::versao::versao_4_00, connection.ambiente(),
                                                                        justificativa, uf, modelo, ano, serie, de, ate,
                                                                        cnpj_number, stack);
    throw_if_failed(stack, "inutilização");
    request.assinar(connection.signing_certificate(), stack);
    throw_if_failed(stack, "assinatura da inutilização");
    nfe::servico::inutilizacao service;
    connection.configure(service);
    auto const answer =
        exchange(service, request, connection.server(web_service::inutilizacao, uf, modelo), "inutilização");

    command_outcome outcome;
    answer_fields::set_status(outcome.report, answer.get_codigo_status(), answer.get_motivo());
    if (auto const number = answer.get_protocolo()) {
        outcome.report.set("protocolo", json_value::text(std::to_string(*number)));
    }
    outcome.status = answer_fields::of_group(nfe::obter_grupo_status_resposta(answer));
    if (outcome.status == exit_status::ok) {
        if (auto const file = options.value("saida")) {
            auto const proc = nfe::sefaz_data::distribuicao::inutilizacao::from_data(request, answer, stack);
            throw_if_failed(stack, "procInutNFe");
            write_file(*file, xml_text(proc.get_xml(), "procInutNFe"));
            outcome.report.set("procInutNFe", json_value::text(*file));
        }
    }
    return outcome;
}

}  // namespace velk::tools::tarn

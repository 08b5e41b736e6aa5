#include "gtin_command.hpp"

#include "answer_fields.hpp"
#include "authority_connection.hpp"
#include "exchange.hpp"

#include <velk/erp/tarn/nfe/servico/consulta_gtin.hpp>

namespace velk::tools::tarn {

namespace {

// cStat of a GTIN found in the catalogue.
constexpr unsigned encontrado = 9490;

}  // namespace

gtin_command::gtin_command()
    : subcommand({"gtin", "consulta um GTIN no cadastro centralizado", "CODIGO [opções]",
                  "Consulta o produto do GTIN no cadastro centralizado, que atende a todas as UFs e\n"
                  "só tem endereço de produção (a consulta não leva ambiente). Saída: 0 encontrado\n"
                  "(9490), 1 outra resposta, 2 uso inválido, 3 falha de transporte.",
                  1, 1},
                 authority_connection::option_rows())
{
}

command_outcome gtin_command::run(option_table const& options, tool_data& data)
{
    authority_connection const connection(options, data);
    erp::tarn::nfe::servico::consulta_gtin service;
    connection.configure(service);
    auto const request =
        erp::tarn::nfe::sefaz_data::requisicao::consulta_gtin::from_data(options.positionals().front());
    auto const answer = exchange(service, request,
                                 connection.server(web_service::consulta_gtin, erp::estado::sp, erp::tarn::modelo::nfe),
                                 "consulta do GTIN");

    command_outcome outcome;
    answer_fields::set_status(outcome.report, answer.get_codigo_status(), answer.get_motivo());
    if (auto const gtin = answer.get_gtin()) {
        outcome.report.set("GTIN", json_value::text(*gtin));
    }
    if (auto const kind = answer.get_tipo_gtin()) {
        outcome.report.set("tpGTIN", json_value::number(*kind));
    }
    if (auto const description = answer.get_desc_produto()) {
        outcome.report.set("xProd", json_value::text(*description));
    }
    if (auto const ncm = answer.get_ncm()) {
        std::string text = std::to_string(*ncm);
        outcome.report.set("NCM", json_value::text(std::string(text.size() < 8 ? 8 - text.size() : 0, '0') + text));
    }
    json_value cests = json_value::array();
    for (unsigned const cest : answer.get_cest()) {
        cests.push(json_value::number(cest));
    }
    outcome.report.set("CEST", std::move(cests));
    outcome.status = answer.get_codigo_status() == encontrado ? exit_status::ok : exit_status::refused;
    return outcome;
}

}  // namespace velk::tools::tarn

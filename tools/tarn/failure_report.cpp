#include "failure_report.hpp"

#include <velk/erp/tarn/nfe/servico_result_category.hpp>

#include <algorithm>
#include <array>
#include <cstring>

namespace velk::tools::tarn {

namespace {

using servico = erp::tarn::nfe::servico_result_category;

// The transport's own category, whose class is private to the library: known
// by its name.
constexpr char transport_category[] = "tarn-detail-soap-curl";

// The service codes that tell an exchange that went wrong on the way.
constexpr std::array<int, 6> exchange_codes = {
    servico::resposta_ilegivel.value,    servico::sem_tempo_limite.value,          servico::falha_soap.value,
    servico::servico_indisponivel.value, servico::resposta_nao_identificada.value, servico::soap_invalido.value};

bool is_transport(core::result::stack::item const& item)
{
    if (std::strcmp(item.get_category().get_name(), transport_category) == 0) {
        return true;
    }
    return &item.get_category() == &servico::instance() &&
           std::find(exchange_codes.begin(), exchange_codes.end(), item.get_value()) != exchange_codes.end();
}

}  // namespace

exit_status failure_report::classify(core::result::stack const& stack)
{
    return std::any_of(stack.begin(), stack.end(), is_transport) ? exit_status::transport : exit_status::bad_input;
}

json_value failure_report::describe(core::result::stack const& stack, std::string const& step)
{
    json_value reasons = json_value::array();
    for (auto item = stack.end(); item != stack.begin();) {
        --item;
        json_value arguments = json_value::object();
        for (auto const& [name, value] : item->get_arguments()) {
            arguments.set(name, json_value::text(value));
        }
        reasons.push(json_value::object()
                         .set("categoria", json_value::text(item->get_category().get_name()))
                         .set("codigo", json_value::number(item->get_value()))
                         .set("mensagem", json_value::text(item->get_message()))
                         .set("argumentos", std::move(arguments)));
    }
    return json_value::object().set("etapa", json_value::text(step)).set("motivos", std::move(reasons));
}

json_value failure_report::describe(std::string const& step, std::string const& reason)
{
    return json_value::object().set("etapa", json_value::text(step)).set("motivo", json_value::text(reason));
}

}  // namespace velk::tools::tarn

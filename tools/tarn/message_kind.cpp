#include "message_kind.hpp"

#include <algorithm>
#include <array>

namespace velk::tools::tarn {

namespace {

std::vector<message_kind> const& kinds()
{
    static std::vector<message_kind> const table = {
        {"NFe", "NF-e ou NFC-e", "nfe", {{{}, "infNFe", "assinatura"}}, key_place::document, {}},
        {"nfeProc",
         "NF-e ou NFC-e com o protocolo",
         "procNFe",
         {{{"NFe"}, "infNFe", "assinatura"}},
         key_place::document,
         {"NFe"}},
        {"enviNFe",
         "lote de autorização",
         "enviNFe",
         {{{"NFe"}, "infNFe", "assinatura"}},
         key_place::document,
         {"NFe"}},
        {"evento", "evento", "", {{{}, "infEvento", "assinatura"}}, key_place::event, {}},
        {"envEvento", "lote de eventos", "", {{{"evento"}, "infEvento", "assinatura"}}, key_place::event, {"evento"}},
        {"procEventoNFe",
         "evento com a resposta",
         "",
         {{{"evento"}, "infEvento", "assinatura"}, {{"retEvento"}, "infEvento", "assinatura da resposta"}},
         key_place::event,
         {"evento"}},
        {"inutNFe", "inutilização", "inutNFe", {{{}, "infInut", "assinatura"}}, key_place::none, {}},
        {"ProcInutNFe",
         "inutilização com a resposta",
         "procInutNFe",
         {{{"inutNFe"}, "infInut", "assinatura"}, {{"retInutNFe"}, "infInut", "assinatura da resposta"}},
         key_place::none,
         {}},
        {"retInutNFe",
         "resposta da inutilização",
         "retInutNFe",
         {{{}, "infInut", "assinatura da resposta"}},
         key_place::none,
         {}},
        {"consStatServ", "consulta de status", "consStatServ", {}, key_place::none, {}},
        {"retConsStatServ", "resposta de status", "retConsStatServ", {}, key_place::none, {}},
        {"consSitNFe", "consulta por chave", "consSitNFe", {}, key_place::none, {}},
        {"retConsSitNFe", "resposta da consulta por chave", "retConsSitNFe", {}, key_place::none, {}},
        {"consReciNFe", "consulta de recibo", "consReciNFe", {}, key_place::none, {}},
        {"retConsReciNFe", "resposta do recibo", "retConsReciNFe", {}, key_place::none, {}},
        {"retEnviNFe", "resposta do lote", "retEnviNFe", {}, key_place::none, {}},
        {"retEnvEvento", "resposta do lote de eventos", "retEnvEvento", {}, key_place::none, {}},
        {"consGTIN", "consulta de GTIN", "consGTIN", {}, key_place::none, {}},
        {"retConsGTIN", "resposta de GTIN", "retConsGTIN", {}, key_place::none, {}},
    };
    return table;
}

// The schemas of the events that have their own, by type: the event alone,
// its batch, and the event with its answer.
struct event_schemas {
    std::string_view tipo;
    std::string_view evento;
    std::string_view env_evento;
    std::string_view proc_evento;
};

constexpr std::array<event_schemas, 3> by_event = {{
    {"110111", "eventoCancNFe", "envEventoCancNFe", "procEventoCancNFe"},
    {"110112", "eventoCancSubst", "envEventoCancSubst", "procEventoCancSubst"},
    {"110110", "CCe", "envCCe", "procCCeNFe"},
}};

}  // namespace

message_kind const* message_kind::find(std::string_view root)
{
    auto const& table = kinds();
    auto const found =
        std::find_if(table.begin(), table.end(), [&](message_kind const& kind) { return kind.root == root; });
    return found == table.end() ? nullptr : &*found;
}

std::string message_kind::event_schema(std::string_view root, std::string_view tipo_evento)
{
    auto const found = std::find_if(by_event.begin(), by_event.end(),
                                    [&](event_schemas const& entry) { return entry.tipo == tipo_evento; });
    if (root == "evento") {
        return found == by_event.end() ? std::string() : std::string(found->evento);
    }
    if (root == "envEvento") {
        return std::string(found == by_event.end() ? "envEvento" : found->env_evento);
    }
    return std::string(found == by_event.end() ? "procEventoNFe" : found->proc_evento);
}

}  // namespace velk::tools::tarn

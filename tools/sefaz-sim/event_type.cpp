#include "event_type.hpp"

#include <iterator>

namespace velk::tools::sefaz_sim {

namespace {

// A correction letter or a cancellation is the issuer's word on a note the
// authority holds. EPEC is sent before the note reaches any authority, and a
// recipient may speak of a note its own authority has not yet passed on, so
// both are registered whatever the key. The names are those of descEvento,
// but for EPEC, whose four letters are shorter than xEvento allows.
constexpr event_type types[] = {
    {"110110", "Carta de Correção", event_rule::needs_note},
    {"110111", "Cancelamento", event_rule::cancels},
    {"110112", "Cancelamento por substituicao", event_rule::cancels},
    {"110140", "EPEC - Evento Prévio de Emissão em Contingência", event_rule::may_precede},
    {"210200", "Confirmacao da Operacao", event_rule::may_precede},
    {"210210", "Ciencia da Operacao", event_rule::may_precede},
    {"210220", "Desconhecimento da Operacao", event_rule::may_precede},
    {"210240", "Operacao nao Realizada", event_rule::may_precede},
};

}  // namespace

event_type const* event_type::find(std::string_view code)
{
    for (event_type const& type : types) {
        if (type.code == code) {
            return &type;
        }
    }
    return nullptr;
}

}  // namespace velk::tools::sefaz_sim

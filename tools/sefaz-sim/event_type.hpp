#pragma once

#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// What the authority asks of the note an event is about, before it registers
// the event.
enum class event_rule {
    cancels,      // the note authorized, not cancelled, and its protocol number named; the note is then cancelled
    needs_note,   // the note authorized and not cancelled
    may_precede,  // any key: linked to the note when the authority has it (135), registered alone when not (136)
};

// One type of event the simulator registers (tpEvento), with the name its
// answers give it (xEvento) and the rule it follows.
struct event_type {
    std::string_view code;
    std::string_view name;
    event_rule rule;

    // The type of a tpEvento; null for one the simulator has no rules for.
    static event_type const* find(std::string_view code);
};

}  // namespace velk::tools::sefaz_sim

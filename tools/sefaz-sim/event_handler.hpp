#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The registration of a batch of events (envEvento -> retEnvEvento). The batch
// is checked as a whole first: the stop switch, version (239), the schema of
// the event frame (215), each answered without any retEvento. Then each event
// goes through the event_examiner and the records and gets its retEvento, and
// the batch answers 128. A registered event's retEvento carries a protocol
// number and is signed with the server's key, and its procEventoNFe is kept
// for the query by key.
class event_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "envEvento"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;

private:
    // The retEvento of one event, signed when it was registered.
    std::string registered(xmlNode const* evento) const;
};

}  // namespace velk::tools::sefaz_sim

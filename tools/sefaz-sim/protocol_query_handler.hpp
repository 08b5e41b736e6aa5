#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The query by access key (consSitNFe -> retConsSitNFe): 100 with the protNFe
// of a document authorized while the process runs, 101 once an event
// cancelled it, 217 for any other key. The procEventoNFe of each event
// registered about the key follow the protNFe: those of a key the authority
// never authorized (an EPEC, a manifestation) are not told.
class protocol_query_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "consSitNFe"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The query by access key (consSitNFe -> retConsSitNFe): 100 with the protNFe
// of a document authorized while the process runs, 217 for any other key.
class protocol_query_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "consSitNFe"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

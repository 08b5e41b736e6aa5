#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The receipt query (consReciNFe -> retConsReciNFe): 105 "in processing" for
// the first --processing-polls queries of a receipt, then 104 with the
// protNFe of each document of the batch; 106 for a receipt never given.
class receipt_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "consReciNFe"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

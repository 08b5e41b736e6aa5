#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The GTIN catalogue (consGTIN -> retConsGTIN, inside ccgConsGTINResponse):
// 9490 with the product's description, NCM and CEST for a GTIN of the
// catalogue, 9494 for any other.
class gtin_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "consGTIN"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

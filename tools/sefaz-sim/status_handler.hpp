#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The status service (consStatServ -> retConsStatServ): 107 "Serviço em
// Operação", with the average time of answer, once the common checks pass.
class status_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "consStatServ"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

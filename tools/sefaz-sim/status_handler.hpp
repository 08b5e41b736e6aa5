#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The status service (consStatServ -> retConsStatServ): 107 "Servico em
// Operacao" for a message that passed its schema, 215 for one that did not,
// 239 for a version without schema.
class status_handler final : public service_handler {
public:
    std::string_view payload_root() const override { return "consStatServ"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The disablement of a number range (inutNFe -> retInutNFe): the signature of
// the request (298, 297), then the records: 563 for a range that meets one
// disabled before, 241 for one that holds an authorized number, else 102
// with a protocol number, the answer signed with the server's key.
class disablement_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "inutNFe"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

#pragma once

#include "service_handler.hpp"

namespace velk::tools::sefaz_sim {

// The authorization of a batch (enviNFe -> retEnviNFe). The batch is checked
// as a whole first: the stop switch, version, its schema (225), a synchronous
// batch of more than one document (452). Then each document goes through the
// document_examiner and the records, and gets its protNFe. indSinc 1 answers
// 104 with the protNFe of its one document; indSinc 0 answers 103 with a
// receipt, and the protocols wait for the receipt query.
class authorization_handler final : public service_handler {
public:
    using service_handler::service_handler;
    std::string_view payload_root() const override { return "enviNFe"; }
    std::string answer(request_envelope const& request, validation const& checked) const override;
};

}  // namespace velk::tools::sefaz_sim

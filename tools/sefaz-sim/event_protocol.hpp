#pragma once

#include <string>

namespace velk::tools::sefaz_sim {

// One event's outcome as the authority tells it in retEvento: registered with
// a protocol number, or rejected without one.
struct event_protocol {
    std::string ambiente = "2";
    std::string orgao;          // cOrgao of the event
    std::string key;            // chNFe
    std::string type;           // tpEvento
    std::string name;           // xEvento; empty for a type the simulator has no rules for
    std::string sequence;       // nSeqEvento
    std::string registered_at;  // dhRegEvento
    std::string number;         // nProt; empty for a rejection
    int status = 0;
    std::string reason;

    // The Id of infEvento: "ID" and the protocol number; empty for a
    // rejection, whose answer has neither Id nor signature.
    std::string id() const;
    // The retEvento element, unsigned, declaring the fiscal namespace.
    std::string xml() const;
};

}  // namespace velk::tools::sefaz_sim

#pragma once

#include "event_protocol.hpp"
#include "schema_validator.hpp"

#include <libxml/tree.h>

#include <string>

namespace velk::tools::sefaz_sim {

// The checks of one event of a batch that need nothing but the event, in the
// authority's order: a type it has rules for (999 for any other), the
// detEvento against the schema of its type and version, e<tpEvento>_v<versao>
// (215), the signature, verified with the certificate it carries (298 not of
// the standard form, 297 not matching), the environment (252) and the check
// digit of the key (236). The frame around detEvento passed the schema of the
// batch before.
class event_examiner {
public:
    // `ambiente`: the environment of this authority.
    event_examiner(std::string ambiente, schema_validator& validator)
        : ambiente_(std::move(ambiente)), validator_(validator)
    {
    }

    // The retEvento of the event (an evento element) so far: the values it
    // repeats, the moment of registration, and the status of the first check
    // it failed, or 0 when it passed them all.
    event_protocol examine(xmlNode const* evento) const;

private:
    std::string ambiente_;
    schema_validator& validator_;
};

}  // namespace velk::tools::sefaz_sim

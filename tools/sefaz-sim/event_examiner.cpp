#include "event_examiner.hpp"

#include "access_key.hpp"
#include "event_type.hpp"
#include "fiscal_answer.hpp"
#include "status_codes.hpp"
#include "xml_reading.hpp"
#include "xml_signature.hpp"

namespace velk::tools::sefaz_sim {

event_protocol event_examiner::examine(xmlNode const* evento) const
{
    using xml_reading::text_at;
    xmlNode const* const inf_evento = xml_reading::child(evento, "infEvento");
    event_protocol protocol;
    protocol.ambiente = ambiente_;
    protocol.orgao = text_at(inf_evento, {"cOrgao"});
    protocol.key = text_at(inf_evento, {"chNFe"});
    protocol.type = text_at(inf_evento, {"tpEvento"});
    protocol.sequence = text_at(inf_evento, {"nSeqEvento"});
    protocol.registered_at = fiscal_answer::now();
    auto const reject = [&protocol](int status) {
        protocol.status = status;
        protocol.reason = status_codes::reason(status);
        return protocol;
    };

    event_type const* const type = event_type::find(protocol.type);
    if (type == nullptr) {
        return reject(999);
    }
    protocol.name = type->name;
    xmlNode* const detail = xml_reading::child(inf_evento, "detEvento");
    validation const checked =
        validator_.validate(detail, "e" + protocol.type, xml_reading::attribute(detail, "versao"));
    if (checked.result == validation::outcome::invalid || checked.result == validation::outcome::unknown_version) {
        return reject(215);
    }
    xml_signature::verdict const signature = xml_signature::verify(evento, "infEvento").result;
    if (signature != xml_signature::verdict::valid) {
        return reject(signature == xml_signature::verdict::differs ? 297 : 298);
    }
    if (text_at(inf_evento, {"tpAmb"}) != ambiente_) {
        return reject(252);
    }
    if (!access_key::is_valid(protocol.key)) {
        return reject(236);
    }
    return protocol;
}

}  // namespace velk::tools::sefaz_sim

#include "event_protocol.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string event_protocol::id() const
{
    return number.empty() ? std::string() : "ID" + number;
}

std::string event_protocol::xml() const
{
    using answer_text::leaf;
    std::string out = answer_text::root_open("retEvento", "1.00") +
                      (number.empty() ? std::string("<infEvento>") : "<infEvento Id=\"" + id() + "\">") +
                      leaf("tpAmb", ambiente) + leaf("verAplic", fiscal_answer::application_version()) +
                      leaf("cOrgao", orgao) + leaf("cStat", std::to_string(status)) + leaf("xMotivo", reason) +
                      leaf("chNFe", key) + leaf("tpEvento", type);
    if (!name.empty()) {
        out += leaf("xEvento", name);
    }
    out += leaf("nSeqEvento", sequence) + leaf("dhRegEvento", registered_at);
    if (!number.empty()) {
        out += leaf("nProt", number);
    }
    return out + "</infEvento></retEvento>";
}

}  // namespace velk::tools::sefaz_sim

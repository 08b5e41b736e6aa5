#include "protocol_query_handler.hpp"

#include "access_key.hpp"
#include "answer_text.hpp"
#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string protocol_query_handler::answer(request_envelope const& request, validation const& checked) const
{
    std::string const key = request.payload_child_text("chNFe");
    fiscal_answer outcome(request, checked, context_.options, {request.payload_child_text("tpAmb"), key.substr(0, 2)});
    authority_records::note_situation held;
    if (!outcome.decided()) {
        held = context_.records.situation(key);
        outcome.decide(!held.authorization ? 217 : held.cancelled ? 101 : 100);
    }
    bool const key_form = key.size() == 44 && key.find_first_not_of("0123456789") == std::string::npos;
    std::string xml = answer_text::root_open("retConsSitNFe", outcome.versao()) + outcome.environment_tags() +
                      outcome.status_tags() + answer_text::leaf("cUF", outcome.uf()) +
                      answer_text::leaf("dhRecbto", fiscal_answer::now()) +
                      answer_text::leaf("chNFe", key_form ? key : std::string(44, '0'));
    if (held.authorization) {
        xml += held.authorization->xml();
        for (std::string const& event : held.events) {
            xml += event;
        }
    }
    return xml + "</retConsSitNFe>";
}

}  // namespace velk::tools::sefaz_sim

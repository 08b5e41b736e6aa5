#include "event_handler.hpp"

#include "answer_text.hpp"
#include "event_examiner.hpp"
#include "fiscal_answer.hpp"
#include "xml_reading.hpp"

#include <vector>

namespace velk::tools::sefaz_sim {

namespace {

bool digits(std::string const& text, std::size_t from, std::size_t to)
{
    return text.size() >= from && text.size() <= to && text.find_first_not_of("0123456789") == std::string::npos;
}

}  // namespace

std::string event_handler::answer(request_envelope const& request, validation const& checked) const
{
    std::vector<xmlNode*> const events = xml_reading::children(request.payload(), "evento");
    std::string const first_orgao =
        events.empty() ? std::string() : xml_reading::text_at(events.front(), {"infEvento", "cOrgao"});
    fiscal_answer outcome(request, checked, context_.options, {"", first_orgao, "1.00", 215});
    if (!outcome.decided() && events.empty()) {
        outcome.decide(215);
    }
    std::string results;
    if (!outcome.decided()) {
        for (xmlNode const* evento : events) {
            results += registered(evento);
        }
        outcome.decide(128);
    }
    // The batch answers from the body of its first event (91 for the
    // national environment), once the frame is known to be of its form.
    bool const frame_read = checked.result != validation::outcome::invalid && digits(first_orgao, 2, 2);
    std::string const id = request.payload_child_text("idLote");
    return answer_text::root_open("retEnvEvento", outcome.versao()) +
           answer_text::leaf("idLote", digits(id, 1, 15) ? id : "0") + outcome.environment_tags() +
           answer_text::leaf("cOrgao", frame_read ? first_orgao : outcome.uf()) + outcome.status_tags() + results +
           "</retEnvEvento>";
}

std::string event_handler::registered(xmlNode const* evento) const
{
    event_examiner const examiner(context_.options.ambiente, context_.validator);
    event_protocol protocol = examiner.examine(evento);
    if (protocol.status == 0) {
        event_type const* const type = event_type::find(protocol.type);
        std::string const note_protocol = xml_reading::text_at(evento, {"infEvento", "detEvento", "nProt"});
        context_.records.register_event(protocol, type->rule, note_protocol);
    }
    std::string const answer = protocol.xml();
    if (protocol.number.empty()) {
        return answer;
    }
    std::string signed_answer = context_.signer.sign(answer, protocol.id());
    if (signed_answer.empty()) {
        signed_answer = answer;
    }
    context_.records.keep_event(protocol.key, "<procEventoNFe versao=\"1.00\">" + xml_reading::element_text(evento) +
                                                  signed_answer + "</procEventoNFe>");
    return signed_answer;
}

}  // namespace velk::tools::sefaz_sim

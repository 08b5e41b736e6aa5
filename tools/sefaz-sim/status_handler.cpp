#include "status_handler.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string status_handler::answer(request_envelope const& request, validation const& checked) const
{
    fiscal_answer outcome(request, checked, context_.options,
                          {request.payload_child_text("tpAmb"), request.payload_child_text("cUF")});
    if (!outcome.decided()) {
        outcome.decide(107);
    }
    std::string xml = answer_text::root_open("retConsStatServ", outcome.versao()) + outcome.environment_tags() +
                      outcome.status_tags() + answer_text::leaf("cUF", outcome.uf()) +
                      answer_text::leaf("dhRecbto", fiscal_answer::now());
    if (outcome.status() == 107) {
        xml += answer_text::leaf("tMed", "1");
    }
    return xml + "</retConsStatServ>";
}

}  // namespace velk::tools::sefaz_sim

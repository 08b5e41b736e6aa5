#include "protocol_query_handler.hpp"

#include "access_key.hpp"
#include "answer_text.hpp"
#include "fiscal_answer.hpp"

#include <optional>

namespace velk::tools::sefaz_sim {

std::string protocol_query_handler::answer(request_envelope const& request, validation const& checked) const
{
    std::string const key = request.payload_child_text("chNFe");
    fiscal_answer outcome(request, checked, context_.options, {request.payload_child_text("tpAmb"), key.substr(0, 2)});
    std::optional<document_protocol> authorized;
    if (!outcome.decided()) {
        authorized = context_.records.authorized(key);
        outcome.decide(authorized ? 100 : 217);
    }
    bool const key_form = key.size() == 44 && key.find_first_not_of("0123456789") == std::string::npos;
    std::string xml = answer_text::root_open("retConsSitNFe", outcome.versao()) + outcome.environment_tags() +
                      outcome.status_tags() + answer_text::leaf("cUF", outcome.uf()) +
                      answer_text::leaf("dhRecbto", fiscal_answer::now()) +
                      answer_text::leaf("chNFe", key_form ? key : std::string(44, '0'));
    if (authorized) {
        xml += authorized->xml();
    }
    return xml + "</retConsSitNFe>";
}

}  // namespace velk::tools::sefaz_sim

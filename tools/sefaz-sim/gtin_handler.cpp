#include "gtin_handler.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"
#include "gtin_catalogue.hpp"

namespace velk::tools::sefaz_sim {

namespace {

// The catalogue's own codes.
constexpr int found_status = 9490;
constexpr int not_found_status = 9494;

}  // namespace

std::string gtin_handler::answer(request_envelope const& request, validation const& checked) const
{
    // The catalogue serves every state and has no environment.
    fiscal_answer outcome(request, checked, context_.options, {"", "", "1.00", 215});
    gtin_item const* item = nullptr;
    if (!outcome.decided()) {
        item = gtin_catalogue::find(request.payload_child_text("GTIN"));
        outcome.decide(item != nullptr ? found_status : not_found_status);
    }
    std::string xml = answer_text::root_open("retConsGTIN", outcome.versao()) +
                      answer_text::leaf("verAplic", fiscal_answer::application_version()) + outcome.status_tags() +
                      answer_text::leaf("dhResp", fiscal_answer::now());
    if (item != nullptr) {
        xml += answer_text::leaf("GTIN", item->gtin) + answer_text::leaf("tpGTIN", std::to_string(item->gtin.size())) +
               answer_text::leaf("xProd", item->description) + answer_text::leaf("NCM", item->ncm);
        for (std::string_view const cest : item->cest) {
            xml += answer_text::leaf("CEST", cest);
        }
    }
    return xml + "</retConsGTIN>";
}

}  // namespace velk::tools::sefaz_sim

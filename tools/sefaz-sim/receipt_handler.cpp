#include "receipt_handler.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string receipt_handler::answer(request_envelope const& request, validation const& checked) const
{
    std::string const receipt = request.payload_child_text("nRec");
    fiscal_answer outcome(request, checked, context_.options,
                          {request.payload_child_text("tpAmb"), receipt.substr(0, 2)});
    authority_records::batch_state state;
    if (!outcome.decided()) {
        state = context_.records.poll(receipt);
        outcome.decide(!state.found ? 106 : state.processing ? 105 : 104);
    }
    // The receipt is echoed; one of another form, which only a schema
    // failure lets through, as fifteen zeros.
    bool const receipt_form = receipt.size() == 15 && receipt.find_first_not_of("0123456789") == std::string::npos;
    std::string xml = answer_text::root_open("retConsReciNFe", outcome.versao()) + outcome.environment_tags() +
                      answer_text::leaf("nRec", receipt_form ? receipt : std::string(15, '0')) +
                      outcome.status_tags() + answer_text::leaf("cUF", outcome.uf()) +
                      answer_text::leaf("dhRecbto", fiscal_answer::now());
    for (document_protocol const& protocol : state.protocols) {
        xml += protocol.xml();
    }
    return xml + "</retConsReciNFe>";
}

}  // namespace velk::tools::sefaz_sim

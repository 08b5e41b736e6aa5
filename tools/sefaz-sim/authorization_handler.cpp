#include "authorization_handler.hpp"

#include "answer_text.hpp"
#include "document_examiner.hpp"
#include "fiscal_answer.hpp"
#include "xml_reading.hpp"

#include <vector>

namespace velk::tools::sefaz_sim {

std::string authorization_handler::answer(request_envelope const& request, validation const& checked) const
{
    std::vector<xmlNode*> const documents = xml_reading::children(request.payload(), "NFe");
    std::string const first_uf =
        documents.empty() ? std::string() : xml_reading::text_at(documents.front(), {"infNFe", "ide", "cUF"});
    fiscal_answer outcome(request, checked, context_.options, {"", first_uf, "4.00", 225});
    bool const synchronous = request.payload_child_text("indSinc") == "1";
    if (!outcome.decided() && documents.empty()) {
        outcome.decide(225);
    }
    if (!outcome.decided() && synchronous && documents.size() > 1) {
        outcome.decide(452);
    }
    std::string result;
    if (!outcome.decided()) {
        document_examiner const examiner(context_.options.ambiente);
        std::vector<document_protocol> protocols;
        for (xmlNode const* document : documents) {
            document_protocol protocol = examiner.examine(document, outcome.versao());
            if (protocol.status == 0) {
                context_.records.authorize(protocol);
            }
            protocols.push_back(std::move(protocol));
        }
        if (synchronous) {
            outcome.decide(104);
            result = protocols.front().xml();
        } else {
            outcome.decide(103);
            std::string const receipt =
                context_.records.keep_batch(outcome.uf(), std::move(protocols), context_.options.processing_polls);
            result = "<infRec>" + answer_text::leaf("nRec", receipt) + answer_text::leaf("tMed", "1") + "</infRec>";
        }
    }
    return answer_text::root_open("retEnviNFe", outcome.versao()) + outcome.environment_tags() +
           outcome.status_tags() + answer_text::leaf("cUF", outcome.uf()) +
           answer_text::leaf("dhRecbto", fiscal_answer::now()) + result + "</retEnviNFe>";
}

}  // namespace velk::tools::sefaz_sim

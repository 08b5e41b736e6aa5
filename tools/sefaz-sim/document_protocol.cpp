#include "document_protocol.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string document_protocol::xml() const
{
    std::string out = "<protNFe versao=\"" + versao + "\"><infProt>" + answer_text::leaf("tpAmb", ambiente) +
                      answer_text::leaf("verAplic", fiscal_answer::application_version()) +
                      answer_text::leaf("chNFe", key) + answer_text::leaf("dhRecbto", received_at);
    if (!number.empty()) {
        out += answer_text::leaf("nProt", number);
    }
    if (!digest.empty()) {
        out += answer_text::leaf("digVal", digest);
    }
    return out + answer_text::leaf("cStat", std::to_string(status)) + answer_text::leaf("xMotivo", reason) +
           "</infProt></protNFe>";
}

}  // namespace velk::tools::sefaz_sim

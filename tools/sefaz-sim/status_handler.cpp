#include "status_handler.hpp"

#include "fiscal_answer.hpp"

namespace velk::tools::sefaz_sim {

std::string status_handler::answer(request_envelope const& request, validation const& checked) const
{
    fiscal_answer const outcome(request, checked, 107, "Servico em Operacao");
    std::string xml = "<retConsStatServ versao=\"" + outcome.versao() +
                      "\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>" + outcome.ambiente() +
                      "</tpAmb><verAplic>" + fiscal_answer::application_version() + "</verAplic><cStat>" +
                      std::to_string(outcome.status()) + "</cStat><xMotivo>" + outcome.reason() + "</xMotivo><cUF>" +
                      outcome.uf() + "</cUF><dhRecbto>" + fiscal_answer::now() + "</dhRecbto>";
    if (outcome.accepted()) {
        xml += "<tMed>1</tMed>";
    }
    return xml + "</retConsStatServ>";
}

}  // namespace velk::tools::sefaz_sim

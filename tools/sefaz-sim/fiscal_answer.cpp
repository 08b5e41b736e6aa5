#include "fiscal_answer.hpp"

#include <velk/erp/estado.hpp>

#include <chrono>
#include <ctime>

namespace velk::tools::sefaz_sim {

fiscal_answer::fiscal_answer(request_envelope const& request, validation const& checked, int success_status,
                             std::string success_reason)
{
    using outcome = validation::outcome;
    versao_ = request.payload_attribute("versao");
    if (checked.result == outcome::unknown_version) {
        versao_ = "4.00";
        status_ = 239;
        reason_ = "Rejeicao: Cabecalho - Versao do arquivo XML nao suportada";
    } else if (checked.result == outcome::invalid) {
        status_ = 215;
        reason_ = "Rejeicao: Falha no schema XML";
    } else {
        accepted_ = true;
        status_ = success_status;
        reason_ = std::move(success_reason);
    }
    ambiente_ = request.payload_child_text("tpAmb");
    if (ambiente_ != "1" && ambiente_ != "2") {
        ambiente_ = "2";
    }
    uf_ = request.payload_child_text("cUF");
    erp::estado named{};
    if (uf_.size() != 2 || !erp::estado_from_text(uf_, named) || uf_[0] < '0' || uf_[0] > '9') {
        uf_ = "35";
    }
}

std::string fiscal_answer::now()
{
    std::time_t const brasilia = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()) - 3 * 3600;
    std::tm parts{};
    gmtime_r(&brasilia, &parts);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S-03:00", &parts);
    return text;
}

}  // namespace velk::tools::sefaz_sim

#include "fiscal_answer.hpp"

#include "answer_text.hpp"
#include "status_codes.hpp"

#include <velk/erp/estado.hpp>

#include <chrono>
#include <ctime>

namespace velk::tools::sefaz_sim {

fiscal_answer::fiscal_answer(request_envelope const& request, validation const& checked,
                             simulator_options const& options, message_facts const& facts)
    : versao_(request.payload_attribute("versao")), ambiente_(options.ambiente), uf_(facts.uf)
{
    using outcome = validation::outcome;
    if (checked.result == outcome::unknown_version) {
        versao_ = facts.default_versao;
    }
    erp::estado named{};
    if (uf_.size() != 2 || uf_[0] < '0' || uf_[0] > '9' || !erp::estado_from_text(uf_, named)) {
        uf_ = "35";
    }
    if (options.stopped_status != 0) {
        decide(options.stopped_status);
    } else if (options.injected == fault::unknown_error) {
        decide(999);
    } else if (checked.result == outcome::unknown_version) {
        decide(239);
    } else if (checked.result == outcome::invalid) {
        decide(facts.schema_status);
    } else if (!facts.ambiente.empty() && facts.ambiente != ambiente_) {
        decide(252);
    }
}

void fiscal_answer::decide(int status)
{
    decide(status, status_codes::reason(status));
}

void fiscal_answer::decide(int status, std::string reason)
{
    status_ = status;
    reason_ = std::move(reason);
}

std::string fiscal_answer::environment_tags() const
{
    return answer_text::leaf("tpAmb", ambiente_) + answer_text::leaf("verAplic", application_version());
}

std::string fiscal_answer::status_tags() const
{
    return answer_text::leaf("cStat", std::to_string(status_)) + answer_text::leaf("xMotivo", reason_);
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

#include "disablement_handler.hpp"

#include "answer_text.hpp"
#include "fiscal_answer.hpp"
#include "xml_reading.hpp"
#include "xml_signature.hpp"

#include <algorithm>
#include <charconv>

namespace velk::tools::sefaz_sim {

namespace {

unsigned long number_of(std::string const& text)
{
    unsigned long value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string zero_filled(std::string text, std::size_t width)
{
    return text.size() >= width ? text : std::string(width - text.size(), '0') + text;
}

// The tags of the request that the answer repeats.
constexpr char const* echoed_tags[] = {"ano", "CNPJ", "mod", "serie", "nNFIni", "nNFFin"};

}  // namespace

std::string disablement_handler::answer(request_envelope const& request, validation const& checked) const
{
    using xml_reading::text_at;
    xmlNode const* const inf_inut = xml_reading::child(request.payload(), "infInut");
    fiscal_answer outcome(request, checked, context_.options,
                          {text_at(inf_inut, {"tpAmb"}), text_at(inf_inut, {"cUF"})});
    // The numbers are repeated once the message is known to be of its form.
    bool const echoed = !outcome.decided() || outcome.status() == 252;
    if (!outcome.decided()) {
        xml_signature::verdict const signature = xml_signature::verify(request.payload(), "infInut").result;
        if (signature != xml_signature::verdict::valid) {
            outcome.decide(signature == xml_signature::verdict::differs ? 297 : 298);
        }
    }
    std::string protocol;
    if (!outcome.decided()) {
        unsigned long const first = number_of(text_at(inf_inut, {"nNFIni"}));
        unsigned long const last = number_of(text_at(inf_inut, {"nNFFin"}));
        authority_records::number_range const range{zero_filled(text_at(inf_inut, {"CNPJ"}), 14),
                                                    zero_filled(text_at(inf_inut, {"mod"}), 2),
                                                    zero_filled(text_at(inf_inut, {"serie"}), 3),
                                                    std::min(first, last), std::max(first, last)};
        outcome.decide(context_.records.disable(range, outcome.uf(), protocol));
    }
    std::string const id = protocol.empty() ? std::string() : "ID" + protocol;
    std::string xml = answer_text::root_open("retInutNFe", outcome.versao()) +
                      (id.empty() ? std::string("<infInut>") : "<infInut Id=\"" + id + "\">") +
                      outcome.environment_tags() + outcome.status_tags() + answer_text::leaf("cUF", outcome.uf());
    if (echoed) {
        for (char const* tag : echoed_tags) {
            xml += answer_text::leaf(tag, text_at(inf_inut, {tag}));
        }
    }
    xml += answer_text::leaf("dhRecbto", fiscal_answer::now());
    if (!protocol.empty()) {
        xml += answer_text::leaf("nProt", protocol);
    }
    xml += "</infInut></retInutNFe>";
    if (id.empty()) {
        return xml;
    }
    std::string signed_answer = context_.signer.sign(xml, id);
    return signed_answer.empty() ? xml : signed_answer;
}

}  // namespace velk::tools::sefaz_sim

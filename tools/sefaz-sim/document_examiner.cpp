#include "document_examiner.hpp"

#include "access_key.hpp"
#include "fiscal_answer.hpp"
#include "status_codes.hpp"
#include "xml_reading.hpp"
#include "xml_signature.hpp"

#include <algorithm>

namespace velk::tools::sefaz_sim {

namespace {

// The 44 digits of an Id "NFe..."; 44 zeros when it has none, so that the
// answer still names a key of the right form.
std::string key_of(std::string const& id)
{
    std::string key = id.size() == 47 ? id.substr(3) : std::string();
    bool const digits = std::all_of(key.begin(), key.end(), [](char c) { return c >= '0' && c <= '9'; });
    return key.size() == 44 && digits ? key : std::string(44, '0');
}

}  // namespace

document_protocol document_examiner::examine(xmlNode const* nfe, std::string const& versao) const
{
    xmlNode const* const inf_nfe = xml_reading::child(nfe, "infNFe");
    std::string const id = xml_reading::attribute(inf_nfe, "Id");
    document_protocol protocol;
    protocol.versao = versao;
    protocol.ambiente = ambiente_;
    protocol.key = key_of(id);
    protocol.received_at = fiscal_answer::now();
    auto const reject = [&protocol](int status) {
        protocol.status = status;
        protocol.reason = status_codes::reason(status);
        return protocol;
    };

    xml_signature::outcome const signature = xml_signature::verify(nfe, "infNFe");
    if (signature.result != xml_signature::verdict::valid) {
        return reject(signature.result == xml_signature::verdict::differs ? 297 : 298);
    }
    protocol.digest = signature.digest_value;
    if (xml_reading::text_at(inf_nfe, {"ide", "tpAmb"}) != ambiente_) {
        return reject(252);
    }
    if (!access_key::is_valid(id.size() == 47 ? std::string_view(id).substr(3) : std::string_view())) {
        return reject(236);
    }
    if (id.substr(0, 3) != "NFe" || access_key::from_fields(inf_nfe) != protocol.key) {
        return reject(502);
    }
    return protocol;
}

}  // namespace velk::tools::sefaz_sim

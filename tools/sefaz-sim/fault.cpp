#include "fault.hpp"

namespace velk::tools::sefaz_sim {

std::vector<fault_kind> const& fault_kinds()
{
    static std::vector<fault_kind> const kinds = {
        {fault::delay, "delay", "answer normally, but only after --delay-ms milliseconds"},
        {fault::http_500, "http-500", "HTTP status 500 with a plain text body"},
        {fault::soap_fault, "soap-fault",
         "a SOAP 1.2 Fault with Code/Value, Reason/Text and a Detail\n"
         "                                        tree with accented text, HTTP status 200"},
        {fault::malformed, "malformed", "a body that is not XML"},
        {fault::two_bodies, "two-bodies", "an Envelope with two Body elements"},
        {fault::wrong_result_tag, "wrong-result-tag", "the answer under the result tag nfeRespostaMsg"},
        {fault::wrong_root, "wrong-root", "a retConsSitNFe inside nfeResultMsg, whatever was asked"},
        {fault::text_node, "text-node", "the answer pretty-printed, with line breaks between the envelope's tags"},
        {fault::close, "close", "close the connection without answering"},
        {fault::unknown_error, "unknown-error",
         "every service answers cStat 999 \"Rejeição: Erro não catalogado\",\n"
         "                                        as an authority whose own processing failed"},
    };
    return kinds;
}

bool fault_from_name(std::string_view name, fault& value)
{
    for (fault_kind const& kind : fault_kinds()) {
        if (kind.name == name) {
            value = kind.value;
            return true;
        }
    }
    return false;
}

}  // namespace velk::tools::sefaz_sim

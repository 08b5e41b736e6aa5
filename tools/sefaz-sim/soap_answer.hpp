#pragma once

#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// The SOAP 1.2 envelopes the simulator answers with, in the shape of the
// authorities' answers: an XML declaration, the envelope namespaces, no
// header, and the result tag in the service's namespace.
class soap_answer {
public:
    enum class layout {
        compact,      // as the authorities send it: no blank between tags
        pretty,       // line breaks and indentation between the envelope's tags
        two_bodies,   // the Body written twice
    };

    static std::string result(std::string_view service_namespace, std::string_view result_tag,
                              std::string_view message, layout form = layout::compact);

    // A SOAP 1.2 Fault with Code/Value, Reason/Text and, when not empty, a
    // Detail holding `detail` (XML, written as it is).
    static std::string fault(std::string_view code, std::string_view reason, std::string_view detail = {});
};

}  // namespace velk::tools::sefaz_sim

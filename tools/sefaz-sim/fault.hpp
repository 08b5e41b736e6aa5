#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velk::tools::sefaz_sim {

// What the simulator does wrong on purpose, so that each way a real server
// fails can be provoked from a test.
enum class fault {
    none,
    delay,             // answers normally after --delay-ms
    http_500,          // HTTP 500 with a text body
    soap_fault,        // a SOAP 1.2 Fault, with HTTP status 200 so the client reads it
    malformed,         // a body that is no XML
    two_bodies,        // an Envelope with two Body elements
    wrong_result_tag,  // the answer under a result tag that no service expects
    wrong_root,        // the answer of another service inside nfeResultMsg
    text_node,         // the answer pretty-printed: line breaks between the envelope's tags
    close,             // the connection closed without a byte of answer
    unknown_error,     // every service answers 999, the authority's own failure
};

struct fault_kind {
    fault value;
    std::string_view name;
    std::string_view description;
};

// Every fault with the name --fault takes and one line for --help.
std::vector<fault_kind> const& fault_kinds();

// False when the name is none of fault_kinds().
bool fault_from_name(std::string_view name, fault& value);

}  // namespace velk::tools::sefaz_sim

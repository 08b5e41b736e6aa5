#pragma once

#include "request_envelope.hpp"
#include "schema_validator.hpp"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// One web service of the simulator, chosen by the root element of the message
// inside nfeDadosMsg. A new service is one more class of this kind, listed in
// service_handler::all().
class service_handler {
public:
    virtual ~service_handler();

    // Root of the messages it answers: "consStatServ".
    virtual std::string_view payload_root() const = 0;

    // The answer message (the element that goes inside nfeResultMsg) to a
    // request whose message fared as `checked` against its schema.
    virtual std::string answer(request_envelope const& request, validation const& checked) const = 0;

    // Every service, by payload root.
    static std::map<std::string, std::unique_ptr<service_handler>, std::less<>> all();
};

}  // namespace velk::tools::sefaz_sim

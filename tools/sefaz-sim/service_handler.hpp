#pragma once

#include "answer_signer.hpp"
#include "authority_records.hpp"
#include "request_envelope.hpp"
#include "schema_validator.hpp"
#include "simulator_options.hpp"

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// What the services share: the command line, the authority's memory, its
// signing key, and the schemas for the parts of a message that its root's
// schema leaves open.
struct service_context {
    simulator_options const& options;
    authority_records& records;
    answer_signer const& signer;
    schema_validator& validator;
};

// One web service of the simulator, chosen by the root element of the message
// inside nfeDadosMsg. A new service is one more class of this kind, listed in
// service_handler::all().
class service_handler {
public:
    explicit service_handler(service_context const& context) : context_(context) {}
    virtual ~service_handler();

    // Root of the messages it answers: "consStatServ".
    virtual std::string_view payload_root() const = 0;

    // The answer message (the element that goes inside nfeResultMsg) to a
    // request whose message fared as `checked` against its schema.
    virtual std::string answer(request_envelope const& request, validation const& checked) const = 0;

    // Every service, by payload root.
    static std::map<std::string, std::unique_ptr<service_handler>, std::less<>> all(service_context const& context);

protected:
    service_context const& context_;
};

}  // namespace velk::tools::sefaz_sim

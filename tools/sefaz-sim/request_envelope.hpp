#pragma once

#include <libxml/tree.h>

#include <memory>
#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim {

// A request as the services see it: a SOAP 1.2 Envelope whose Body holds
// nfeDadosMsg with one message element, or an operation element around
// nfeDadosMsg (the GTIN catalogue's ccgConsGTIN). Parsed by libxml2 without
// network access, without entity substitution, and refused when it has a DTD.
class request_envelope {
public:
    // What is wrong with a request that isn't of that shape.
    struct problem {
        bool version_mismatch = false;  // an Envelope of another SOAP version
        std::string reason;
    };

    // Null with `refusal` filled when the body isn't a request of that shape.
    static std::unique_ptr<request_envelope> parse(std::string_view body, problem& refusal);

    // The message inside nfeDadosMsg (consStatServ, ...).
    xmlNode* payload() const { return payload_; }
    std::string payload_name() const;
    // Namespace of the Body's element (nfeDadosMsg or the operation): the
    // service's, echoed on the answer.
    std::string const& service_namespace() const { return service_namespace_; }
    // Name of the operation element around nfeDadosMsg; empty when
    // nfeDadosMsg is the Body's element.
    std::string const& operation() const { return operation_; }

    // Attribute of the message's root; empty when absent.
    std::string payload_attribute(char const* name) const;
    // Text of the first child element of the message's root of that name;
    // empty when absent.
    std::string payload_child_text(char const* name) const;

private:
    struct document_deleter {
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };

    std::unique_ptr<xmlDoc, document_deleter> document_;
    xmlNode* payload_ = nullptr;
    std::string service_namespace_;
    std::string operation_;
};

}  // namespace velk::tools::sefaz_sim

#include "request_envelope.hpp"

#include "xml_reading.hpp"

#include <libxml/parser.h>

#include <cstring>
#include <vector>

namespace velk::tools::sefaz_sim {

namespace {

using xml_reading::is_named;

constexpr char soap12_namespace[] = "http://www.w3.org/2003/05/soap-envelope";

// The element children of a node; whitespace between them is allowed, any
// other text is not (returned through `has_text`).
std::vector<xmlNode*> child_elements(xmlNode const* parent, bool& has_text)
{
    std::vector<xmlNode*> elements;
    has_text = false;
    for (xmlNode* child = parent->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            elements.push_back(child);
        } else if ((child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) && !xmlIsBlankNode(child)) {
            has_text = true;
        }
    }
    return elements;
}

}  // namespace

std::unique_ptr<request_envelope> request_envelope::parse(std::string_view body, problem& refusal)
{
    auto request = std::make_unique<request_envelope>();
    request->document_.reset(xmlReadMemory(body.data(), static_cast<int>(body.size()), "request.xml", nullptr,
                                           XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    xmlDoc* const document = request->document_.get();
    if (document == nullptr) {
        refusal.reason = "O corpo da requisição não é um XML bem formado";
        return nullptr;
    }
    if (document->intSubset != nullptr) {
        refusal.reason = "DTD não é aceito";
        return nullptr;
    }
    xmlNode* const envelope = xmlDocGetRootElement(document);
    if (!is_named(envelope, "Envelope")) {
        refusal.reason = "O elemento raiz não é um Envelope";
        return nullptr;
    }
    if (envelope->ns == nullptr || std::strcmp(reinterpret_cast<char const*>(envelope->ns->href), soap12_namespace) != 0) {
        refusal.version_mismatch = true;
        refusal.reason = "O Envelope não é de SOAP 1.2";
        return nullptr;
    }
    bool has_text = false;
    xmlNode* body_element = nullptr;
    for (xmlNode* part : child_elements(envelope, has_text)) {
        if (is_named(part, "Body")) {
            if (body_element != nullptr) {
                refusal.reason = "O Envelope tem mais de um Body";
                return nullptr;
            }
            body_element = part;
        } else if (!is_named(part, "Header")) {
            refusal.reason = "O Envelope tem um elemento inesperado";
            return nullptr;
        }
    }
    if (body_element == nullptr || has_text) {
        refusal.reason = "O Envelope não tem um Body válido";
        return nullptr;
    }
    std::vector<xmlNode*> const parts = child_elements(body_element, has_text);
    if (parts.size() != 1 || has_text) {
        refusal.reason = "O Body deve conter um único nfeDadosMsg";
        return nullptr;
    }
    xmlNode* dados = parts.front();
    request->service_namespace_ = xml_reading::namespace_of(dados);
    if (!is_named(dados, "nfeDadosMsg")) {
        // An operation element around the message data.
        std::vector<xmlNode*> const inside = child_elements(dados, has_text);
        if (inside.size() != 1 || has_text || !is_named(inside.front(), "nfeDadosMsg")) {
            refusal.reason = "O Body deve conter um único nfeDadosMsg";
            return nullptr;
        }
        request->operation_ = reinterpret_cast<char const*>(dados->name);
        dados = inside.front();
    }
    std::vector<xmlNode*> const messages = child_elements(dados, has_text);
    if (messages.size() != 1 || has_text) {
        refusal.reason = "O nfeDadosMsg deve conter uma única mensagem";
        return nullptr;
    }
    request->payload_ = messages.front();
    return request;
}

std::string request_envelope::payload_name() const
{
    return reinterpret_cast<char const*>(payload_->name);
}

std::string request_envelope::payload_attribute(char const* name) const
{
    return xml_reading::attribute(payload_, name);
}

std::string request_envelope::payload_child_text(char const* name) const
{
    return xml_reading::text(xml_reading::child(payload_, name));
}

}  // namespace velk::tools::sefaz_sim

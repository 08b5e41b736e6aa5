#include "document_checker.hpp"

#include "command_error.hpp"
#include "files.hpp"
#include "qrcode_check.hpp"

#include <sefaz-sim/access_key.hpp>
#include <sefaz-sim/xml_reading.hpp>
#include <sefaz-sim/xml_signature.hpp>
#include <velk/cryptography/x509_certificate.hpp>
#include <velk/xml/document.hpp>

#include <libxml/parser.h>

#include <memory>

namespace velk::tools::tarn {

namespace {

namespace reading = sefaz_sim::xml_reading;
using sefaz_sim::access_key;
using sefaz_sim::xml_signature;

constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";

xmlNode* descend(xmlNode* from, std::vector<std::string_view> const& path)
{
    for (std::string_view const name : path) {
        from = reading::child(from, name);
    }
    return from;
}

// The signer's name, as the certificate in KeyInfo tells it.
std::string signer_of(xmlNode const* signature)
{
    std::string const der =
        xml_signature::from_base64(reading::text_at(signature, {"KeyInfo", "X509Data", "X509Certificate"}));
    core::result::stack stack;
    auto const certificate =
        cryptography::x509_certificate::from_byte_array(core::byte_array(der), cryptography::encoding::der, stack);
    return stack.has_failed() ? std::string("?") : certificate.get_subject_common_name();
}

finding key_digit(std::string const& key)
{
    if (key.size() != 44 || key.find_first_not_of("0123456789") != std::string::npos) {
        return {"chave", finding::result::failed, "\"" + key + "\" não tem 44 dígitos"};
    }
    char const expected = access_key::check_digit(key.substr(0, 43));
    if (expected != key.back()) {
        return {"chave", finding::result::failed,
                std::string("dígito verificador ") + key.back() + " errado em " + key + ": o certo é " + expected};
    }
    return {"chave", finding::result::ok, key + ", dígito verificador " + expected};
}

}  // namespace

document_checker::document_checker(std::filesystem::path schemas, std::optional<std::string> csc)
    : has_schemas_(!schemas.empty()), validator_(std::move(schemas)), csc_(std::move(csc))
{
}

command_outcome document_checker::check(std::filesystem::path const& file)
{
    std::string const text = read_file(file);
    // The library's reader first: it refuses what no message may hold (a
    // DTD, entities), before libxml2 reads the tree for the checks.
    {
        core::result::stack stack;
        xml::document gate;
        gate.load(core::byte_array(text), stack);
        throw_if_failed(stack, "leitura do XML");
    }
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> const document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        &xmlFreeDoc);
    xmlNode* const root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (root == nullptr) {
        throw command_error::usage("leitura do XML", file.string() + " não é um documento XML");
    }
    std::string const name = reinterpret_cast<char const*>(root->name);
    message_kind const* const kind = reading::namespace_of(root) == nfe_namespace ? message_kind::find(name) : nullptr;
    if (kind == nullptr) {
        throw command_error::usage("tipo", file.string() + ": " + name + " não é uma mensagem de NF-e conhecida");
    }

    std::vector<finding> found;
    std::string type = name + " - " + std::string(kind->description);
    if (kind->key == key_place::document) {
        xmlNode const* const nfe = descend(root, kind->inner_path);
        std::string const model = reading::text_at(nfe, {"infNFe", "ide", "mod"});
        type += ", modelo " + model + ", layout " + reading::attribute(reading::child(nfe, "infNFe"), "versao");
    }
    check_schema(root, *kind, found);
    check_signatures(root, *kind, found);
    check_key(root, *kind, found);
    if (kind->key == key_place::document) {
        xmlNode const* const nfe = descend(root, kind->inner_path);
        if (reading::text_at(nfe, {"infNFe", "ide", "mod"}) == "65") {
            found.push_back(qrcode_check::run(nfe, csc_));
        }
    }

    command_outcome outcome;
    json_value findings = json_value::array();
    for (finding const& each : found) {
        findings.push(each.to_json());
        if (each.outcome == finding::result::failed) {
            outcome.status = exit_status::refused;
        }
    }
    outcome.report.set("arquivo", json_value::text(file.string()))
        .set("tipo", json_value::text(type))
        .set("achados", std::move(findings));
    return outcome;
}

void document_checker::check_schema(xmlNode* root, message_kind const& kind, std::vector<finding>& found)
{
    std::string version = reading::attribute(root, "versao");
    if (version.empty()) {
        version = reading::attribute(reading::child(root, "infNFe"), "versao");
    }
    std::string schema(kind.schema);
    if (schema.empty()) {
        xmlNode* const evento = descend(root, kind.inner_path);
        std::string const type = reading::text_at(evento, {"infEvento", "tpEvento"});
        schema = message_kind::event_schema(kind.root, type);
        if (schema.empty()) {
            found.push_back({"esquema", finding::result::skipped, "o evento " + type + " sozinho não tem esquema"});
            return;
        }
    }
    std::string const file = schema + "_v" + version + ".xsd";
    if (!has_schemas_) {
        found.push_back({"esquema", finding::result::skipped, "os esquemas não foram instalados com o tarn"});
        return;
    }
    sefaz_sim::validation const checked = validator_.validate(root, schema, version);
    switch (checked.result) {
    case sefaz_sim::validation::outcome::valid: found.push_back({"esquema", finding::result::ok, file}); return;
    case sefaz_sim::validation::outcome::unknown_version:
        found.push_back({"esquema", finding::result::failed, "não há o esquema " + file});
        return;
    default:
        for (std::string const& problem : checked.problems) {
            found.push_back({"esquema", finding::result::failed, file + ": " + problem});
        }
    }
}

void document_checker::check_signatures(xmlNode const* root, message_kind const& kind, std::vector<finding>& found)
{
    for (signed_part const& part : kind.signatures) {
        xmlNode const* const holder = descend(const_cast<xmlNode*>(root), part.path);
        bool const answer = part.label != "assinatura";
        std::string const label(part.label);
        if (holder == nullptr || reading::child(holder, "Signature") == nullptr) {
            if (answer) {
                found.push_back({label, finding::result::skipped, "a resposta não é assinada"});
            } else {
                found.push_back({label, finding::result::failed, "o documento não tem assinatura"});
            }
            continue;
        }
        xmlNode const* const signed_element = reading::child(holder, part.signed_name);
        std::string const id = reading::attribute(signed_element, "Id");
        switch (xml_signature::verify(holder, part.signed_name).result) {
        case xml_signature::verdict::valid:
            found.push_back({label, finding::result::ok,
                             std::string(part.signed_name) + " " + id + ", certificado " +
                                 signer_of(reading::child(holder, "Signature"))});
            break;
        case xml_signature::verdict::differs:
            found.push_back({label, finding::result::failed,
                             std::string(part.signed_name) + " " + id +
                                 ": o resumo ou o valor da assinatura não confere (o conteúdo mudou depois de "
                                 "assinado?)"});
            break;
        case xml_signature::verdict::not_standard:
            found.push_back({label, finding::result::failed,
                             std::string(part.signed_name) + " " + id +
                                 ": a assinatura não tem a forma das NF-e (referência, algoritmos, certificado)"});
            break;
        }
    }
}

void document_checker::check_key(xmlNode const* root, message_kind const& kind, std::vector<finding>& found)
{
    xmlNode const* const inner = descend(const_cast<xmlNode*>(root), kind.inner_path);
    if (kind.key == key_place::event) {
        found.push_back(key_digit(reading::text_at(inner, {"infEvento", "chNFe"})));
        return;
    }
    if (kind.key != key_place::document) {
        return;
    }
    xmlNode const* const inf_nfe = reading::child(inner, "infNFe");
    std::string const id = reading::attribute(inf_nfe, "Id");
    std::string const key = id.rfind("NFe", 0) == 0 ? id.substr(3) : id;
    found.push_back(key_digit(key));
    std::string const from_fields = access_key::from_fields(inf_nfe);
    if (from_fields == key) {
        found.push_back({"campos da chave", finding::result::ok,
                         "UF, data, emitente, modelo, série, número, tipo de emissão, código e cDV conferem"});
    } else {
        found.push_back(
            {"campos da chave", finding::result::failed,
             "os campos de ide e emit formam " + (from_fields.empty() ? std::string("outra chave") : from_fields)});
    }
}

}  // namespace velk::tools::tarn

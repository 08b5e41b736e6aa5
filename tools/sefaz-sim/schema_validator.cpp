#include "schema_validator.hpp"

#include <libxml/parser.h>
#include <libxml/xmlIO.h>

namespace velk::tools::sefaz_sim {

namespace {

void collect(void* problems, xmlErrorPtr error)
{
    if (error == nullptr || error->level < XML_ERR_ERROR) {
        return;
    }
    std::string message = error->message == nullptr ? "" : error->message;
    while (!message.empty() && (message.back() == '\n' || message.back() == ' ')) {
        message.pop_back();
    }
    static_cast<std::vector<std::string>*>(problems)->push_back(message);
}

}  // namespace

struct schema_validator::parsed_schema {
    xmlDoc* source = nullptr;  // the schema keeps pointers into it
    xmlSchema* schema = nullptr;
    ~parsed_schema()
    {
        xmlSchemaFree(schema);
        xmlFreeDoc(source);
    }
};

schema_validator::schema_validator(std::filesystem::path folder) : folder_(std::move(folder))
{
    // Before the server's threads parse anything.
    xmlInitParser();
    // Includes and imports are read by the schema parser itself.
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
}

schema_validator::~schema_validator() = default;

schema_validator::parsed_schema* schema_validator::load(std::filesystem::path const& file,
                                                        std::vector<std::string>& problems)
{
    std::lock_guard<std::mutex> const lock(mutex_);
    if (auto const found = schemas_.find(file); found != schemas_.end()) {
        return found->second.get();
    }
    auto parsed = std::make_unique<parsed_schema>();
    parsed->source = xmlReadFile(file.c_str(), nullptr, XML_PARSE_NONET);
    if (parsed->source != nullptr) {
        xmlSchemaParserCtxt* parser = xmlSchemaNewDocParserCtxt(parsed->source);
        xmlSchemaSetParserStructuredErrors(parser, &collect, &problems);
        parsed->schema = xmlSchemaParse(parser);
        xmlSchemaFreeParserCtxt(parser);
    }
    if (parsed->schema == nullptr) {
        problems.push_back("schema not usable: " + file.string());
        return nullptr;
    }
    return schemas_.emplace(file, std::move(parsed)).first->second.get();
}

validation schema_validator::validate(xmlNode* message, std::string const& root, std::string const& versao)
{
    validation checked;
    if (folder_.empty()) {
        return checked;
    }
    std::filesystem::path const file = folder_ / (root + "_v" + versao + ".xsd");
    if (versao.empty() || versao.find('/') != std::string::npos || !std::filesystem::is_regular_file(file)) {
        checked.result = validation::outcome::unknown_version;
        return checked;
    }
    parsed_schema* parsed = load(file, checked.problems);
    if (parsed == nullptr) {
        checked.result = validation::outcome::invalid;
        return checked;
    }
    xmlSchemaValidCtxt* validator = xmlSchemaNewValidCtxt(parsed->schema);
    xmlSchemaSetValidStructuredErrors(validator, &collect, &checked.problems);
    int const outcome = xmlSchemaValidateOneElement(validator, message);
    xmlSchemaFreeValidCtxt(validator);
    if (outcome == 0) {
        checked.result = validation::outcome::valid;
    } else {
        checked.result = validation::outcome::invalid;
        if (checked.problems.empty()) {
            checked.problems.push_back("validation failed with libxml2 code " + std::to_string(outcome));
        }
    }
    return checked;
}

}  // namespace velk::tools::sefaz_sim

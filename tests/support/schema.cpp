#include <support/schema.hpp>

#include <velk/core/result/stack.hpp>

#include <libxml/globals.h>
#include <libxml/parser.h>
#include <libxml/xmlIO.h>
#include <libxml/xmlschemas.h>

#include <map>
#include <memory>
#include <mutex>

namespace velk::test {

namespace {

constexpr int parse_options = XML_PARSE_NONET;

void collect(void* data, xmlErrorPtr error)
{
    if (error == nullptr || error->level < XML_ERR_ERROR) {
        return;
    }
    std::string message = error->message == nullptr ? "" : error->message;
    while (!message.empty() && (message.back() == '\n' || message.back() == ' ')) {
        message.pop_back();
    }
    static_cast<std::vector<std::string>*>(data)->push_back("line " + std::to_string(error->line) + ": " + message);
}

// Sends what libxml2 reports on this thread to `problems` while it lives.
class error_collector {
public:
    explicit error_collector(std::vector<std::string>& problems)
        : previous_(xmlStructuredError), previous_context_(xmlStructuredErrorContext)
    {
        xmlSetStructuredErrorFunc(&problems, &collect);
    }
    ~error_collector() { xmlSetStructuredErrorFunc(previous_context_, previous_); }
    error_collector(error_collector const&) = delete;
    error_collector& operator=(error_collector const&) = delete;

private:
    xmlStructuredErrorFunc previous_;
    void* previous_context_;
};

struct document_deleter {
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using document_pointer = std::unique_ptr<xmlDoc, document_deleter>;

// The schema keeps pointers into the document it was read from.
struct parsed_schema {
    document_pointer source;
    xmlSchemaPtr schema = nullptr;
    ~parsed_schema() { xmlSchemaFree(schema); }
};

xmlSchemaPtr load_schema(std::filesystem::path const& xsd, std::vector<std::string>& problems)
{
    static std::mutex mutex;
    static std::map<std::string, std::unique_ptr<parsed_schema>> cache;
    std::lock_guard<std::mutex> const lock(mutex);

    std::string const key = std::filesystem::absolute(xsd).lexically_normal().string();
    if (auto const found = cache.find(key); found != cache.end()) {
        return found->second->schema;
    }
    // Includes and imports are read by the schema parser itself: refuse any
    // that would leave the machine.
    xmlSetExternalEntityLoader(xmlNoNetExternalEntityLoader);
    error_collector const collector(problems);
    auto loaded = std::make_unique<parsed_schema>();
    loaded->source.reset(xmlReadFile(key.c_str(), nullptr, parse_options));
    if (!loaded->source) {
        problems.push_back("schema not readable: " + key);
        return nullptr;
    }
    xmlSchemaParserCtxtPtr parser = xmlSchemaNewDocParserCtxt(loaded->source.get());
    xmlSchemaSetParserStructuredErrors(parser, &collect, &problems);
    loaded->schema = xmlSchemaParse(parser);
    xmlSchemaFreeParserCtxt(parser);
    if (loaded->schema == nullptr) {
        problems.push_back("schema not usable: " + key);
        return nullptr;
    }
    return cache.emplace(key, std::move(loaded)).first->second->schema;
}

}  // namespace

std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, core::byte_array const& xml)
{
    std::vector<std::string> problems;
    xmlSchemaPtr schema = load_schema(xsd, problems);
    if (schema == nullptr) {
        return problems;
    }
    error_collector const collector(problems);
    document_pointer const document(xmlReadMemory(reinterpret_cast<char const*>(xml.data()),
                                                  static_cast<int>(xml.size()), "document.xml", nullptr,
                                                  parse_options));
    if (!document) {
        problems.push_back("document not well-formed");
        return problems;
    }
    xmlSchemaValidCtxtPtr validator = xmlSchemaNewValidCtxt(schema);
    xmlSchemaSetValidStructuredErrors(validator, &collect, &problems);
    int const result = xmlSchemaValidateDoc(validator, document.get());
    xmlSchemaFreeValidCtxt(validator);
    if (result != 0 && problems.empty()) {
        problems.push_back("validation failed with libxml2 code " + std::to_string(result));
    }
    return problems;
}

std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, xml::document const& document)
{
    core::result::stack stack;
    core::byte_array const xml = xml::document::save(document, stack);
    if (stack.has_failed()) {
        return {"document not saved: " + stack.to_string()};
    }
    return validate_against_schema(xsd, xml);
}

std::vector<std::string> validate_against_schema(std::filesystem::path const& xsd, xml::element const& root)
{
    core::result::stack stack;
    xml::document document;
    if (!document.append_node(root, stack)) {
        return {"element not taken as a root: " + stack.to_string()};
    }
    return validate_against_schema(xsd, document);
}

}  // namespace velk::test

#include <velk/xml/detail/safe_parser.hpp>

#include <velk/core/result/report.hpp>
#include <velk/xml/detail/libxml2_session.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>

#include <string>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

// Deliberately absent: XML_PARSE_NOENT, DTDLOAD, DTDATTR, DTDVALID (no DTD
// work at all), HUGE (keeps the depth and size limits), NOBLANKS and NOCDATA
// (the tree keeps what was written), XINCLUDE. COMPACT saves an allocation per
// short text; the libxml2 tree is only read, never changed.
constexpr int parse_options = XML_PARSE_NONET | XML_PARSE_COMPACT;

struct parse_state {
    bool document_type_seen = false;
};

// Called with the DOCTYPE's name and external identifiers, before its
// internal subset is parsed: stopping here means no declaration is processed.
void refuse_document_type(void* context, xmlChar const*, xmlChar const*, xmlChar const*)
{
    auto* parser = static_cast<xmlParserCtxtPtr>(context);
    static_cast<parse_state*>(parser->_private)->document_type_seen = true;
    xmlStopParser(parser);
}

struct parser_deleter {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

void report_malformed(core::result::stack& stack, libxml2_session const& session, char const* fallback)
{
    std::string const description = session.has_error() ? session.get_description() : std::string(fallback);
    core::result::fresh<xml_result_category::malformed>(stack, description, std::to_string(session.get_line()));
}

}  // namespace

void libxml2_document_deleter::operator()(_xmlDoc* document) const
{
    xmlFreeDoc(document);
}

libxml2_document safe_parser::parse(core::byte_array const& bytes, core::result::stack& stack)
{
    libxml2_session session;
    if (bytes.empty() || bytes.size() > document::largest_input) {
        report_malformed(stack, session, bytes.empty() ? "Document is empty" : "Document is too large");
        return nullptr;
    }
    std::unique_ptr<xmlParserCtxt, parser_deleter> parser(
        xmlCreateMemoryParserCtxt(reinterpret_cast<char const*>(bytes.data()), static_cast<int>(bytes.size())));
    if (!parser) {
        report_malformed(stack, session, "The parser could not be created");
        return nullptr;
    }
    xmlCtxtUseOptions(parser.get(), parse_options);
    parse_state state;
    parser->_private = &state;
    // The context has its own copy of the handler table; only this parse sees
    // these changes.
    parser->sax->internalSubset = &refuse_document_type;
    parser->sax->externalSubset = nullptr;
    parser->sax->entityDecl = nullptr;
    parser->sax->unparsedEntityDecl = nullptr;

    xmlParseDocument(parser.get());
    libxml2_document document(parser->myDoc);
    parser->myDoc = nullptr;

    if (state.document_type_seen || (document && (document->intSubset != nullptr || document->extSubset != nullptr))) {
        core::result::fresh<xml_result_category::dtd_declared>(stack);
        return nullptr;
    }
    if (session.has_error() || !parser->wellFormed || !document || xmlDocGetRootElement(document.get()) == nullptr ||
        (!parser->nsWellFormed && !session.has_doubted_namespace_uri())) {
        report_malformed(stack, session, "Document is not well-formed");
        return nullptr;
    }
    // Every URI declared is judged again as declared: libxml2 doubts some
    // that are good (see namespace_uris), and passes a relative one when a
    // prefix declares it, which no canonical form, and so no signature, takes.
    std::string problem;
    int line = 0;
    if (!namespace_uris::check_declared(*document, problem, line)) {
        core::result::fresh<xml_result_category::malformed>(stack, problem, std::to_string(line));
        return nullptr;
    }
    return document;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

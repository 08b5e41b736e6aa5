#include <velk/xml/detail/safe_parser.hpp>

#include <velk/core/result/report.hpp>
#include <velk/xml/detail/libxml2_session.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/xml_result_category.hpp>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

// Deliberately absent: XML_PARSE_NOENT, DTDLOAD, DTDATTR, DTDVALID (no DTD
// work at all), HUGE (keeps the depth and size limits), NOBLANKS and NOCDATA
// (the tree keeps what was written), XINCLUDE. COMPACT saves an allocation per
// short text; the libxml2 tree is only read, never changed.
constexpr int parse_options = XML_PARSE_NONET | XML_PARSE_COMPACT;

// No element of a fiscal message has more than a few attributes and
// declarations. libxml2 checks each declaration of an element against those
// before it, and appends each attribute by walking those before it, so
// thousands of either would cost a time that grows with their square: an
// element beyond this many of either is refused before libxml2 sees it.
constexpr int most_attributes = 256;

struct parse_state {
    bool document_type_seen = false;
};

// Whether the name that ends at `end` (blanks before "=" passed over) is a
// namespace declaration: "xmlns" or "xmlns:...".
bool declares_namespace(std::string_view text, std::size_t end)
{
    while (end > 0 && (text[end - 1] == ' ' || text[end - 1] == '\t' || text[end - 1] == '\n' || text[end - 1] == '\r')) {
        --end;
    }
    std::size_t start = end;
    while (start > 0 && text[start - 1] != ' ' && text[start - 1] != '\t' && text[start - 1] != '\n' &&
           text[start - 1] != '\r' && text[start - 1] != '"' && text[start - 1] != '\'') {
        --start;
    }
    std::string_view const name = text.substr(start, end - start);
    return name == "xmlns" || name.substr(0, 6) == "xmlns:";
}

// The start tags counted in one pass: each "=" outside a quoted value is an
// attribute or a declaration. Comments, CDATA sections, processing
// instructions and a DOCTYPE are passed over; texts are outside any tag.
// Gives the line of the first tag beyond the limit, or 0 when none is.
int line_beyond_limits(std::string_view text)
{
    auto skip_past = [&](std::size_t from, std::string_view end) {
        std::size_t const found = text.find(end, from);
        return found == std::string_view::npos ? text.size() : found + end.size();
    };
    std::size_t index = 0;
    while ((index = text.find('<', index)) != std::string_view::npos) {
        std::string_view const rest = text.substr(index);
        if (rest.substr(0, 4) == "<!--") {
            index = skip_past(index + 4, "-->");
        } else if (rest.substr(0, 9) == "<![CDATA[") {
            index = skip_past(index + 9, "]]>");
        } else if (rest.substr(0, 2) == "<?") {
            index = skip_past(index + 2, "?>");
        } else if (rest.substr(0, 2) == "<!" || rest.substr(0, 2) == "</") {
            index = skip_past(index + 2, ">");
        } else {
            int attributes = 0;
            int declarations = 0;
            char quote = 0;
            for (++index; index < text.size(); ++index) {
                char const c = text[index];
                if (quote != 0) {
                    quote = c == quote ? 0 : quote;
                } else if (c == '"' || c == '\'') {
                    quote = c;
                } else if (c == '=') {
                    int& count = declares_namespace(text, index) ? declarations : attributes;
                    if (++count > most_attributes) {
                        auto const lines = std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(index), '\n');
                        return static_cast<int>(lines) + 1;
                    }
                } else if (c == '>') {
                    break;
                }
            }
        }
    }
    return 0;
}

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
    if (int const line = line_beyond_limits(std::string_view(reinterpret_cast<char const*>(bytes.data()), bytes.size()));
        line != 0) {
        core::result::fresh<xml_result_category::malformed>(
            stack, "Element with more than " + std::to_string(most_attributes) + " attributes or namespace declarations",
            std::to_string(line));
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

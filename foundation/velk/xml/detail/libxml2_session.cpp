#include <velk/xml/detail/libxml2_session.hpp>

#include <libxml/globals.h>
#include <libxml/parser.h>

#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

bool initialise_libxml2()
{
    xmlInitParser();
    return true;
}

std::string_view trimmed(char const* text)
{
    std::string_view view = text == nullptr ? std::string_view() : std::string_view(text);
    constexpr std::string_view blanks = " \t\r\n";
    auto const first = view.find_first_not_of(blanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return view.substr(first, view.find_last_not_of(blanks) - first + 1);
}

}  // namespace

libxml2_session::libxml2_session()
{
    [[maybe_unused]] static bool const initialised = initialise_libxml2();
    previous_structured_ = xmlStructuredError;
    previous_structured_context_ = xmlStructuredErrorContext;
    previous_generic_ = xmlGenericError;
    previous_generic_context_ = xmlGenericErrorContext;
    xmlSetStructuredErrorFunc(this, &libxml2_session::on_error);
    xmlSetGenericErrorFunc(this, &libxml2_session::on_generic_error);
}

libxml2_session::~libxml2_session()
{
    xmlSetStructuredErrorFunc(previous_structured_context_, previous_structured_);
    xmlSetGenericErrorFunc(previous_generic_context_, previous_generic_);
}

void libxml2_session::on_error(void* session, xmlErrorPtr error)
{
    auto* self = static_cast<libxml2_session*>(session);
    if (error != nullptr && error->code == XML_WAR_NS_URI) {
        self->has_doubted_namespace_uri_ = true;
        return;
    }
    if (error == nullptr || self->has_error_ ||
        (error->level < XML_ERR_ERROR && error->code != XML_WAR_NS_URI_RELATIVE)) {
        return;
    }
    self->has_error_ = true;
    self->description_ = trimmed(error->message);
    self->line_ = error->line;
}

// Messages that libxml2 prints without a structured error are debugging output
// of deprecated paths; they are dropped.
void libxml2_session::on_generic_error(void*, char const*, ...) {}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

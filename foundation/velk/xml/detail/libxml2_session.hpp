#pragma once

#include <libxml/xmlerror.h>

#include <string>

namespace velk::xml {
inline namespace v3 {
namespace detail {

// One piece of work with libxml2 on the calling thread. libxml2 is initialised
// once per process; while the object lives, whatever libxml2 reports on this
// thread is collected here instead of printed to stderr. libxml2 keeps its
// handlers per thread, so other threads are not affected, and the handlers in
// place before are put back at the end.
class libxml2_session {
public:
    libxml2_session();
    ~libxml2_session();
    libxml2_session(libxml2_session const&) = delete;
    libxml2_session& operator=(libxml2_session const&) = delete;

    // Whether an error was reported. Of the warnings, one counts as an error:
    // a namespace URI that is not absolute, which no canonical form (and so
    // no signature) can take. libxml2's verdict that a namespace URI is none
    // is not taken as given (see namespace_uris) but noted apart.
    bool has_error() const { return has_error_; }
    bool has_doubted_namespace_uri() const { return has_doubted_namespace_uri_; }
    // The first error: libxml2's message without surrounding blanks, and its
    // line (0 when libxml2 gave none).
    std::string const& get_description() const { return description_; }
    int get_line() const { return line_; }

private:
    static void on_error(void* session, xmlErrorPtr error);
    static void on_generic_error(void* session, char const* format, ...);

    xmlStructuredErrorFunc previous_structured_;
    void* previous_structured_context_;
    xmlGenericErrorFunc previous_generic_;
    void* previous_generic_context_;
    bool has_error_ = false;
    bool has_doubted_namespace_uri_ = false;
    std::string description_;
    int line_ = 0;
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

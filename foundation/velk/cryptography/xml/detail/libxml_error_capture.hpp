#pragma once

// Internal: keeps libxml2's error messages of this thread off stderr while a
// signature is computed, and keeps the last one for the failure report.

#include <libxml/xmlerror.h>

#include <string>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class libxml_error_capture {
public:
    libxml_error_capture();
    ~libxml_error_capture();
    libxml_error_capture(libxml_error_capture const&) = delete;
    libxml_error_capture& operator=(libxml_error_capture const&) = delete;

    // The last message reported since construction, or `fallback`.
    std::string get_message(char const* fallback) const;

private:
    static void on_error(void* context, xmlError* error);

    xmlStructuredErrorFunc previous_handler_;
    void* previous_context_;
    std::string message_;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

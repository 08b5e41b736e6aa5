#include <velk/cryptography/xml/detail/libxml_error_capture.hpp>

#include <libxml/globals.h>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

libxml_error_capture::libxml_error_capture()
    : previous_handler_(xmlStructuredError), previous_context_(xmlStructuredErrorContext)
{
    xmlSetStructuredErrorFunc(this, &libxml_error_capture::on_error);
}

libxml_error_capture::~libxml_error_capture()
{
    xmlSetStructuredErrorFunc(previous_context_, previous_handler_);
}

std::string libxml_error_capture::get_message(char const* fallback) const
{
    return message_.empty() ? std::string(fallback) : message_;
}

void libxml_error_capture::on_error(void* context, xmlError* error)
{
    auto* self = static_cast<libxml_error_capture*>(context);
    if (error == nullptr || error->message == nullptr) {
        return;
    }
    self->message_ = error->message;
    // libxml2 ends its messages with a line feed.
    while (!self->message_.empty() && (self->message_.back() == '\n' || self->message_.back() == '\r')) {
        self->message_.pop_back();
    }
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

#include <velk/cryptography/xml/detail/canonical_writer.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/libxml_error_capture.hpp>

#include <libxml/c14n.h>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

canonical_writer::canonical_writer()
    : buffer_(xmlOutputBufferCreateIO(&canonical_writer::write_piece, nullptr, this, nullptr))
{
}

canonical_writer::~canonical_writer()
{
    if (buffer_ != nullptr) {
        xmlOutputBufferClose(buffer_);
    }
}

int canonical_writer::write_piece(void* context, char const* buffer, int length)
{
    auto const* self = static_cast<canonical_writer const*>(context);
    if (self->output_ != nullptr) {
        (*self->output_)(reinterpret_cast<unsigned char const*>(buffer), static_cast<std::size_t>(length));
    }
    return length;
}

bool canonical_writer::write(xmlDoc* document, bool with_comments, sink const& output, core::result::stack& stack)
{
    libxml_error_capture errors;
    if (buffer_ == nullptr) {
        core::result::fresh<cryptography_result_category::canonicalization_failed>(
            stack, errors.get_message("xmlOutputBufferCreateIO"));
        return false;
    }
    output_ = &output;
    // No visibility callback: the whole document, the cheapest way through.
    // The canonicaliser flushes the buffer before it returns.
    int const written =
        xmlC14NExecute(document, nullptr, nullptr, XML_C14N_1_0, nullptr, with_comments ? 1 : 0, buffer_);
    output_ = nullptr;
    if (written < 0 || buffer_->error != 0) {
        core::result::fresh<cryptography_result_category::canonicalization_failed>(
            stack, errors.get_message("xmlC14NExecute"));
        return false;
    }
    return true;
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

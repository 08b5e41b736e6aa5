#include <velk/cryptography/detail/openssl.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>

#include <openssl/err.h>

#include <climits>

namespace velk::cryptography {
inline namespace v3 {
namespace detail {

std::string take_openssl_errors(char const* fallback)
{
    std::string text;
    while (unsigned long const error = ERR_get_error()) {
        char const* const reason = ERR_reason_error_string(error);
        char buffer[256];
        if (reason == nullptr) {
            ERR_error_string_n(error, buffer, sizeof buffer);
        }
        if (!text.empty()) {
            text += "; ";
        }
        text += reason != nullptr ? reason : buffer;
    }
    return text.empty() ? std::string(fallback) : text;
}

bool is_known_encoding(encoding format, core::result::stack& stack)
{
    if (format == encoding::der || format == encoding::pem) {
        return true;
    }
    core::result::fresh<cryptography_result_category::unsupported_encoding>(stack,
                                                                            std::to_string(static_cast<int>(format)));
    return false;
}

openssl_ptr<BIO> memory_source(unsigned char const* data, std::size_t size)
{
    // Larger inputs than a BIO can address are refused by handing it nothing.
    int const length = size > static_cast<std::size_t>(INT_MAX) ? 0 : static_cast<int>(size);
    return openssl_ptr<BIO>(BIO_new_mem_buf(data, length));
}

core::byte_array memory_contents(BIO* sink)
{
    char* data = nullptr;
    long const length = BIO_get_mem_data(sink, &data);
    core::byte_array bytes;
    if (length > 0) {
        auto const* first = reinterpret_cast<unsigned char const*>(data);
        bytes.assign(first, first + length);
    }
    return bytes;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::cryptography

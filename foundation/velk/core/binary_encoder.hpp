#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>

#include <string>
#include <string_view>

namespace velk::core {
inline namespace v3 {

enum class binary_encoding : int {
    hexadecimal = 0,  // two lower-case digits per byte
    base64 = 1,       // RFC 4648 alphabet with "=" padding, no line breaks
};

// Text forms of bytes.
class VELK_EXPORT binary_encoder {
public:
    static std::string encode(binary_encoding encoding, byte_array const& bytes);
    // The inverse; false on a text that is not of the encoding (upper-case hex
    // digits and blanks between Base64 characters are accepted).
    static bool decode(binary_encoding encoding, std::string_view text, byte_array& bytes);
};

}  // namespace v3
}  // namespace velk::core

#include <velk/core/binary_encoder.hpp>

#include <utility>

namespace velk::core {
inline namespace v3 {

namespace {

constexpr char hex_digits[] = "0123456789abcdef";
constexpr char base64_alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

int hex_value(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

int base64_value(char c)
{
    if (c >= 'A' && c <= 'Z') {
        return c - 'A';
    }
    if (c >= 'a' && c <= 'z') {
        return c - 'a' + 26;
    }
    if (c >= '0' && c <= '9') {
        return c - '0' + 52;
    }
    if (c == '+') {
        return 62;
    }
    if (c == '/') {
        return 63;
    }
    return -1;
}

}  // namespace

std::string binary_encoder::encode(binary_encoding encoding, byte_array const& bytes)
{
    std::string text;
    if (encoding == binary_encoding::hexadecimal) {
        text.resize(bytes.size() * 2);
        std::size_t out = 0;
        for (unsigned char const byte : bytes) {
            text[out++] = hex_digits[byte >> 4];
            text[out++] = hex_digits[byte & 0x0f];
        }
        return text;
    }
    // Written in place, four characters for every three bytes, through plain
    // pointers: stores through the string's operator[] would make the
    // compiler reload both buffers' addresses after every character.
    text.resize((bytes.size() + 2) / 3 * 4);
    char* out = text.data();
    unsigned char const* in = bytes.data();
    unsigned char const* const whole_end = in + bytes.size() / 3 * 3;
    for (; in != whole_end; in += 3) {
        unsigned int const block = (unsigned{in[0]} << 16) | (unsigned{in[1]} << 8) | in[2];
        out[0] = base64_alphabet[(block >> 18) & 63];
        out[1] = base64_alphabet[(block >> 12) & 63];
        out[2] = base64_alphabet[(block >> 6) & 63];
        out[3] = base64_alphabet[block & 63];
        out += 4;
    }
    std::size_t const rest = bytes.size() % 3;
    if (rest != 0) {
        unsigned int const block = (unsigned{in[0]} << 16) | (rest == 2 ? unsigned{in[1]} << 8 : 0U);
        out[0] = base64_alphabet[(block >> 18) & 63];
        out[1] = base64_alphabet[(block >> 12) & 63];
        out[2] = rest == 2 ? base64_alphabet[(block >> 6) & 63] : '=';
        out[3] = '=';
    }
    return text;
}

bool binary_encoder::decode(binary_encoding encoding, std::string_view text, byte_array& bytes)
{
    byte_array result;
    if (encoding == binary_encoding::hexadecimal) {
        if (text.size() % 2 != 0) {
            return false;
        }
        result.reserve(text.size() / 2);
        for (std::size_t i = 0; i < text.size(); i += 2) {
            int const high = hex_value(text[i]);
            int const low = hex_value(text[i + 1]);
            if (high < 0 || low < 0) {
                return false;
            }
            result.push_back(static_cast<unsigned char>(high * 16 + low));
        }
        bytes = std::move(result);
        return true;
    }
    unsigned int block = 0;
    int bits = 0;
    int padding = 0;
    for (char const c : text) {
        if (c == ' ' || c == '\n' || c == '\r' || c == '\t') {
            continue;
        }
        if (c == '=') {
            ++padding;
            continue;
        }
        int const value = base64_value(c);
        if (value < 0 || padding > 0) {
            return false;
        }
        block = (block << 6) | static_cast<unsigned int>(value);
        bits += 6;
        if (bits >= 8) {
            bits -= 8;
            result.push_back(static_cast<unsigned char>((block >> bits) & 0xff));
        }
    }
    if (padding > 2) {
        return false;
    }
    bytes = std::move(result);
    return true;
}

}  // namespace v3
}  // namespace velk::core

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
    // Written in place, four characters for every three bytes.
    text.resize((bytes.size() + 2) / 3 * 4);
    std::size_t out = 0;
    std::size_t i = 0;
    for (; i + 3 <= bytes.size(); i += 3) {
        unsigned int const block = (unsigned{bytes[i]} << 16) | (unsigned{bytes[i + 1]} << 8) | bytes[i + 2];
        text[out++] = base64_alphabet[(block >> 18) & 63];
        text[out++] = base64_alphabet[(block >> 12) & 63];
        text[out++] = base64_alphabet[(block >> 6) & 63];
        text[out++] = base64_alphabet[block & 63];
    }
    std::size_t const rest = bytes.size() - i;
    if (rest != 0) {
        unsigned int const block = (unsigned{bytes[i]} << 16) | (rest == 2 ? unsigned{bytes[i + 1]} << 8 : 0U);
        text[out++] = base64_alphabet[(block >> 18) & 63];
        text[out++] = base64_alphabet[(block >> 12) & 63];
        text[out++] = rest == 2 ? base64_alphabet[(block >> 6) & 63] : '=';
        text[out++] = '=';
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

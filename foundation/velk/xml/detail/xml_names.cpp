#include <velk/xml/detail/xml_names.hpp>

#include <array>
#include <cstdint>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

enum name_class : unsigned char { not_in_name = 0, inside_only = 1, anywhere = 2 };

// The ASCII part, looked up by byte: nearly every name is ASCII only.
constexpr std::array<unsigned char, 128> make_ascii_classes()
{
    std::array<unsigned char, 128> classes{};
    for (int c = 'A'; c <= 'Z'; ++c) {
        classes[c] = anywhere;
        classes[c + ('a' - 'A')] = anywhere;
    }
    for (int c = '0'; c <= '9'; ++c) {
        classes[c] = inside_only;
    }
    classes['_'] = anywhere;
    classes['-'] = inside_only;
    classes['.'] = inside_only;
    return classes;
}

constexpr std::array<unsigned char, 128> ascii_classes = make_ascii_classes();

struct code_range {
    char32_t first;
    char32_t last;
};

// NameStartChar above ASCII.
constexpr code_range start_ranges[] = {
    {0xC0, 0xD6},       {0xD8, 0xF6},       {0xF8, 0x2FF},      {0x370, 0x37D},     {0x37F, 0x1FFF},
    {0x200C, 0x200D},   {0x2070, 0x218F},   {0x2C00, 0x2FEF},   {0x3001, 0xD7FF},   {0xF900, 0xFDCF},
    {0xFDF0, 0xFFFD},   {0x10000, 0xEFFFF},
};
// What NameChar adds above ASCII.
constexpr code_range inside_ranges[] = {{0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t N>
bool in_ranges(char32_t code, code_range const (&ranges)[N])
{
    for (code_range const& range : ranges) {
        if (code >= range.first && code <= range.last) {
            return true;
        }
    }
    return false;
}

// One character of UTF-8 from text[index], moving index past it; 0 when the
// bytes are no well-formed UTF-8 (overlong forms, surrogates and values above
// U+10FFFF included), 0 being no name character anyway.
char32_t next_code(std::string_view text, std::size_t& index)
{
    auto const lead = static_cast<unsigned char>(text[index]);
    int length = 0;
    char32_t code = 0;
    char32_t minimum = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2, code = lead & 0x1F, minimum = 0x80;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3, code = lead & 0x0F, minimum = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4, code = lead & 0x07, minimum = 0x10000;
    } else {
        return 0;
    }
    if (text.size() - index < static_cast<std::size_t>(length)) {
        return 0;
    }
    for (int step = 1; step < length; ++step) {
        auto const next = static_cast<unsigned char>(text[index + step]);
        if ((next & 0xC0) != 0x80) {
            return 0;
        }
        code = (code << 6) | (next & 0x3F);
    }
    if (code < minimum || code > 0x10FFFF || (code >= 0xD800 && code <= 0xDFFF)) {
        return 0;
    }
    index += static_cast<std::size_t>(length);
    return code;
}

// The class of the character at text[index], moving index past it.
unsigned char next_class(std::string_view text, std::size_t& index)
{
    auto const byte = static_cast<unsigned char>(text[index]);
    if (byte < 0x80) {
        ++index;
        return ascii_classes[byte];
    }
    char32_t const code = next_code(text, index);
    if (in_ranges(code, start_ranges)) {
        return anywhere;
    }
    return in_ranges(code, inside_ranges) ? inside_only : not_in_name;
}

}  // namespace

bool is_valid_local_name(std::string_view name)
{
    std::string_view prefix;
    return is_valid_qualified_name(name, prefix) && prefix.empty();
}

bool is_valid_qualified_name(std::string_view name)
{
    std::string_view prefix;
    return is_valid_qualified_name(name, prefix);
}

bool is_valid_qualified_name(std::string_view name, std::string_view& prefix)
{
    prefix = {};
    // Nearly every name is a few ASCII letters without prefix: decided by the
    // table alone, in one pass.
    if (!name.empty()) {
        auto const first = static_cast<unsigned char>(name[0]);
        if (first < 0x80 && ascii_classes[first] == anywhere) {
            std::size_t index = 1;
            while (index < name.size()) {
                auto const c = static_cast<unsigned char>(name[index]);
                if (c >= 0x80 || ascii_classes[c] == not_in_name) {
                    break;
                }
                ++index;
            }
            if (index == name.size()) {
                return true;
            }
        }
    }
    bool at_start = true;
    for (std::size_t index = 0; index < name.size();) {
        if (name[index] == ':' && !at_start && prefix.empty()) {
            prefix = name.substr(0, index);
            at_start = true;
            ++index;
            continue;
        }
        unsigned char const kind = next_class(name, index);
        if (kind == not_in_name || (at_start && kind != anywhere)) {
            return false;
        }
        at_start = false;
    }
    return !at_start;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

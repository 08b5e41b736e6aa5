#include <velk/xml/detail/xml_names.hpp>

#include <array>

namespace velk::xml {
inline namespace v3 {
namespace detail {

namespace {

enum name_class : unsigned char { not_in_name = 0, inside_only = 1, anywhere = 2 };

constexpr std::array<unsigned char, 256> make_name_classes()
{
    std::array<unsigned char, 256> classes{};
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
    for (int c = 0x80; c <= 0xFF; ++c) {
        classes[c] = anywhere;
    }
    return classes;
}

constexpr std::array<unsigned char, 256> name_classes = make_name_classes();

}  // namespace

bool is_valid_local_name(std::string_view name)
{
    if (name.empty() || name_classes[static_cast<unsigned char>(name.front())] != anywhere) {
        return false;
    }
    for (char const c : name) {
        if (name_classes[static_cast<unsigned char>(c)] == not_in_name) {
            return false;
        }
    }
    return true;
}

bool is_valid_qualified_name(std::string_view name)
{
    std::string_view prefix;
    return is_valid_qualified_name(name, prefix);
}

bool is_valid_qualified_name(std::string_view name, std::string_view& prefix)
{
    prefix = {};
    bool at_start = true;
    for (std::size_t index = 0; index < name.size(); ++index) {
        auto const c = static_cast<unsigned char>(name[index]);
        if (c == ':' && !at_start && prefix.empty()) {
            prefix = name.substr(0, index);
            at_start = true;
            continue;
        }
        unsigned char const kind = name_classes[c];
        if (kind == not_in_name || (at_start && kind != anywhere)) {
            return false;
        }
        at_start = false;
    }
    return !at_start;
}

std::string_view prefix_of(std::string_view qualified_name)
{
    auto const colon = qualified_name.find(':');
    return colon == std::string_view::npos ? std::string_view() : qualified_name.substr(0, colon);
}

std::string_view local_part_of(std::string_view qualified_name)
{
    auto const colon = qualified_name.find(':');
    return colon == std::string_view::npos ? qualified_name : qualified_name.substr(colon + 1);
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

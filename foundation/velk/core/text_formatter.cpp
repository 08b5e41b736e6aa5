#include <velk/core/text_formatter.hpp>

#include <optional>

namespace velk::core {
inline namespace v3 {

namespace {

constexpr char digit_alphabet[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

// One field of the params: blanks skipped, optional leading "-", digits only,
// at most `limit` characters. Empty keeps the default (nullopt with ok=true).
bool read_field(std::string_view field, std::size_t limit, std::optional<long long>& out)
{
    std::string kept;
    for (char const c : field) {
        if (c != ' ' && c != '\t') {
            kept += c;
        }
    }
    if (kept.empty()) {
        out.reset();
        return true;
    }
    if (kept.size() > limit) {
        return false;
    }
    std::size_t position = 0;
    bool negative = false;
    if (kept[0] == '-') {
        negative = true;
        position = 1;
    }
    if (position == kept.size()) {
        return false;
    }
    long long value = 0;
    for (; position < kept.size(); ++position) {
        char const c = kept[position];
        if (c < '0' || c > '9') {
            return false;
        }
        if (value > 1'000'000'000'000LL) {
            return false;
        }
        value = value * 10 + (c - '0');
    }
    out = negative ? -value : value;
    return true;
}

std::string render(text_formatter::argument const& argument, bool negative, unsigned long long magnitude,
                   unsigned bits)
{
    std::string const& name = argument.get_name();
    long long base = 10;
    long long minimum_digits = 0;
    long long maximum_length = bits;

    std::string_view const params = argument.get_params();
    if (!params.empty()) {
        std::optional<long long> fields[3];
        std::size_t const limits[3] = {16, 32, 32};
        std::size_t start = 0;
        for (int index = 0;; ++index) {
            std::size_t const bar = params.find('|', start);
            std::string_view const field =
                params.substr(start, bar == std::string_view::npos ? std::string_view::npos : bar - start);
            if (index >= 3 || !read_field(field, limits[index], fields[index])) {
                return "<" + name + ": Parameter parser error>";
            }
            if (bar == std::string_view::npos) {
                break;
            }
            start = bar + 1;
        }
        if (fields[0]) {
            base = *fields[0];
        }
        if (fields[1]) {
            minimum_digits = *fields[1];
        }
        if (fields[2] && *fields[2] != 0) {
            maximum_length = *fields[2];
        }
    }
    if (base < 2 || base > 36 || minimum_digits < 0 || maximum_length < 0) {
        return "<" + name + ": Invalid param>";
    }

    std::string digits;
    do {
        digits.insert(digits.begin(), digit_alphabet[magnitude % static_cast<unsigned long long>(base)]);
        magnitude /= static_cast<unsigned long long>(base);
    } while (magnitude != 0);
    if (static_cast<long long>(digits.size()) < minimum_digits) {
        if (minimum_digits > 4096) {
            return "<" + name + ": Invalid value>";
        }
        digits.insert(digits.begin(), static_cast<std::size_t>(minimum_digits) - digits.size(), '0');
    }
    if (negative) {
        digits.insert(digits.begin(), '-');
    }
    if (static_cast<long long>(digits.size()) > maximum_length) {
        return "<" + name + ": Invalid value>";
    }
    return digits;
}

}  // namespace

text_formatter text_formatter::parser(string_view format)
{
    text_formatter formatter;
    formatter.text_.assign(format.data(), format.size());
    std::size_t position = 0;
    while (position < format.size()) {
        std::size_t const open = format.find('{', position);
        if (open == string_view::npos) {
            break;
        }
        std::size_t const close = format.find('}', open + 1);
        if (close == string_view::npos) {
            break;
        }
        std::string_view const inside = format.substr(open + 1, close - open - 1);
        std::size_t const colon = inside.find(':');
        std::string name(inside.substr(0, colon));
        std::string params(colon == std::string_view::npos ? std::string_view() : inside.substr(colon + 1));
        formatter.arguments_.emplace_back(std::move(name), std::move(params),
                                          std::string(format.substr(open, close - open + 1)));
        position = close + 1;
    }
    return formatter;
}

bool text_formatter::has_arg_escape(unsigned long index) const
{
    std::string const wanted = std::to_string(index);
    for (auto const& argument : arguments_) {
        if (argument.get_name() == wanted) {
            return true;
        }
    }
    return false;
}

void text_formatter::replace_arg_escape_impl(std::string const& full_arg, std::string const& text)
{
    if (full_arg.empty()) {
        return;
    }
    std::size_t position = 0;
    while ((position = text_.find(full_arg, position)) != std::string::npos) {
        text_.replace(position, full_arg.size(), text);
        position += text.size();
    }
}

std::string text_formatter::format_integer(string_view format, bool negative, unsigned long long magnitude,
                                           unsigned bits)
{
    text_formatter formatter = parser(format);
    if (!formatter.has_arg_escape(0)) {
        return formatter.make_string();
    }
    std::vector<argument> const arguments = formatter.get_arguments();
    for (auto const& argument : arguments) {
        if (argument.get_name() == "0") {
            formatter.replace_arg_escape_impl(argument.get_full_arg(), render(argument, negative, magnitude, bits));
        }
    }
    return formatter.make_string();
}

}  // namespace v3
}  // namespace velk::core

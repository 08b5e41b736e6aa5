#pragma once

#include <velk/core/export.hpp>
#include <velk/core/string_view.hpp>

#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace velk::core {
inline namespace v3 {

// Formats numbers into the text of failure arguments. A format holds
// placeholders "{name}" or "{name:params}"; params are up to three fields
// separated by "|": base (2 to 36), minimum digits, maximum length.
//
// The formatter never fails an operation: a bad placeholder turns into one of
// the texts "<name: Parameter parser error>", "<name: Invalid param>" or
// "<name: Invalid value>" and the text goes on.
class VELK_EXPORT text_formatter {
public:
    class argument {
    public:
        argument(std::string name, std::string params, std::string full_arg)
            : name_(std::move(name)), params_(std::move(params)), full_arg_(std::move(full_arg))
        {
        }
        // For "{0}", "0".
        std::string const& get_name() const { return name_; }
        // What stands behind the name and its ':'; empty for "{0}".
        std::string const& get_params() const { return params_; }
        // The placeholder as written, braces included.
        std::string const& get_full_arg() const { return full_arg_; }

    private:
        std::string name_;
        std::string params_;
        std::string full_arg_;
    };

    static text_formatter parser(string_view format);

    bool has_arg_escape(unsigned long index) const;
    std::vector<argument> const& get_arguments() const { return arguments_; }
    // Puts text in the place of every occurrence of the placeholder.
    void replace_arg_escape_impl(std::string const& full_arg, std::string const& text);
    std::string make_string() const { return text_; }

    // The whole recipe for one integer into placeholder "0": parse the format,
    // read each "0" placeholder's params and write the number. bits is 32 or 64
    // and sets the default maximum length.
    static std::string format_integer(string_view format, bool negative, unsigned long long magnitude, unsigned bits);

    template <class Integer>
    static std::string format(string_view format, Integer value)
    {
        static_assert(std::is_integral_v<Integer> || std::is_enum_v<Integer>);
        if constexpr (std::is_enum_v<Integer>) {
            return text_formatter::format(format, static_cast<std::underlying_type_t<Integer>>(value));
        } else {
            unsigned const bits = sizeof(Integer) > 4 ? 64 : 32;
            if constexpr (std::is_signed_v<Integer>) {
                long long const wide = value;
                bool const negative = wide < 0;
                unsigned long long const magnitude =
                    negative ? 0ULL - static_cast<unsigned long long>(wide) : static_cast<unsigned long long>(wide);
                return format_integer(format, negative, magnitude, bits);
            } else {
                return format_integer(format, false, static_cast<unsigned long long>(value), bits);
            }
        }
    }

private:
    std::string text_;
    std::vector<argument> arguments_;
};

}  // namespace v3
}  // namespace velk::core

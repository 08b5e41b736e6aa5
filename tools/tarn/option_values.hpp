#pragma once

#include "command_error.hpp"
#include "option_table.hpp"

#include <velk/erp/estado.hpp>

#include <chrono>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velk::tools::tarn {

// The values of options read into the library's types; a value out of its
// choices is a usage error that names the choices.
class option_values {
public:
    template <class Value>
    using choices = std::initializer_list<std::pair<std::string_view, Value>>;

    // The value of `name` among `table`; `fallback` when the option is absent.
    template <class Value>
    static Value choose(option_table const& options, std::string_view name, choices<Value> table, Value fallback)
    {
        std::optional<std::string> const given = options.value(name);
        if (!given) {
            return fallback;
        }
        std::string known;
        for (auto const& [text, value] : table) {
            if (text == *given) {
                return value;
            }
            known += (known.empty() ? "" : ", ") + std::string(text);
        }
        throw command_error::usage("opções", "--" + std::string(name) + " " + *given + ": use " + known);
    }

    // --uf as "SP" or the IBGE code; nullopt when absent.
    static std::optional<erp::estado> uf(option_table const& options);
    // The same, required.
    static erp::estado required_uf(option_table const& options);

    // A whole number in [minimum, maximum].
    static std::uint64_t number(std::string_view what, std::string const& text, std::uint64_t minimum,
                                std::uint64_t maximum);
    // A required option's text.
    static std::string required(option_table const& options, std::string_view name);
};

}  // namespace velk::tools::tarn

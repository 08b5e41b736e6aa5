#include "option_values.hpp"

#include <charconv>

namespace velk::tools::tarn {

std::optional<erp::estado> option_values::uf(option_table const& options)
{
    std::optional<std::string> const given = options.value("uf");
    if (!given) {
        return std::nullopt;
    }
    erp::estado found{};
    if (!erp::estado_from_text(*given, found)) {
        throw command_error::usage("opções", "--uf " + *given + ": não é uma UF (use a sigla, como SP)");
    }
    return found;
}

erp::estado option_values::required_uf(option_table const& options)
{
    std::optional<erp::estado> const found = uf(options);
    if (!found) {
        throw command_error::usage("opções", "informe --uf");
    }
    return *found;
}

std::uint64_t option_values::number(std::string_view what, std::string const& text, std::uint64_t minimum,
                                    std::uint64_t maximum)
{
    std::uint64_t value = 0;
    auto const [end, problem] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || problem != std::errc() || end != text.data() + text.size() || value < minimum ||
        value > maximum) {
        throw command_error::usage("opções", std::string(what) + " " + text + ": use um número de " +
                                                 std::to_string(minimum) + " a " + std::to_string(maximum));
    }
    return value;
}

std::string option_values::required(option_table const& options, std::string_view name)
{
    std::optional<std::string> const given = options.value(name);
    if (!given) {
        throw command_error::usage("opções", "informe --" + std::string(name));
    }
    return *given;
}

}  // namespace velk::tools::tarn

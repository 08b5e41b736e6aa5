#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

#include <string>
#include <string_view>

namespace velk::erp {
inline namespace v4 {

// The 27 units of the federation, in alphabetical order of their names.
enum class estado : int {
    ac = 0, al, ap, am, ba, ce, df, es, go, ma, ms, mt, mg, pa, pb, pr, pe, pi, rj, rn, rs, ro, rr, sc, sp, se, to,
};

inline constexpr int quantidade_estados = 27;

// Two-letter abbreviation ("SP"), as tag UF writes it; empty for a value that
// is no state.
VELK_EXPORT std::string get_uf(estado value);
// IBGE code (35 for SP), as tag cUF and the access key write it; 0 for a value
// that is no state.
VELK_EXPORT int get_codigo_ibge(estado value);
// The state of an abbreviation ("SP") or IBGE code ("35"); false for any other
// text.
VELK_EXPORT bool estado_from_text(std::string_view text, estado& value);

}  // namespace v4
}  // namespace velk::erp

namespace velk::core {
inline namespace v3 {

// The text of a state is its two-digit IBGE code, as the access key holds it.
template <>
struct VELK_EXPORT chars_converter<erp::estado> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::estado value);
};

// Reads the two-digit IBGE code; the two-letter abbreviation (as tag UF of an
// address holds it) is read too.
template <>
struct VELK_EXPORT value_converter<erp::estado> {
    static converter_status make_value(erp::estado& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core

#pragma once

#include <velk/core/date.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

// The leaves of the document: each appends to `pai` one element named `tag`
// holding a value in the text form of its kind, and returns false when the
// value has no text form. The width or number of places belongs to the tag,
// never to the value. An optional value is written exactly when it is held.

// txt: the text as it is, escaped on save. An empty text gives an element
// without text.
bool txt(xml::element& pai, std::string_view tag, std::string const& valor, core::result::stack& stack);
// The same with a text made for the element, moved into it.
bool txt(xml::element& pai, std::string_view tag, std::string&& valor, core::result::stack& stack);

// u: decimal digits, filled with "0" on the left up to `largura` digits (0: no
// fill); a longer number is written whole.
bool u(xml::element& pai, std::string_view tag, std::uint64_t valor, core::result::stack& stack,
       unsigned int largura);

// d: exactly `casas` places after a point, rounded by the decimal type.
bool d(xml::element& pai, std::string_view tag, core::decimal const& valor, core::result::stack& stack,
       unsigned int casas);

// dh: AAAA-MM-DDThh:mm:ss and the UTC offset.
bool dh(xml::element& pai, std::string_view tag, core::datetime const& valor, core::result::stack& stack);

// dt: AAAA-MM-DD.
bool dt(xml::element& pai, std::string_view tag, core::date const& valor, core::result::stack& stack);

// The documents of a party, in elements named "CNPJ" and "CPF". A CNPJ under
// another name (CNPJFab, CNPJProd) is a plain u of 14 digits.
bool cnpj(xml::element& pai, std::uint64_t valor, core::result::stack& stack);
bool cpf(xml::element& pai, std::uint64_t valor, core::result::stack& stack);

inline bool txt(xml::element& pai, std::string_view tag, core::optional<std::string> const& valor,
                core::result::stack& stack)
{
    return !valor || txt(pai, tag, *valor, stack);
}

template <class Inteiro>
bool u(xml::element& pai, std::string_view tag, core::optional<Inteiro> const& valor, core::result::stack& stack,
       unsigned int largura)
{
    return !valor || u(pai, tag, *valor, stack, largura);
}

inline bool d(xml::element& pai, std::string_view tag, core::optional<core::decimal> const& valor,
              core::result::stack& stack, unsigned int casas)
{
    return !valor || d(pai, tag, *valor, stack, casas);
}

inline bool dh(xml::element& pai, std::string_view tag, core::optional<core::datetime> const& valor,
               core::result::stack& stack)
{
    return !valor || dh(pai, tag, *valor, stack);
}

inline bool dt(xml::element& pai, std::string_view tag, core::optional<core::date> const& valor,
               core::result::stack& stack)
{
    return !valor || dt(pai, tag, *valor, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

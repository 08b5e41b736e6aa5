#pragma once

// The conversions of the values of a NotaFiscal into the values of the
// layout's tree, shared by the builders of every group.

#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/detail/protobuf/DateTime.pb.h>
#include <velk/erp/tarn/nfe/detail/protobuf/Decimal.pb.h>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <google/protobuf/wrappers.pb.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace mensagem = ::velk::internal::nfe::serialization;

// The refusals, by name: recusar<codigo::serie_invalida>.
using codigo = processar_nota_result_category;

// Pushes refusal `Codigo` on top of the stack and gives false.
template <auto const& Codigo, class... Detalhe>
bool recusar(core::result::stack& stack, Detalhe&&... detalhe)
{
    core::result::chain<Codigo>(stack, std::forward<Detalhe>(detalhe)...);
    return false;
}

// numero * 10^-casas_decimais. A numero beyond the signed 64 bits of the
// decimal type takes the largest it holds, and more than 32767 places are
// 32767: the value is then out of every tag's range, and the schema says so.
// Inline: a note has a few dozen values per item.
inline core::decimal decimal_de(mensagem::Decimal const& valor)
{
    constexpr auto maior_unscaled = static_cast<std::uint64_t>(std::numeric_limits<long long>::max());
    constexpr auto maior_casas = static_cast<std::uint32_t>(std::numeric_limits<short>::max());
    std::uint64_t const numero = valor.numero() > maior_unscaled ? maior_unscaled : valor.numero();
    std::uint32_t const casas = valor.casas_decimais() > maior_casas ? maior_casas : valor.casas_decimais();
    return core::decimal(static_cast<long long>(numero), static_cast<short>(-static_cast<int>(casas)));
}

// A Decimal a tag requires: absent, it reads as zero.
inline void atribuir(bool presente, mensagem::Decimal const& valor, core::decimal& destino)
{
    destino = presente ? decimal_de(valor) : core::decimal();
}

// A Decimal of an optional tag: absent, the tag is left out.
inline void atribuir(bool presente, mensagem::Decimal const& valor, core::optional<core::decimal>& destino)
{
    if (presente) {
        destino = decimal_de(valor);
    }
}

// An optional text, present when its wrapper is; an empty text in a present
// wrapper is present.
inline core::optional<std::string> texto(bool presente, google::protobuf::StringValue const& valor)
{
    return presente ? core::optional<std::string>(valor.value()) : core::optional<std::string>();
}

// The day, month and year; a year beyond the signed 32 bits takes the largest
// value those hold.
core::date date_de(mensagem::Date const& valor);

// date (day, month, year) and time (hour, minute, seconds, miliseconds) with
// the offset in minutes; absent parts are zero. A year or an hour beyond the
// signed 32 bits takes the largest value those hold.
core::datetime datetime_de(mensagem::DateTime const& valor);

// A number kept as text in the message (model, series, the key's check
// digit): optional blanks, an optional sign and decimal digits, as far as
// they go; below 0 it is 0, above 65535 it is 65535. False for a text with no
// number or one beyond the signed 32 bits: the caller refuses it with its own
// code.
bool numero_de_texto(std::string const& texto, std::uint16_t& numero);

// The same reading into 64 bits, for a telephone number, which is not
// clamped: false also beyond the unsigned 64 bits.
bool numero_longo_de_texto(std::string const& texto, std::uint64_t& numero);

// A CNPJ or CPF (or a telephone written like one) read as a number: at most
// 64 characters, an optional "-" in front, then only digits; empty reads as
// 0. On failure the converter's code 2 is on a fresh stack and the caller
// adds its own code.
bool documento_de_texto(std::string const& texto, std::uint64_t& numero, core::result::stack& stack);

// An unsigned number of the message into a narrower tag: beyond the tag's
// largest value it takes that value.
template <class Destino, class Origem>
Destino limitado(Origem valor)
{
    constexpr auto maximo = static_cast<std::uint64_t>(static_cast<Destino>(~Destino{}));
    return static_cast<Destino>(static_cast<std::uint64_t>(valor) > maximo ? maximo : valor);
}

// An enumeration of the message through the table of its codes in the layout,
// indexed by the enumerator's number. The two sentinels that protobuf keeps
// in every enumeration are refused with code `Codigo` and the number. Any
// other number outside the table gives 0 where the layout has a code 0; where
// it has none the schema would refuse the document, and the number is
// refused as the sentinels are.
template <auto const& Codigo, class Codigo_layout, std::size_t N, class Destino>
bool mapear(int bruto, Codigo_layout const (&tabela)[N], Destino& destino, core::result::stack& stack)
{
    destino = 0;
    if (bruto >= 0 && static_cast<std::size_t>(bruto) < N) {
        destino = tabela[bruto];
        return true;
    }
    bool const tem_zero = std::find(std::begin(tabela), std::end(tabela), Codigo_layout{0}) != std::end(tabela);
    if (bruto == INT_MAX || bruto == INT_MIN || !tem_zero) {
        return recusar<Codigo>(stack, static_cast<unsigned int>(bruto));
    }
    return true;
}

// The same into an optional tag, which is then always written.
template <auto const& Codigo, class Codigo_layout, std::size_t N, class Destino>
bool mapear(int bruto, Codigo_layout const (&tabela)[N], core::optional<Destino>& destino,
            core::result::stack& stack)
{
    return mapear<Codigo>(bruto, tabela, destino.emplace(), stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

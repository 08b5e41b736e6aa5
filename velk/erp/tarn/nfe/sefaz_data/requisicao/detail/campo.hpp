#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail {

// The text of the fields of an outgoing message. A value that has no text
// leaves the converter's failure on the stack with code 9 of the SEFAZ data
// category on top of it, naming the request and the field, and the call gives
// false; nothing is appended then.

// Appends the text of `value` by the text recipe of the converters.
template <class T>
bool escrever_campo(std::string& destino, T const& value, char const* request_name, char const* field_name,
                    core::result::stack& stack)
{
    std::string const text = core::make_string(value, stack);
    if (stack.has_failed()) {
        core::result::chain<result_category::valor_requisicao_invalido>(stack, request_name, field_name);
        return false;
    }
    destino += text;
    return true;
}

// Appends the code that tag tpAmb writes (2 or 1). A value outside the
// enumeration has no code: converter failure 2 under the code 9.
bool escrever_ambiente(std::string& destino, ambiente value, char const* request_name, core::result::stack& stack);

// No upper limit on the digits of escrever_numero but the converter's own.
inline constexpr unsigned sem_limite = 0;

// Appends `value` in decimal, left-filled with zeros to at least
// `min_digits`. A text wider than `max_digits` (unless sem_limite) fails
// with converter failure 2 under the code 9.
bool escrever_numero(std::string& destino, unsigned long long value, unsigned min_digits, unsigned max_digits,
                     char const* request_name, char const* field_name, core::result::stack& stack);

// Appends a code of a table (the IBGE code of a state, the code of a model),
// left-filled to at least `min_digits`. Code 0 is the tables' answer for a
// value outside the enumeration: converter failure 2 under the code 9.
bool escrever_codigo(std::string& destino, int codigo, unsigned min_digits, char const* request_name,
                     char const* field_name, core::result::stack& stack);

// Appends a free text of the layouts (a justification, a correction): from
// `min_chars` to `max_chars` characters, none a control character, none
// beyond the Latin-1 range of the schemas' text type, neither the first nor
// the last a space. Other text is refused as a value without text:
// converter failure 2 under the code 9.
bool escrever_texto(std::string& destino, std::string const& value, unsigned min_chars, unsigned max_chars,
                    char const* request_name, char const* field_name, core::result::stack& stack);

// The refusal of a value the layout does not admit: converter failure 2 under
// the code 9 naming the request and the field. Always false.
bool recusar(char const* request_name, char const* field_name, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail

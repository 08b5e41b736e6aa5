#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/detail/protobuf/NotaFiscal.pb.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

// The largest JSON text read as a note: 4 MiB, eight times the largest
// message the authorities take, so that no real note comes near it while a
// runaway text is turned away before it is parsed.
inline constexpr std::size_t tamanho_maximo_nota_json = std::size_t{4} << 20;

// Reads a NotaFiscal from its JSON text, in protobuf's own JSON mapping with
// its default options (the same message for the same text, the same texts
// refused), by a reader of one pass that fills the message as it goes: field
// names as in the .proto files or in lowerCamelCase, enumerations by their
// exact names or numbers, no unknown field. On failure the stack holds
// nota_json_result_category code 1 with the reason and the byte where it was
// found (malformed text, a wrong type, an unknown field or enumeration name,
// a number out of its field's range, nesting too deep), or code 2 with the
// size of a text above tamanho_maximo_nota_json; false is returned and `nota`
// is left cleared.
bool ler_nota_json(std::string_view texto, ::velk::internal::nfe::serialization::NotaFiscal& nota,
                   core::result::stack& stack);

// The JSON text of a note, with the field names of the .proto files, indented,
// and the fields that hold their defaults left out. Should protobuf's writer
// fail, code 3 with its reason, and an empty text.
std::string escrever_nota_json(::velk::internal::nfe::serialization::NotaFiscal const& nota,
                               core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf

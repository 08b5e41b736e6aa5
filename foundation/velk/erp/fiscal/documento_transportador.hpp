#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/cnpj.hpp>
#include <velk/erp/cpf.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The carrier's document: a person's CPF or a company's CNPJ, valid by
// construction.
using documento_transportador = core::variant<cpf, cnpj>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

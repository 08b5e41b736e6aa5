#pragma once

#include <velk/core/result/stack.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The CPF or CNPJ of a party, given by the fiscal model as text, read as a
// number: digits only, an optional "-" in front, at most 64 characters. Check
// digits and length are the tax authority's business, not checked here.
//
// On failure the stack holds the converter's failure (code 2) as a fresh
// report and, on top of it, a private failure that names the document; false
// is returned and `numero` is unchanged. The builder then adds its own code.
bool ler_cpf(std::string const& texto, std::uint64_t& numero, core::result::stack& stack);
bool ler_cnpj(std::string const& texto, std::uint64_t& numero, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail

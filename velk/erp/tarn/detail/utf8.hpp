#pragma once

#include <cstddef>
#include <string>

namespace velk::erp::inline v4::tarn::detail {

// The code point of the UTF-8 sequence at `posicao`, which moves past it;
// false for one that is not UTF-8 (overlong, a surrogate, beyond U+10FFFF,
// cut short). `posicao` must be inside the text.
bool ler_utf8(std::string const& texto, std::size_t& posicao, char32_t& ponto);

}  // namespace velk::erp::inline v4::tarn::detail

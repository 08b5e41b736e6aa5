#include <velk/erp/tarn/detail/utf8.hpp>

namespace velk::erp::inline v4::tarn::detail {

namespace {

// The length of the UTF-8 sequence that a byte starts: 0 for a byte that
// starts none (a continuation, the start of an overlong form, beyond
// U+10FFFF).
std::size_t tamanho_utf8(unsigned char primeiro)
{
    if (primeiro < 0x80) {
        return 1;
    }
    if (primeiro < 0xC2) {
        return 0;
    }
    return primeiro < 0xE0 ? 2 : primeiro < 0xF0 ? 3 : primeiro < 0xF5 ? 4 : 0;
}

}  // namespace

bool ler_utf8(std::string const& texto, std::size_t& posicao, char32_t& ponto)
{
    std::size_t const tamanho = tamanho_utf8(static_cast<unsigned char>(texto[posicao]));
    if (tamanho == 0 || posicao + tamanho > texto.size()) {
        return false;
    }
    ponto = static_cast<unsigned char>(texto[posicao]) & (tamanho == 1 ? 0x7F : 0x7F >> tamanho);
    for (std::size_t i = 1; i < tamanho; ++i) {
        auto const seguinte = static_cast<unsigned char>(texto[posicao + i]);
        if ((seguinte & 0xC0) != 0x80) {
            return false;
        }
        ponto = (ponto << 6) | (seguinte & 0x3F);
    }
    posicao += tamanho;
    constexpr char32_t menor[] = {0, 0, 0x80, 0x800, 0x10000};
    return ponto >= menor[tamanho] && ponto <= 0x10FFFF && (ponto < 0xD800 || ponto > 0xDFFF);
}

}  // namespace velk::erp::inline v4::tarn::detail

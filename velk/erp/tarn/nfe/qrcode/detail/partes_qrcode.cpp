#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/byte_array.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/erp/tarn/detail/utf8.hpp>

#include <algorithm>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

constexpr std::size_t digest_hexadecimal_length = 56;  // 28 Base64 characters
constexpr std::size_t hash_hexadecimal_length = 40;    // 20 bytes of SHA-1

// A byte that is a whole character from the space to U+007F.
bool ascii_visivel(char byte)
{
    auto const valor = static_cast<unsigned char>(byte);
    return valor >= 0x20 && valor < 0x80;
}

}  // namespace

bool so_digitos(std::string const& texto)
{
    return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool cabe_em_cdata(std::string const& texto)
{
    if (texto.find("]]>") != std::string::npos) {
        return false;
    }
    for (std::size_t posicao = 0; posicao < texto.size();) {
        // An address is mostly printable ASCII: each such byte is its own
        // character, and one that fits.
        if (ascii_visivel(texto[posicao])) {
            ++posicao;
            continue;
        }
        char32_t ponto = 0;
        if (!tarn::detail::ler_utf8(texto, posicao, ponto) || ponto < 0x20 || ponto == 0xFFFE || ponto == 0xFFFF) {
            return false;
        }
    }
    return true;
}

char const* texto_da_versao(versao_qrcode versao)
{
    switch (versao) {
    case versao_qrcode::versao_100: return "1.00";
    case versao_qrcode::versao_200: return "2.00";
    }
    return nullptr;
}

bool recusar_campo(char const* versao_url, char const* campo, core::result::stack& stack)
{
    core::result::chain<processo_gerar_qrcode_result_category::valor_url_invalido>(stack, versao_url, campo);
    return false;
}

bool verificar_pagina(informacoes_adicionais const& informacoes, core::result::stack& stack)
{
    return cabe_em_cdata(informacoes.get_url_qrcode()) ||
           recusar_campo(texto_da_versao(informacoes.get_versao_qrcode()), "url_qrcode", stack);
}

namespace {

// The layout's urlChave: a TString of 21 to 85 characters, each from the
// space to "ÿ", with no blank at either end.
bool url_chave_do_leiaute(std::string const& texto)
{
    std::size_t caracteres = 0;
    for (std::size_t posicao = 0; posicao < texto.size(); ++caracteres) {
        if (ascii_visivel(texto[posicao])) {
            ++posicao;
            continue;
        }
        char32_t ponto = 0;
        if (!tarn::detail::ler_utf8(texto, posicao, ponto) || ponto < 0x20 || ponto > 0xFF) {
            return false;
        }
    }
    return caracteres >= 21 && caracteres <= 85 && texto.front() != ' ' && texto.back() != ' ';
}

}  // namespace

bool verificar_url_chave(informacoes_adicionais const& informacoes, core::result::stack& stack)
{
    core::optional<std::string> const url_chave = informacoes.get_url_chave();
    return (url_chave.has_value() && cabe_em_cdata(*url_chave) && url_chave_do_leiaute(*url_chave)) ||
           recusar_campo(texto_da_versao(informacoes.get_versao_qrcode()), "url_chave", stack);
}

bool valor_do_qrcode(std::string const& valor)
{
    std::size_t const ponto = valor.find('.');
    std::string const inteiro = valor.substr(0, ponto);
    bool const casas = ponto == std::string::npos || (valor.size() == ponto + 3 && so_digitos(valor.substr(ponto + 1)));
    return casas && (inteiro == "0" || (!inteiro.empty() && inteiro.size() <= 13 && inteiro.front() != '0' &&
                                        so_digitos(inteiro)));
}

std::string hexadecimal(std::string const& texto)
{
    return core::binary_encoder::encode(core::binary_encoding::hexadecimal, core::byte_array(texto));
}

bool digest_hexadecimal(std::string const& digest, std::string& hexadecimal_digest, core::result::stack& stack)
{
    hexadecimal_digest = hexadecimal(digest);
    if (hexadecimal_digest.size() != digest_hexadecimal_length) {
        core::result::fresh<processo_gerar_qrcode_result_category::digest_invalido>(stack, hexadecimal_digest);
        return false;
    }
    return true;
}

bool verificar_csc(std::string const& csc, core::result::stack& stack)
{
    if (csc.empty()) {
        core::result::fresh<processo_gerar_qrcode_result_category::csc_invalido>(stack, csc);
        return false;
    }
    return true;
}

bool hash_qrcode(std::string const& texto, std::string const& csc, std::string& hash, core::result::stack& stack)
{
    // A failure of the digest only leaves it empty: the length test below
    // tells the caller.
    core::result::stack local;
    cryptography::cryptographic_hash sha1 =
        cryptography::cryptographic_hash::from_algorithm(cryptography::cryptographic_hash::algorithm::sha1, local);
    sha1.update(texto);
    sha1.update(csc);
    hash = core::binary_encoder::encode(core::binary_encoding::hexadecimal, sha1.finish_once(local));
    if (hash.size() != hash_hexadecimal_length) {
        core::result::fresh<processo_gerar_qrcode_result_category::hash_invalido>(stack, hash);
        return false;
    }
    // Hexadecimal digits only: the letters a to f, upper-cased.
    for (char& digit : hash) {
        if (digit >= 'a' && digit <= 'f') {
            digit = static_cast<char>(digit - 'a' + 'A');
        }
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

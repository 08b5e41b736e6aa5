#pragma once

// Inside the library only: the pieces that the QR strings of versions 1.00
// and 2.00 share.

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// The bytes of a text, each as two lower-case hexadecimal digits.
std::string hexadecimal(std::string const& texto);

// The text of a value by the converters' recipe. When the value has no text,
// the converter's failure stays on the stack with code 8 on top of it, naming
// the QR version ("1.00", "2.00") and the field, and false is returned.
template <class T>
bool texto_do_campo(T const& valor, std::string& texto, char const* versao_url, char const* campo,
                    core::result::stack& stack)
{
    std::size_t const antes = stack.size();
    texto = core::make_string(valor, stack);
    if (stack.size() != antes) {
        core::result::chain<processo_gerar_qrcode_result_category, 8>(stack, versao_url, campo);
        return false;
    }
    return true;
}

// Whether every character of a text is an ASCII digit (true for none).
bool so_digitos(std::string const& texto);

// Whether a text can stand in a CDATA section and be read back the same:
// UTF-8, no control character (a carriage return comes back as a line feed,
// a NUL or an escape does not load at all), no character that XML excludes,
// and no "]]>", which would end the section.
bool cabe_em_cdata(std::string const& texto);

// The QR version as code 8 names it ("1.00", "2.00"); null for no version.
char const* texto_da_versao(versao_qrcode versao);

// Pushes code 8 on the stack, naming the version and the field, and gives
// false: for a value of the document or of the caller that the QR code or
// the supplement cannot carry.
bool recusar_campo(char const* versao_url, char const* campo, core::result::stack& stack);

// The consultation page and the urlChave go into CDATA sections as they are;
// a text that cannot, or for the urlChave no text at all (the layout requires
// it beside the QR code), is refused with code 8 and the field "url_qrcode"
// or "url_chave". The version must be a known one.
bool verificar_pagina(informacoes_adicionais const& informacoes, core::result::stack& stack);
bool verificar_url_chave(informacoes_adicionais const& informacoes, core::result::stack& stack);

// vNF and vICMS as the QR code carries them: 0, or up to 13 digits without
// zeros in front, with 2 places or none; as the document's own amounts are.
bool valor_do_qrcode(std::string const& valor);

// The hexadecimal of the digest of infNFe (Base64 of a SHA-1 value, so 56
// digits). Another length replaces the stack with code 7 and gives false.
bool digest_hexadecimal(std::string const& digest, std::string& hexadecimal_digest, core::result::stack& stack);

// The CSC must not be empty: else the stack is replaced with code 2.
bool verificar_csc(std::string const& csc, core::result::stack& stack);

// The hash that closes a QR string: SHA-1 of the string so far directly
// followed by the CSC, in upper-case hexadecimal. The CSC is fed to the hash
// after the string and never joined to it. A hash that is not of 40 digits
// (the digest could not be computed) replaces the stack with code 6 and gives
// false.
bool hash_qrcode(std::string const& texto, std::string const& csc, std::string& hash, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::detail

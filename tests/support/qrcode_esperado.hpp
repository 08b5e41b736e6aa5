#pragma once

#include <support/nfce_texto.hpp>

#include <optional>
#include <string>

namespace velk::test {

// The QR strings of an NFC-e worked out by the published formula, apart from
// the library: hexadecimal written here, SHA-1 taken straight from OpenSSL.
struct qrcode_entrada {
    std::string chave;  // 44 digits
    int tp_amb;         // 1 or 2
    std::optional<std::string> destinatario;
    std::string dh_emi;  // as the tag dhEmi holds it
    std::string vnf;
    std::string vicms;
    bool contingencia_offline;  // emission digit 9 in the key
    std::string digest;         // Base64 DigestValue of infNFe
};

// What the formula needs of a test NFC-e, with the digest of its infNFe.
qrcode_entrada entrada_qrcode(nfce_campos const& campos, nfce_teste const& nfce, std::string const& digest);

// Version 1.00: chNFe=...&cHashQRCode=..., the token as given.
std::string qrcode_esperado_100(qrcode_entrada const& entrada, std::string const& id_token, std::string const& csc);

// Version 2.00: p=...|HASH; id_token as it must be written (leading zeros
// already dropped by the caller of this function).
std::string qrcode_esperado_200(qrcode_entrada const& entrada, std::string const& id_token, std::string const& csc);

// Lower-case hexadecimal of the bytes of a text.
std::string hex_minusculo(std::string const& texto);

// SHA-1 of a text in upper-case hexadecimal.
std::string sha1_maiusculo(std::string const& texto);

}  // namespace velk::test

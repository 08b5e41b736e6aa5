#include <support/qrcode_esperado.hpp>

#include <openssl/evp.h>

#include <cstdio>
#include <stdexcept>

namespace velk::test {

std::string hex_minusculo(std::string const& texto)
{
    std::string hex;
    char par[3];
    for (unsigned char const c : texto) {
        std::snprintf(par, sizeof par, "%02x", c);
        hex += par;
    }
    return hex;
}

std::string sha1_maiusculo(std::string const& texto)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int tamanho = 0;
    if (EVP_Digest(texto.data(), texto.size(), digest, &tamanho, EVP_sha1(), nullptr) != 1) {
        throw std::runtime_error("OpenSSL could not take SHA-1");
    }
    std::string hex;
    char par[3];
    for (unsigned int i = 0; i < tamanho; ++i) {
        std::snprintf(par, sizeof par, "%02X", digest[i]);
        hex += par;
    }
    return hex;
}

qrcode_entrada entrada_qrcode(nfce_campos const& campos, nfce_teste const& nfce, std::string const& digest)
{
    std::optional<std::string> destinatario;
    if (campos.destinatario.has_value()) {
        destinatario = campos.destinatario->second;
    }
    return {nfce.chave, campos.tp_amb, destinatario, campos.dh_emi, campos.vnf, campos.vicms,
            campos.contingencia_offline, digest};
}

std::string qrcode_esperado_100(qrcode_entrada const& e, std::string const& id_token, std::string const& csc)
{
    std::string texto = "chNFe=" + e.chave + "&nVersao=100&tpAmb=" + std::to_string(e.tp_amb);
    if (e.destinatario.has_value()) {
        texto += "&cDest=" + *e.destinatario;
    }
    texto += "&dhEmi=" + hex_minusculo(e.dh_emi) + "&vNF=" + e.vnf + "&vICMS=" + e.vicms +
             "&digVal=" + hex_minusculo(e.digest) + "&cIdToken=" + id_token;
    return texto + "&cHashQRCode=" + sha1_maiusculo(texto + csc);
}

std::string qrcode_esperado_200(qrcode_entrada const& e, std::string const& id_token, std::string const& csc)
{
    std::string texto = e.chave + "|2|" + std::to_string(e.tp_amb);
    if (e.contingencia_offline) {
        texto += "|" + e.dh_emi.substr(8, 2) + "|" + e.vnf + "|" + hex_minusculo(e.digest);
    }
    texto += "|" + id_token;
    return "p=" + texto + "|" + sha1_maiusculo(texto + csc);
}

}  // namespace velk::test

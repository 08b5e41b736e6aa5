#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/byte_array.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>

#include <cctype>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

constexpr std::size_t digest_hexadecimal_length = 56;  // 28 Base64 characters
constexpr std::size_t hash_hexadecimal_length = 40;    // 20 bytes of SHA-1

}  // namespace

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
    hash = core::binary_encoder::encode(core::binary_encoding::hexadecimal, sha1.finish(local));
    if (hash.size() != hash_hexadecimal_length) {
        core::result::fresh<processo_gerar_qrcode_result_category::hash_invalido>(stack, hash);
        return false;
    }
    for (char& digit : hash) {
        digit = static_cast<char>(std::toupper(static_cast<unsigned char>(digit)));
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

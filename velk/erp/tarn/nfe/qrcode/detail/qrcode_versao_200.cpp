#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_200.hpp>

#include <velk/core/fatal.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>

#include <algorithm>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

constexpr char versao_url[] = "2.00";
constexpr std::size_t id_token_max_length = 6;
// Where the day of the month stands in the text of dhEmi (AAAA-MM-DD...).
constexpr std::size_t posicao_dia = 8;
// Room for the key and every field after it, the offline ones included.
constexpr std::size_t tamanho_reservado = 160;

}  // namespace

std::string sem_zeros_a_esquerda(std::string const& id_token)
{
    std::size_t const primeiro = id_token.find_first_not_of('0');
    return primeiro == std::string::npos ? id_token : id_token.substr(primeiro);
}

std::string gerar_qrcode_versao_200(sefaz_data::requisicao::documento_fiscal const& documento,
                                    std::string const& digest, std::string const& id_token, std::string const& csc,
                                    core::result::stack& stack)
{
    chave_acesso const chave_documento = documento.get_chave_acesso();
    // The address grows in one text from the key on, without a text apart
    // for each field.
    std::string qrcode;
    if (!texto_do_campo(chave_documento, qrcode, versao_url, "chave_acesso", stack)) {
        return {};
    }
    qrcode.reserve(tamanho_reservado);
    qrcode += "|2";

    switch (get_codigo_ambiente(documento.get_ambiente())) {
    case 1: qrcode += "|1"; break;
    case 2: qrcode += "|2"; break;
    default:
        core::fatal_exit("BUG FOUND! O codigo do ambiente não foi devidamente convertido ao gerar o qrcode versao 200");
    }

    // Offline, the consumer checks the note against what the QR code itself
    // says, as the authority has not seen it yet.
    if (chave_documento.get_tipo_emissao() == fiscal::tipo_emissao::contingencia_offline_nfce) {
        std::string emissao;
        if (!texto_do_campo(documento.get_data_hora_emissao(), emissao, versao_url, "dh_emissao", stack)) {
            return {};
        }
        qrcode += '|';
        qrcode.append(emissao, posicao_dia, 2);
        std::string const valor_total = documento.get_valor_total();
        if (!valor_do_qrcode(valor_total)) {
            recusar_campo(versao_url, "valor_total", stack);
            return {};
        }
        qrcode += '|';
        qrcode += valor_total;
        std::string digest_hex;
        if (!digest_hexadecimal(digest, digest_hex, stack)) {
            return {};
        }
        qrcode += '|';
        qrcode += digest_hex;
    }

    // The number of the CSC without zeros in front: 1 to 6 digits, or the
    // single digit 0, as the layout's pattern for the QR code reads it.
    bool const numero = id_token == "0" || (!id_token.empty() && id_token.front() != '0' && so_digitos(id_token));
    if (!numero || id_token.size() > id_token_max_length) {
        core::result::fresh<processo_gerar_qrcode_result_category::id_token_invalido>(stack, id_token);
        return {};
    }
    qrcode += '|';
    qrcode += id_token;
    if (!verificar_csc(csc, stack)) {
        return {};
    }

    std::string hash;
    if (!hash_qrcode(qrcode, csc, hash, stack)) {
        return {};
    }
    std::string endereco;
    endereco.reserve(qrcode.size() + hash.size() + 3);
    endereco += "p=";
    endereco += qrcode;
    endereco += '|';
    endereco += hash;
    return endereco;
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

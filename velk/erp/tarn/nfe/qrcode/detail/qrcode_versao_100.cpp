#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_100.hpp>

#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>

#include <algorithm>
#include <string_view>
#include <utility>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

constexpr char versao_url[] = "1.00";
constexpr std::size_t id_token_length = 6;

// The consumer's identifier as the QR code admits it: empty, or 5 to 20
// letters, digits and the signs . : + , - / ( ). A CPF or CNPJ always is; a
// foreigner's identifier may not be.
bool identificador_do_qrcode(std::string const& identificador)
{
    auto const admitido = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               std::string_view(".:+,-/()").find(c) != std::string_view::npos;
    };
    return identificador.empty() || (identificador.size() >= 5 && identificador.size() <= 20 &&
                                     std::all_of(identificador.begin(), identificador.end(), admitido));
}

}  // namespace

std::string gerar_qrcode_versao_100(sefaz_data::requisicao::documento_fiscal const& documento,
                                    std::string const& digest, std::string const& id_token, std::string const& csc,
                                    core::result::stack& stack)
{
    std::string chave;
    if (!texto_do_campo(documento.get_chave_acesso(), chave, versao_url, "chave_acesso", stack)) {
        return {};
    }
    std::string qrcode = "chNFe=" + chave + "&nVersao=100";

    std::string codigo_ambiente;
    if (!texto_do_campo(get_codigo_ambiente(documento.get_ambiente()), codigo_ambiente, versao_url,
                        "codigo_ambiente", stack)) {
        return {};
    }
    qrcode += "&tpAmb=" + codigo_ambiente;

    // The CNPJ, CPF or foreign identifier of the consumer, when there is one.
    core::optional<std::string> destinatario = documento.get_identificador_destinatario();
    if (destinatario.has_value()) {
        if (!identificador_do_qrcode(*destinatario)) {
            recusar_campo(versao_url, "identificador_destinatario", stack);
            return {};
        }
        qrcode += "&cDest=" + std::move(destinatario).value();
    }

    std::string emissao;
    if (!texto_do_campo(documento.get_data_hora_emissao(), emissao, versao_url, "dh_emissao", stack)) {
        return {};
    }
    qrcode += "&dhEmi=" + hexadecimal(emissao);
    if (!valor_do_qrcode(documento.get_valor_total())) {
        recusar_campo(versao_url, "valor_total", stack);
        return {};
    }
    if (!valor_do_qrcode(documento.get_valor_icms())) {
        recusar_campo(versao_url, "valor_icms", stack);
        return {};
    }
    qrcode += "&vNF=" + documento.get_valor_total();
    qrcode += "&vICMS=" + documento.get_valor_icms();

    std::string digest_hex;
    if (!digest_hexadecimal(digest, digest_hex, stack)) {
        return {};
    }
    qrcode += "&digVal=" + digest_hex;

    // The token is the number of the CSC in six digits.
    if (id_token.size() != id_token_length ||
        !so_digitos(id_token)) {
        core::result::fresh<processo_gerar_qrcode_result_category, 3>(stack, id_token);
        return {};
    }
    if (!verificar_csc(csc, stack)) {
        return {};
    }
    qrcode += "&cIdToken=" + id_token;

    std::string hash;
    if (!hash_qrcode(qrcode, csc, hash, stack)) {
        return {};
    }
    return qrcode + "&cHashQRCode=" + hash;
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

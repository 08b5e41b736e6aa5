#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_100.hpp>

#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

constexpr char versao_url[] = "1.00";
constexpr std::size_t id_token_length = 6;

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
        qrcode += "&cDest=" + std::move(destinatario).value();
    }

    std::string emissao;
    if (!texto_do_campo(documento.get_data_hora_emissao(), emissao, versao_url, "dh_emissao", stack)) {
        return {};
    }
    qrcode += "&dhEmi=" + hexadecimal(emissao);
    qrcode += "&vNF=" + documento.get_valor_total();
    qrcode += "&vICMS=" + documento.get_valor_icms();

    std::string digest_hex;
    if (!digest_hexadecimal(digest, digest_hex, stack)) {
        return {};
    }
    qrcode += "&digVal=" + digest_hex;

    // Only the length of the token is checked: its digits are the state's
    // business.
    if (id_token.size() != id_token_length) {
        core::result::fresh<processo_gerar_qrcode_result_category::id_token_invalido>(stack, id_token);
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

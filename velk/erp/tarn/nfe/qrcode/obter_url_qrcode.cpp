#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_100.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_200.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace detail {

std::string url_qrcode(informacoes_adicionais const& informacoes,
                       sefaz_data::requisicao::documento_fiscal const& documento, std::string const& id_token,
                       std::string const& csc, core::result::stack& stack)
{
    core::optional<std::string> existente = documento.get_qrcode_value();
    if (existente.has_value()) {
        return std::move(existente).value();
    }
    if (texto_da_versao(informacoes.get_versao_qrcode()) == nullptr) {
        core::result::fresh<processo_gerar_qrcode_result_category::versao_nao_suportada>(
            stack, static_cast<int>(informacoes.get_versao_qrcode()));
        return {};
    }
    // The page goes into the document with the QR string, in a CDATA section.
    if (!verificar_pagina(informacoes, stack)) {
        return {};
    }

    bool const versao_100 = informacoes.get_versao_qrcode() == versao_qrcode::versao_100;
    // The digest, a canonical form and a hash of the whole infNFe, is made
    // only for the QR codes that carry it: every one of version 1.00, and the
    // offline one of 2.00.
    bool const com_digest =
        versao_100 || documento.get_chave_acesso().get_tipo_emissao() == fiscal::tipo_emissao::contingencia_offline_nfce;
    std::string const digest = com_digest ? documento.get_digest_value() : std::string();
    std::string const qrcode =
        versao_100 ? gerar_qrcode_versao_100(documento, digest, id_token, csc, stack)
                   : gerar_qrcode_versao_200(documento, digest, sem_zeros_a_esquerda(id_token), csc, stack);
    return informacoes.get_url_qrcode() + qrcode;
}

}  // namespace detail

std::string obter_url_qrcode(informacoes_adicionais const& informacoes, xml::document const& documento,
                             std::string const& id_token, std::string const& csc, core::result::stack& stack)
{
    using sefaz_data::requisicao::documento_fiscal;

    documento_fiscal const fiscal = documento_fiscal::from_xml(documento, stack);
    if (stack.has_failed()) {
        return {};
    }
    return detail::url_qrcode(informacoes, fiscal, id_token, csc, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe

#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>

#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_100.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/qrcode_versao_200.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe {

std::string obter_url_qrcode(informacoes_adicionais const& informacoes, xml::document const& documento,
                             std::string const& id_token, std::string const& csc, core::result::stack& stack)
{
    using sefaz_data::requisicao::documento_fiscal;

    documento_fiscal const fiscal = documento_fiscal::from_xml(documento, stack);
    if (stack.has_failed()) {
        return {};
    }
    core::optional<std::string> existente = fiscal.get_qrcode_value();
    if (existente.has_value()) {
        return std::move(existente).value();
    }
    // A missing element is what a document without a QR code may report on
    // its way here: that one is forgiven, any other failure stops.
    if (stack.has_failed() && stack.get_value() == 1 &&
        stack.get_category() == sefaz_data::result_category::instance()) {
        stack.reset();
    }
    if (stack.has_failed()) {
        return {};
    }

    if (detail::texto_da_versao(informacoes.get_versao_qrcode()) == nullptr) {
        core::result::fresh<processo_gerar_qrcode_result_category, 4>(
            stack, static_cast<int>(informacoes.get_versao_qrcode()));
        return {};
    }
    // The page goes into the document with the QR string, in a CDATA section.
    if (!detail::verificar_pagina(informacoes, stack)) {
        return {};
    }

    std::string const digest = fiscal.get_digest_value();
    std::string const qrcode =
        informacoes.get_versao_qrcode() == versao_qrcode::versao_100
            ? detail::gerar_qrcode_versao_100(fiscal, digest, id_token, csc, stack)
            : detail::gerar_qrcode_versao_200(fiscal, digest, detail::sem_zeros_a_esquerda(id_token), csc, stack);
    return informacoes.get_url_qrcode() + qrcode;
}

}  // namespace velk::erp::inline v4::tarn::nfe

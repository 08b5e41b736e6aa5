// The supplement of an NFC-e (infNFeSupl): its QR code and its urlChave.
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/suplemento.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/url_qrcode.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/documento_fiscal_dados.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

void documento_fiscal::gerar_qrcode(informacoes_adicionais const& informacoes, std::string const& id_token,
                                    std::string const& csc, core::result::stack& stack)
{
    dados& data = *dados_;
    xml::element& suplemento = nfe::detail::suplemento_de(data.xml);

    // The address is made from the values this object read from its tree,
    // the reading any document handed in goes through.
    std::string url = nfe::detail::url_qrcode(informacoes, *this, id_token, csc, stack);
    // The layout has no QR code without its urlChave: both are written.
    if (stack.has_failed() || !nfe::detail::verificar_url_chave(informacoes, stack)) {
        return;
    }
    nfe::detail::por_qrcode(suplemento, url);
    data.campos.qrcode_value = std::move(url);
    data.campos.url_chave = informacoes.get_url_chave();
    nfe::detail::por_url_chave(suplemento, data.campos.url_chave);
}

void documento_fiscal::adicionar_url_chave(informacoes_adicionais const& informacoes)
{
    dados& data = *dados_;
    data.campos.url_chave = informacoes.get_url_chave();
    nfe::detail::por_url_chave(nfe::detail::suplemento_de(data.xml), data.campos.url_chave);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao

#include <velk/erp/tarn/nfe/qrcode/adicionar_url_qrcode.hpp>

#include <velk/erp/tarn/nfe/qrcode/detail/partes_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/detail/suplemento.hpp>
#include <velk/erp/tarn/nfe/qrcode/obter_url_qrcode.hpp>

namespace velk::erp::inline v4::tarn::nfe {

bool adicionar_url_qrcode(informacoes_adicionais const& informacoes, xml::document& documento,
                          std::string const& id_token, std::string const& csc, core::result::stack& stack)
{
    std::string const url = obter_url_qrcode(informacoes, documento, id_token, csc, stack);
    if (stack.has_failed()) {
        return false;
    }
    xml::element* raiz = documento.get_root_element();
    if (raiz == nullptr || !detail::verificar_url_chave(informacoes, stack)) {
        return false;
    }
    xml::element& suplemento = detail::suplemento_de(*raiz);
    detail::por_qrcode(suplemento, url);
    detail::por_url_chave(suplemento, informacoes.get_url_chave());
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe

// Payments: each one with its means and card transaction, then the change.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string_view tag, grupo::pag const& pag, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever(e, "detPag", pag.detPag, stack) && d(e, "vTroco", pag.vTroco, stack, 2);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::detPag const& det_pag, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "indPag", det_pag.indPag, stack, 0) && u(e, "tPag", det_pag.tPag, stack, 2) &&
                         txt(e, "xPag", det_pag.xPag, stack) && d(e, "vPag", det_pag.vPag, stack, 2) &&
                         escrever(e, "card", det_pag.card, stack);
    return fechar(pai, escrito);
}

// The processor's CNPJ is written as the text the model holds.
bool escrever(xml::element& pai, std::string_view tag, grupo::card const& card, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = u(e, "tpIntegra", card.tpIntegra, stack, 1) && txt(e, "CNPJ", card.CNPJ, stack) &&
                         u(e, "tBand", card.tBand, stack, 2) && txt(e, "cAut", card.cAut, stack);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

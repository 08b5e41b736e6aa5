// Payments: each one with its means and card transaction, then the change.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string const& tag, grupo::pag const& pag, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = escrever(e, "detPag", pag.detPag, stack) && d(e, "vTroco", pag.vTroco, stack, 2);
    return anexar(pai, std::move(e), escrito);
}

bool escrever(xml::element& pai, std::string const& tag, grupo::detPag const& det_pag, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = u(e, "indPag", det_pag.indPag, stack, 0) && u(e, "tPag", det_pag.tPag, stack, 2) &&
                         txt(e, "xPag", det_pag.xPag, stack) && d(e, "vPag", det_pag.vPag, stack, 2) &&
                         escrever(e, "card", det_pag.card, stack);
    return anexar(pai, std::move(e), escrito);
}

// The processor's CNPJ is written as the text the model holds.
bool escrever(xml::element& pai, std::string const& tag, grupo::card const& card, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = u(e, "tpIntegra", card.tpIntegra, stack, 1) && txt(e, "CNPJ", card.CNPJ, stack) &&
                         u(e, "tBand", card.tBand, stack, 2) && txt(e, "cAut", card.cAut, stack);
    return anexar(pai, std::move(e), escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

// Payments, for now: tPag and vPag of each payment, and vTroco. indPag, xPag
// and card come with the closing groups, which replace this file.

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
    bool const escrito = u(e, "tPag", det_pag.tPag, stack, 2) && d(e, "vPag", det_pag.vPag, stack, 2);
    return anexar(pai, std::move(e), escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

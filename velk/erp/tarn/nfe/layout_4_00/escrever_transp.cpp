// Transport, for now: modFrete only. The carrier, vehicles and volumes come
// with the closing groups, which replace this file.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string const& tag, grupo::transp const& transp, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = u(e, "modFrete", transp.modFrete, stack, 0);
    return anexar(pai, std::move(e), escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

// The taxes of an item, for now: vTotTrib only. The ICMS, ISSQN, IPI, II, PIS,
// COFINS and ICMSUFDest groups replace this file with their writer.

#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool escrever(xml::element& pai, std::string const& tag, grupo::imposto const& imposto, core::result::stack& stack)
{
    xml::element e(tag);
    bool const escrito = d(e, "vTotTrib", imposto.vTotTrib, stack, 2);
    return anexar(pai, std::move(e), escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

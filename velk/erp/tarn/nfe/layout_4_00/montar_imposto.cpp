// The taxes of an item, for now: the approximate total of taxes only. The
// ICMS, ISSQN, IPI, II, PIS, COFINS and ICMSUFDest groups replace this file
// with their builder.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool montar_imposto(fiscal::produto const& produto, grupo::imposto& imposto, core::result::stack&)
{
    imposto.vTotTrib = produto.get_valor_total_tributos();
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

// Reads the note into the tree of layout 4.00, checking every value it
// converts. Nothing of tax is computed: totals, key and check digits come from
// the note; only Id, cDV, tpImp, procEmi, verProc, nItem and the codes of the
// enumerations are derived here.
//
// The first value refused ends the building: the stack then holds its
// processar_nota_result_category code on top (above the converter's and the
// document reader's items where a text was read) and a default tree is
// returned.
layout_4_00 montar_layout_4_00(fiscal::nota_fiscal const& nota, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/layout_3_10.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

// Reads the note into the tree of layout 3.10. The reading is that of 4.00,
// with its refusals: a value the 4.00 builder refuses is one the 3.10 schema
// refuses as well (a code outside its tables, a key that is no key, a party
// without its document). What 3.10 never reads from the model (the
// intermediary, the technical manager, medicines, firearms, returned taxes,
// referenced processes, the emitter's IM and CNAE, the credit of ICMSSN900,
// the withheld taxes) is left out first, so that it can neither be written
// nor refused. Then the codes of 3.10: indPag of the note, indPres without
// "outside the establishment" (5 is in person, 1), the means of payment and
// card brands the layout knows (the others are 99, "other"), IPI's clEnq and
// the natural-gas share of a GLP mix. A refusal leaves its
// processar_nota_result_category code on top of the stack and a default tree.
layout_3_10 montar_layout_3_10(fiscal::nota_fiscal const& nota, core::result::stack& stack);

// The codes of a tree built for 4.00 that 3.10 writes otherwise, whatever the
// tree was built from: the means of payment and card brands 3.10 does not
// know become 99, "other"; own transport (modFrete 3 and 4, later than 3.10)
// is freight of the sender (0) or of the recipient (1); the vehicles whose
// plate 3.10 cannot hold (the Mercosul plate) are left out. ICMSST holds only
// CST 41 in 3.10: another is refused with cst_icms_invalido and the CST, and
// false is returned.
bool codigos_do_3_10(layout_3_10& arvore, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>
#include <velk/xml/document.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

// The unsigned document of the tree: NFe, in the namespace of the NF-e
// schemas, holding infNFe with its attributes Id and versao (in that order)
// and the groups in the order of the tree. After a failure the stack holds the
// reason and an empty document is returned.
xml::document escrever_layout_4_00(layout_4_00 const& arvore, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

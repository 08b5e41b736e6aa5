#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/layout_3_10.hpp>
#include <velk/xml/document.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

// Writes the tree with the writers of 4.00, then gives the document the form
// of 3.10 (adaptar_ao_layout_3_10). It decides nothing. After a failure of the
// XML library, a default document.
xml::document escrever_layout_3_10(layout_3_10 const& arvore, core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

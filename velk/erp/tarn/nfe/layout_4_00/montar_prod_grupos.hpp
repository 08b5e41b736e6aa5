#pragma once

// The sub-groups of prod: import, export, batches and the group of a special
// kind of goods.

#include <velk/core/optional.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/produto.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/DI.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/detExport.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/tipo_produto.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/rastro.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool montar_DI(fiscal::declaracao_importacao const& declaracao, grupo::DI& di, core::result::stack& stack);

// exportInd is written whole or left out: a partly filled one is refused.
bool montar_detExport(fiscal::grupo_exportacao const& exportacao, grupo::detExport& detExport,
                      core::result::stack& stack);

grupo::rastro montar_rastro(fiscal::informacoes_rastreabilidade const& lote);

// Medicines, then firearms, then fuel: a later kind replaces an earlier one.
bool montar_especifico(fiscal::produto const& produto, core::optional<grupo::tipo_produto>& especifico,
                       core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

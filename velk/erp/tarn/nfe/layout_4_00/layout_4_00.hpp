#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/cana.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/cobr.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/compra.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/dest.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/det.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/emit.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/exporta.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/ide.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/infAdic.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/infIntermed.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/infRespTec.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/local.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/pag.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/total.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/transp.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

// An NF-e or NFC-e of layout 4.00 as plain values, between the builder and the
// writer. Every member is named after the tag it writes and stands in the
// order of the XML: an optional member is written when it holds a value, a
// list once per entry, and a required member always. The groups' records are
// in namespace grupo.
//
// The tree is filled from the fiscal model (montar_layout_4_00) or from other
// sources, and written by escrever_layout_4_00, which decides nothing.
struct layout_4_00 {
    // Attributes of infNFe.
    std::string versao;
    std::string Id;

    grupo::ide ide;
    grupo::emit emit;
    core::optional<grupo::dest> dest;
    core::optional<grupo::retirada> retirada;
    core::optional<grupo::entrega> entrega;
    std::vector<grupo::cpf_cnpj_ou_estrangeiro> autXML;
    std::vector<grupo::det> det;
    grupo::total total;
    grupo::transp transp;
    core::optional<grupo::cobr> cobr;
    grupo::pag pag;
    core::optional<grupo::infIntermed> infIntermed;
    core::optional<grupo::infAdic> infAdic;
    core::optional<grupo::exporta> exporta;
    core::optional<grupo::compra> compra;
    core::optional<grupo::cana> cana;
    core::optional<grupo::infRespTec> infRespTec;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

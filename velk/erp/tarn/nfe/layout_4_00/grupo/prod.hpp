#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/DI.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/detExport.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/tipo_produto.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/rastro.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The goods of an item.
struct prod {
    std::string cProd;
    std::string cEAN;
    std::string xProd;
    std::uint32_t NCM = 0;
    std::vector<std::string> NVE;
    core::optional<std::uint32_t> CEST;
    core::optional<std::string> indEscala;
    // The manufacturer's CNPJ; the layout admits it only beside a CEST.
    core::optional<std::uint64_t> CNPJFab;
    core::optional<std::string> cBenef;
    core::optional<std::uint16_t> EXTIPI;
    std::uint16_t CFOP = 0;
    std::string uCom;
    core::decimal qCom;
    core::decimal vUnCom;
    core::decimal vProd;
    std::string cEANTrib;
    std::string uTrib;
    core::decimal qTrib;
    core::decimal vUnTrib;
    core::optional<core::decimal> vFrete;
    core::optional<core::decimal> vSeg;
    core::optional<core::decimal> vDesc;
    core::optional<core::decimal> vOutro;
    std::uint16_t indTot = 0;
    std::vector<grupo::DI> DI;
    std::vector<grupo::detExport> detExport;
    core::optional<std::string> xPed;
    core::optional<std::uint32_t> nItemPed;
    core::optional<std::string> nFCI;
    std::vector<grupo::rastro> rastro;
    core::optional<grupo::tipo_produto> especifico;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

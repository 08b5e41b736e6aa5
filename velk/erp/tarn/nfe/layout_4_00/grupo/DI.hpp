#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/adi.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// An import declaration of the item.
struct DI {
    std::string nDI;
    core::date dDI;
    std::string xLocDesemb;
    std::string UFDesemb;
    core::date dDesemb;
    std::uint16_t tpViaTransp = 0;
    core::optional<core::decimal> vAFRMM;
    std::uint16_t tpIntermedio = 0;
    core::optional<std::uint64_t> CNPJ;
    core::optional<std::string> UFTerceiro;
    std::string cExportador;
    std::vector<grupo::adi> adi;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

#pragma once

#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A referenced note of a rural producer.
struct refNFP {
    std::uint16_t cUF = 0;
    std::uint16_t AAMM = 0;
    grupo::cnpj_ou_cpf documento;
    std::string IE;
    std::uint16_t mod = 0;
    std::uint16_t serie = 0;
    std::uint32_t nNF = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

#pragma once

#include <velk/core/decimal.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A new vehicle sold in the item.
struct veicProd {
    std::uint16_t tpOp = 0;
    std::string chassi;
    std::string cCor;
    std::string xCor;
    std::string pot;
    std::string cilin;
    core::decimal pesoL;
    core::decimal pesoB;
    std::string nSerie;
    std::string tpComb;
    std::string nMotor;
    core::decimal CMT;
    std::string dist;
    std::uint16_t anoMod = 0;
    std::uint16_t anoFab = 0;
    std::string tpPint;
    std::uint16_t tpVeic = 0;
    std::uint16_t espVeic = 0;
    std::string VIN;
    std::uint16_t condVeic = 0;
    std::uint32_t cMod = 0;
    std::uint16_t cCorDENATRAN = 0;
    std::uint16_t lota = 0;
    std::uint16_t tpRest = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

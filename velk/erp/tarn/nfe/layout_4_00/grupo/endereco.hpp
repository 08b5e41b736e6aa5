#pragma once

#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The address of the issuer (enderEmit, where CEP is required) and of the recipient (enderDest, where it
// is optional).
template <class Cep>
struct endereco {
    std::string xLgr;
    std::string nro;
    core::optional<std::string> xCpl;
    std::string xBairro;
    std::uint32_t cMun = 0;
    std::string xMun;
    std::string UF;
    Cep CEP{};
    core::optional<std::uint16_t> cPais;
    core::optional<std::string> xPais;
    core::optional<std::uint64_t> fone;
};

using enderEmit = endereco<std::uint32_t>;
using enderDest = endereco<core::optional<std::uint32_t>>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

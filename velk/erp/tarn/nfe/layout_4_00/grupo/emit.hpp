#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/endereco.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The issuer.
struct emit {
    grupo::cnpj_ou_cpf documento;
    std::string xNome;
    core::optional<std::string> xFant;
    grupo::enderEmit enderEmit;
    std::string IE;
    core::optional<std::string> IEST;
    core::optional<std::string> IM;
    core::optional<std::uint32_t> CNAE;
    std::uint16_t CRT = 0;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/endereco.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The recipient.
struct dest {
    grupo::cpf_cnpj_ou_estrangeiro documento;
    core::optional<std::string> xNome;
    core::optional<grupo::enderDest> enderDest;
    std::uint16_t indIEDest = 0;
    core::optional<std::string> IE;
    core::optional<std::string> ISUF;
    core::optional<std::string> IM;
    core::optional<std::string> email;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

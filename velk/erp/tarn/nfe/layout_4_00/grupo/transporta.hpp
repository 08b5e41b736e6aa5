#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The carrier. Its address is one line made of the street, the town and the state.
struct transporta {
    core::optional<grupo::cnpj_ou_cpf> documento;
    core::optional<std::string> xNome;
    core::optional<std::string> IE;
    core::optional<std::string> xEnder;
    core::optional<std::string> xMun;
    core::optional<std::string> UF;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

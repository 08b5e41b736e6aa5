#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/CSRT.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The technical manager of the issuing program.
struct infRespTec {
    std::string CNPJ;
    std::string xContato;
    std::string email;
    std::string fone;
    core::optional<grupo::CSRT> CSRT;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

#pragma once

#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Purchase information.
struct compra {
    core::optional<std::string> xNEmp;
    core::optional<std::string> xPed;
    core::optional<std::string> xCont;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

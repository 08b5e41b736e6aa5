#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A foreigner's document, as given.
struct idEstrangeiro {
    std::string valor;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

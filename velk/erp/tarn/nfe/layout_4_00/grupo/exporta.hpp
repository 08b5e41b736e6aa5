#pragma once

#include <velk/core/optional.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Export of the goods: where they leave the country.
struct exporta {
    std::string UFSaidaPais;
    std::string xLocExporta;
    core::optional<std::string> xLocDespacho;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

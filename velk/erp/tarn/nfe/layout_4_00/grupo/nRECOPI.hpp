#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The RECOPI number of an item of immune paper.
struct nRECOPI {
    std::string valor;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

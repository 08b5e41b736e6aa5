#pragma once

#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A free note for the taxpayer (obsCont) or for the tax authority (obsFisco): the field's name
// and its text, both as child elements.
struct observacao {
    std::string xCampo;
    std::string xTexto;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

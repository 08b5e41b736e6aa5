#pragma once

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The code of the technical manager's security: its id and the hash made by whoever fills the note.
struct CSRT {
    std::uint16_t idCSRT = 0;
    std::string hashCSRT;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

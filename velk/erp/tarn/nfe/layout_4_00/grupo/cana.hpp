#pragma once


namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Sugar-cane supply.
// Its tags come with the closing groups; until then the record is empty and writes nothing.
struct cana {
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

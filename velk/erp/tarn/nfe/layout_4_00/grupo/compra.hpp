#pragma once


namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Purchase information.
// Its tags come with the closing groups; until then the record is empty and writes nothing.
struct compra {
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

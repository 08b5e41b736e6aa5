#pragma once


namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The bill: invoice and instalments.
// Its tags come with the closing groups; until then the record is empty and writes nothing.
struct cobr {
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

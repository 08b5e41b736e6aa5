#pragma once


namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The technical manager of the issuing program.
// Its tags come with the closing groups; until then the record is empty and writes nothing.
struct infRespTec {
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

#pragma once

#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

// The older layout differs from 4.00 in a few dozen tags, none in its frame,
// so both are one tree and one set of writers: the members that exist in 3.10
// only are optionals that the 4.00 builder never fills (ide's indPag, IPI's
// clEnq, med's batch, comb's pMixGN), and what exists in 4.00 only is taken
// out of the written document by the table of diferencas_layout.hpp, the one
// place where the two layouts are told apart tag by tag.
using layout_3_10 = layout_4_00::layout_4_00;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

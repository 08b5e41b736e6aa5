#pragma once

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

// The schema namespace of every NF-e message, as the national fiscal portal
// publishes it with the layouts.
inline constexpr char namespace_nfe[] = "http://www.portalfiscal.inf.br/nfe";

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

#pragma once

namespace velk::erp::inline v4::tarn {

// The version of this library, "4.0.0".
char const* get_versao_biblioteca();

}  // namespace velk::erp::inline v4::tarn

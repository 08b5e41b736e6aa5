#pragma once

#include <velk/core/export.hpp>

namespace velk::erp::inline v4::tarn {

// The version of this library, "4.0.0".
VELK_EXPORT char const* get_versao_biblioteca();

}  // namespace velk::erp::inline v4::tarn

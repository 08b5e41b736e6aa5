#pragma once

#include "option_table.hpp"

#include <velk/erp/tarn/modelo.hpp>

namespace velk::tools::tarn {

// --modelo: NF-e (55) or NFC-e (65), which may have different authorizers.
struct model_option {
    static option_row row() { return {"modelo", "MODELO", "55 (NF-e, padrão) ou 65 (NFC-e)"}; }
    static erp::tarn::modelo read(option_table const& options);
};

}  // namespace velk::tools::tarn

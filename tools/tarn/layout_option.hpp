#pragma once

#include "option_table.hpp"

#include <velk/erp/tarn/nfe/versao.hpp>

namespace velk::tools::tarn {

// --layout: the layout of the documents made from notes.
struct layout_option {
    static option_row row() { return {"layout", "VERSAO", "layout do documento: 4.00 (padrão) ou 3.10"}; }
    static erp::tarn::nfe::versao read(option_table const& options);
};

}  // namespace velk::tools::tarn

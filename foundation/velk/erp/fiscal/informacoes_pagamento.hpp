#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detalhes_pagamento.hpp>

#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The payments of the note.
class VELK_EXPORT informacoes_pagamento {
public:
    // detPag
    std::vector<detalhes_pagamento> get_detalhes_pagamento() const { return detalhes_pagamento_; }
    informacoes_pagamento& set_detalhes_pagamento(std::vector<detalhes_pagamento> value)
    {
        detalhes_pagamento_ = std::move(value);
        return *this;
    }

    // vTroco
    core::optional<core::decimal> get_valor_total_troco() const { return valor_total_troco_; }
    informacoes_pagamento& set_valor_total_troco(core::optional<core::decimal> value)
    {
        valor_total_troco_ = std::move(value);
        return *this;
    }

private:
    std::vector<detalhes_pagamento> detalhes_pagamento_;
    core::optional<core::decimal> valor_total_troco_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

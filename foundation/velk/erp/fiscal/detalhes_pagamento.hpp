#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/indicador_forma_pagamento.hpp>
#include <velk/erp/fiscal/meio_pagamento.hpp>
#include <velk/erp/fiscal/transacao_tef.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// One payment of the note.
class VELK_EXPORT detalhes_pagamento {
public:
    // indPag
    core::optional<indicador_forma_pagamento> get_indicador_forma_pagamento() const
    {
        return indicador_forma_pagamento_;
    }
    detalhes_pagamento& set_indicador_forma_pagamento(core::optional<indicador_forma_pagamento> value)
    {
        indicador_forma_pagamento_ = std::move(value);
        return *this;
    }

    // tPag
    meio_pagamento get_meio_pagamento() const { return meio_pagamento_; }
    detalhes_pagamento& set_meio_pagamento(meio_pagamento value)
    {
        meio_pagamento_ = value;
        return *this;
    }

    // xPag
    core::optional<std::string> get_descricao_meio_pagamento() const { return descricao_meio_pagamento_; }
    detalhes_pagamento& set_descricao_meio_pagamento(core::optional<std::string> value)
    {
        descricao_meio_pagamento_ = std::move(value);
        return *this;
    }

    // vPag
    core::decimal get_valor_pagamento() const { return valor_pagamento_; }
    detalhes_pagamento& set_valor_pagamento(core::decimal value)
    {
        valor_pagamento_ = std::move(value);
        return *this;
    }

    // card
    core::optional<transacao_tef> get_transacao_tef() const { return transacao_tef_; }
    detalhes_pagamento& set_transacao_tef(core::optional<transacao_tef> value)
    {
        transacao_tef_ = std::move(value);
        return *this;
    }

private:
    core::optional<indicador_forma_pagamento> indicador_forma_pagamento_;
    meio_pagamento meio_pagamento_{};
    core::optional<std::string> descricao_meio_pagamento_;
    core::decimal valor_pagamento_;
    core::optional<transacao_tef> transacao_tef_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

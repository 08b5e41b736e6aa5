#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/bandeira_cartao.hpp>
#include <velk/erp/fiscal/tipo_integracao_pagamento.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The card transaction of a payment.
class VELK_EXPORT transacao_tef {
public:
    // tpIntegra
    core::optional<tipo_integracao_pagamento> get_tipo_integracao() const { return tipo_integracao_; }
    transacao_tef& set_tipo_integracao(core::optional<tipo_integracao_pagamento> value)
    {
        tipo_integracao_ = std::move(value);
        return *this;
    }

    // CNPJ of the card processor, as text
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    transacao_tef& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // tBand
    core::optional<bandeira_cartao> get_bandeira() const { return bandeira_; }
    transacao_tef& set_bandeira(core::optional<bandeira_cartao> value)
    {
        bandeira_ = std::move(value);
        return *this;
    }

    // cAut
    core::optional<std::string> get_numero_autorizacao() const { return numero_autorizacao_; }
    transacao_tef& set_numero_autorizacao(core::optional<std::string> value)
    {
        numero_autorizacao_ = std::move(value);
        return *this;
    }

private:
    core::optional<tipo_integracao_pagamento> tipo_integracao_;
    core::optional<std::string> cnpj_;
    core::optional<bandeira_cartao> bandeira_;
    core::optional<std::string> numero_autorizacao_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

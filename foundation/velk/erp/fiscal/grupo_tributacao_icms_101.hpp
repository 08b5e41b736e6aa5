#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/csosn.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional, taxed with credit allowed (group ICMSSN101).
class grupo_tributacao_icms_101 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_101& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CSOSN
    csosn get_csosn() const { return csosn_; }
    grupo_tributacao_icms_101& set_csosn(csosn value)
    {
        csosn_ = value;
        return *this;
    }

    // pCredSN
    core::optional<core::decimal> get_aliquota_de_credito_sn() const { return aliquota_de_credito_sn_; }
    grupo_tributacao_icms_101& set_aliquota_de_credito_sn(core::optional<core::decimal> value)
    {
        aliquota_de_credito_sn_ = std::move(value);
        return *this;
    }

    // vCredICMSSN
    core::optional<core::decimal> get_valor_de_credito_sn() const { return valor_de_credito_sn_; }
    grupo_tributacao_icms_101& set_valor_de_credito_sn(core::optional<core::decimal> value)
    {
        valor_de_credito_sn_ = std::move(value);
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    csosn csosn_{};
    core::optional<core::decimal> aliquota_de_credito_sn_;
    core::optional<core::decimal> valor_de_credito_sn_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Credit of the Simples Nacional in a group ICMSSN900.
class tributacao_credito_sn_icms_900 {
public:
    // pCredSN
    core::optional<core::decimal> get_aliquota_de_credito_sn() const { return aliquota_de_credito_sn_; }
    tributacao_credito_sn_icms_900& set_aliquota_de_credito_sn(core::optional<core::decimal> value)
    {
        aliquota_de_credito_sn_ = std::move(value);
        return *this;
    }

    // vCredICMSSN
    core::optional<core::decimal> get_valor_de_credito_sn() const { return valor_de_credito_sn_; }
    tributacao_credito_sn_icms_900& set_valor_de_credito_sn(core::optional<core::decimal> value)
    {
        valor_de_credito_sn_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> aliquota_de_credito_sn_;
    core::optional<core::decimal> valor_de_credito_sn_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

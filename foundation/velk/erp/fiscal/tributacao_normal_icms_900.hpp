#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Own ICMS of a group ICMSSN900.
class tributacao_normal_icms_900 {
public:
    // modBC
    modalidade_bc_icms get_modalidade_bc_icms() const { return modalidade_bc_icms_; }
    tributacao_normal_icms_900& set_modalidade_bc_icms(modalidade_bc_icms value)
    {
        modalidade_bc_icms_ = value;
        return *this;
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_icms() const { return valor_bc_icms_; }
    tributacao_normal_icms_900& set_valor_bc_icms(core::optional<core::decimal> value)
    {
        valor_bc_icms_ = std::move(value);
        return *this;
    }

    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    tributacao_normal_icms_900& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // pICMS
    core::optional<core::decimal> get_aliquota_icms() const { return aliquota_icms_; }
    tributacao_normal_icms_900& set_aliquota_icms(core::optional<core::decimal> value)
    {
        aliquota_icms_ = std::move(value);
        return *this;
    }

    // vICMS
    core::optional<core::decimal> get_valor_icms() const { return valor_icms_; }
    tributacao_normal_icms_900& set_valor_icms(core::optional<core::decimal> value)
    {
        valor_icms_ = std::move(value);
        return *this;
    }

private:
    modalidade_bc_icms modalidade_bc_icms_{};
    core::optional<core::decimal> valor_bc_icms_;
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<core::decimal> aliquota_icms_;
    core::optional<core::decimal> valor_icms_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// The issuer's own ICMS: how the base was found, base, rate and value. Its setters give back the group that holds
// these values, so that they chain with the group's own.
template <class Grupo>
class icms_proprio {
public:
    // modBC
    modalidade_bc_icms get_modalidade_bc_icms() const { return modalidade_bc_icms_; }
    Grupo& set_modalidade_bc_icms(modalidade_bc_icms value)
    {
        modalidade_bc_icms_ = value;
        return static_cast<Grupo&>(*this);
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_icms() const { return valor_bc_icms_; }
    Grupo& set_valor_bc_icms(core::optional<core::decimal> value)
    {
        valor_bc_icms_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pICMS
    core::optional<core::decimal> get_aliquota_icms() const { return aliquota_icms_; }
    Grupo& set_aliquota_icms(core::optional<core::decimal> value)
    {
        aliquota_icms_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vICMS
    core::optional<core::decimal> get_valor_icms() const { return valor_icms_; }
    Grupo& set_valor_icms(core::optional<core::decimal> value)
    {
        valor_icms_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    modalidade_bc_icms modalidade_bc_icms_{};
    core::optional<core::decimal> valor_bc_icms_;
    core::optional<core::decimal> aliquota_icms_;
    core::optional<core::decimal> valor_icms_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

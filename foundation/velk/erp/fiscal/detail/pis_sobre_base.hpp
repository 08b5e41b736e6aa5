#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// PIS on a base and a rate, with the tax situation of its group. Its setters give back the group that holds these
// values, so that they chain with the group's own.
template <class Grupo, class Cst>
class pis_sobre_base {
public:
    // CST
    Cst get_cst_pis() const { return cst_pis_; }
    Grupo& set_cst_pis(Cst value)
    {
        cst_pis_ = value;
        return static_cast<Grupo&>(*this);
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_pis() const { return valor_bc_pis_; }
    Grupo& set_valor_bc_pis(core::optional<core::decimal> value)
    {
        valor_bc_pis_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pPIS
    core::optional<core::decimal> get_percentual_aliquota_pis() const { return percentual_aliquota_pis_; }
    Grupo& set_percentual_aliquota_pis(core::optional<core::decimal> value)
    {
        percentual_aliquota_pis_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vPIS
    core::decimal get_valor_pis() const { return valor_pis_; }
    Grupo& set_valor_pis(core::decimal value)
    {
        valor_pis_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    Cst cst_pis_{};
    core::optional<core::decimal> valor_bc_pis_;
    core::optional<core::decimal> percentual_aliquota_pis_;
    core::decimal valor_pis_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// COFINS on a base and a rate, with the tax situation of its group. Its setters give back the group that holds these
// values, so that they chain with the group's own.
template <class Grupo, class Cst>
class cofins_sobre_base {
public:
    // CST
    Cst get_cst_cofins() const { return cst_cofins_; }
    Grupo& set_cst_cofins(Cst value)
    {
        cst_cofins_ = value;
        return static_cast<Grupo&>(*this);
    }

    // vBC
    core::optional<core::decimal> get_valor_bc_cofins() const { return valor_bc_cofins_; }
    Grupo& set_valor_bc_cofins(core::optional<core::decimal> value)
    {
        valor_bc_cofins_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pCOFINS
    core::optional<core::decimal> get_percentual_aliquota_cofins() const { return percentual_aliquota_cofins_; }
    Grupo& set_percentual_aliquota_cofins(core::optional<core::decimal> value)
    {
        percentual_aliquota_cofins_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vCOFINS
    core::decimal get_valor_cofins() const { return valor_cofins_; }
    Grupo& set_valor_cofins(core::decimal value)
    {
        valor_cofins_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    Cst cst_cofins_{};
    core::optional<core::decimal> valor_bc_cofins_;
    core::optional<core::decimal> percentual_aliquota_cofins_;
    core::decimal valor_cofins_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

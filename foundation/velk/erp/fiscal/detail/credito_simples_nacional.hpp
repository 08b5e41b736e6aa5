#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// The ICMS credit that a company of the Simples Nacional passes on. Its setters give back the group that holds these
// values, so that they chain with the group's own.
template <class Grupo>
class credito_simples_nacional {
public:
    // pCredSN
    core::optional<core::decimal> get_aliquota_de_credito_sn() const { return aliquota_de_credito_sn_; }
    Grupo& set_aliquota_de_credito_sn(core::optional<core::decimal> value)
    {
        aliquota_de_credito_sn_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vCredICMSSN
    core::optional<core::decimal> get_valor_de_credito_sn() const { return valor_de_credito_sn_; }
    Grupo& set_valor_de_credito_sn(core::optional<core::decimal> value)
    {
        valor_de_credito_sn_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    core::optional<core::decimal> aliquota_de_credito_sn_;
    core::optional<core::decimal> valor_de_credito_sn_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

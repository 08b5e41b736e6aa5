#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// IPI given back with a return of goods.
class VELK_EXPORT ipi_devolvido {
public:
    // vIPIDevol
    core::decimal get_valor() const { return valor_; }
    ipi_devolvido& set_valor(core::decimal value)
    {
        valor_ = std::move(value);
        return *this;
    }

private:
    core::decimal valor_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

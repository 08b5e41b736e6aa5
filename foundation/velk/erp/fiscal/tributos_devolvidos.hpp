#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/erp/fiscal/ipi_devolvido.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Taxes given back with a return of goods (group impostoDevol).
class VELK_EXPORT tributos_devolvidos {
public:
    // pDevol
    core::decimal get_percentual() const { return percentual_; }
    tributos_devolvidos& set_percentual(core::decimal value)
    {
        percentual_ = std::move(value);
        return *this;
    }

    // IPI
    ipi_devolvido get_ipi() const { return ipi_; }
    tributos_devolvidos& set_ipi(ipi_devolvido value)
    {
        ipi_ = std::move(value);
        return *this;
    }

private:
    core::decimal percentual_;
    ipi_devolvido ipi_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

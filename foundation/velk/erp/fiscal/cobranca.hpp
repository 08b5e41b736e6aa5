#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/duplicata.hpp>

#include <string>
#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The bill: invoice and instalments.
class VELK_EXPORT cobranca {
public:
    // nFat
    core::optional<std::string> get_numero_fatura() const { return numero_fatura_; }
    cobranca& set_numero_fatura(core::optional<std::string> value)
    {
        numero_fatura_ = std::move(value);
        return *this;
    }

    // vOrig
    core::optional<core::decimal> get_valor_original_fatura() const { return valor_original_fatura_; }
    cobranca& set_valor_original_fatura(core::optional<core::decimal> value)
    {
        valor_original_fatura_ = std::move(value);
        return *this;
    }

    // vDesc
    core::optional<core::decimal> get_valor_desconto() const { return valor_desconto_; }
    cobranca& set_valor_desconto(core::optional<core::decimal> value)
    {
        valor_desconto_ = std::move(value);
        return *this;
    }

    // vLiq
    core::optional<core::decimal> get_valor_liquido() const { return valor_liquido_; }
    cobranca& set_valor_liquido(core::optional<core::decimal> value)
    {
        valor_liquido_ = std::move(value);
        return *this;
    }

    // dup
    std::vector<duplicata> get_duplicatas() const { return duplicatas_; }
    cobranca& set_duplicatas(std::vector<duplicata> value)
    {
        duplicatas_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> numero_fatura_;
    core::optional<core::decimal> valor_original_fatura_;
    core::optional<core::decimal> valor_desconto_;
    core::optional<core::decimal> valor_liquido_;
    std::vector<duplicata> duplicatas_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

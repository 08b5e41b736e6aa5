#pragma once

#include <velk/core/date.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// One instalment of the bill.
class VELK_EXPORT duplicata {
public:
    // nDup
    core::optional<std::string> get_numero_duplicata() const { return numero_duplicata_; }
    duplicata& set_numero_duplicata(core::optional<std::string> value)
    {
        numero_duplicata_ = std::move(value);
        return *this;
    }

    // dVenc
    core::optional<core::date> get_data_vencimento() const { return data_vencimento_; }
    duplicata& set_data_vencimento(core::optional<core::date> value)
    {
        data_vencimento_ = std::move(value);
        return *this;
    }

    // vDup
    core::decimal get_valor_duplicata() const { return valor_duplicata_; }
    duplicata& set_valor_duplicata(core::decimal value)
    {
        valor_duplicata_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> numero_duplicata_;
    core::optional<core::date> data_vencimento_;
    core::decimal valor_duplicata_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/erp/fiscal/motivo_desoneracao_icms.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS relieved, and why.
class VELK_EXPORT grupo_icms_desonerado {
public:
    // vICMSDeson
    core::decimal get_valor_icms_desonerado() const { return valor_icms_desonerado_; }
    grupo_icms_desonerado& set_valor_icms_desonerado(core::decimal value)
    {
        valor_icms_desonerado_ = std::move(value);
        return *this;
    }

    // motDesICMS
    motivo_desoneracao_icms get_motivo() const { return motivo_; }
    grupo_icms_desonerado& set_motivo(motivo_desoneracao_icms value)
    {
        motivo_ = value;
        return *this;
    }

private:
    core::decimal valor_icms_desonerado_;
    motivo_desoneracao_icms motivo_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

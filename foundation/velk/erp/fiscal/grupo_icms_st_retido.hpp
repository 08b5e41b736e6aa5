#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS retained before by substitution.
class VELK_EXPORT grupo_icms_st_retido {
public:
    // vBCSTRet
    core::decimal get_valor_bc_icms_retido() const { return valor_bc_icms_retido_; }
    grupo_icms_st_retido& set_valor_bc_icms_retido(core::decimal value)
    {
        valor_bc_icms_retido_ = std::move(value);
        return *this;
    }

    // pST
    core::decimal get_aliquota_suportada_consumidor_final() const { return aliquota_suportada_consumidor_final_; }
    grupo_icms_st_retido& set_aliquota_suportada_consumidor_final(core::decimal value)
    {
        aliquota_suportada_consumidor_final_ = std::move(value);
        return *this;
    }

    // vICMSSubstituto
    core::optional<core::decimal> get_valor_icms_proprio_substituto() const { return valor_icms_proprio_substituto_; }
    grupo_icms_st_retido& set_valor_icms_proprio_substituto(core::optional<core::decimal> value)
    {
        valor_icms_proprio_substituto_ = std::move(value);
        return *this;
    }

    // vICMSSTRet
    core::decimal get_valor_icms_st_retido() const { return valor_icms_st_retido_; }
    grupo_icms_st_retido& set_valor_icms_st_retido(core::decimal value)
    {
        valor_icms_st_retido_ = std::move(value);
        return *this;
    }

private:
    core::decimal valor_bc_icms_retido_;
    core::decimal aliquota_suportada_consumidor_final_;
    core::optional<core::decimal> valor_icms_proprio_substituto_;
    core::decimal valor_icms_st_retido_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

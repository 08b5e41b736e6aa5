#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido.hpp>
#include <velk/erp/fiscal/modalidade_bc_icms_st.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// ICMS by substitution, with its fund against poverty. Its setters give back the group that holds these values, so
// that they chain with the group's own.
template <class Grupo>
class icms_st {
public:
    // modBCST
    modalidade_bc_icms_st get_modalidade_bc_icms_st() const { return modalidade_bc_icms_st_; }
    Grupo& set_modalidade_bc_icms_st(modalidade_bc_icms_st value)
    {
        modalidade_bc_icms_st_ = value;
        return static_cast<Grupo&>(*this);
    }

    // pMVAST
    core::optional<core::decimal> get_percentual_margem_valor_adicionado_icms_st() const
    {
        return percentual_margem_valor_adicionado_icms_st_;
    }
    Grupo& set_percentual_margem_valor_adicionado_icms_st(core::optional<core::decimal> value)
    {
        percentual_margem_valor_adicionado_icms_st_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pRedBCST
    core::optional<core::decimal> get_percentual_reducao_bc_icms_st() const { return percentual_reducao_bc_icms_st_; }
    Grupo& set_percentual_reducao_bc_icms_st(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_st_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vBCST
    core::optional<core::decimal> get_valor_bc_icms_st() const { return valor_bc_icms_st_; }
    Grupo& set_valor_bc_icms_st(core::optional<core::decimal> value)
    {
        valor_bc_icms_st_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pICMSST
    core::optional<core::decimal> get_aliquota_icms_st() const { return aliquota_icms_st_; }
    Grupo& set_aliquota_icms_st(core::optional<core::decimal> value)
    {
        aliquota_icms_st_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vICMSST
    core::optional<core::decimal> get_valor_icms_st() const { return valor_icms_st_; }
    Grupo& set_valor_icms_st(core::optional<core::decimal> value)
    {
        valor_icms_st_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vBCFCPST, pFCPST, vFCPST
    core::optional<grupo_fcp_st_retido> get_fcp_st_retido() const { return fcp_st_retido_; }
    Grupo& set_fcp_st_retido(core::optional<grupo_fcp_st_retido> value)
    {
        fcp_st_retido_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    modalidade_bc_icms_st modalidade_bc_icms_st_{};
    core::optional<core::decimal> percentual_margem_valor_adicionado_icms_st_;
    core::optional<core::decimal> percentual_reducao_bc_icms_st_;
    core::optional<core::decimal> valor_bc_icms_st_;
    core::optional<core::decimal> aliquota_icms_st_;
    core::optional<core::decimal> valor_icms_st_;
    core::optional<grupo_fcp_st_retido> fcp_st_retido_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

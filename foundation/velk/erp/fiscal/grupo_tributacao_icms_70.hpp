#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_proprio.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>
#include <velk/erp/fiscal/grupo_fcp.hpp>
#include <velk/erp/fiscal/grupo_icms_desonerado.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS on a reduced base, with substitution (group ICMS70).
class VELK_EXPORT grupo_tributacao_icms_70 : public detail::origem_cst<grupo_tributacao_icms_70>,
                                 public detail::icms_proprio<grupo_tributacao_icms_70>,
                                 public detail::icms_st<grupo_tributacao_icms_70> {
public:
    // pRedBC
    core::optional<core::decimal> get_percentual_reducao_bc_icms() const { return percentual_reducao_bc_icms_; }
    grupo_tributacao_icms_70& set_percentual_reducao_bc_icms(core::optional<core::decimal> value)
    {
        percentual_reducao_bc_icms_ = std::move(value);
        return *this;
    }

    // vBCFCP, pFCP, vFCP
    core::optional<grupo_fcp> get_fcp() const { return fcp_; }
    grupo_tributacao_icms_70& set_fcp(core::optional<grupo_fcp> value)
    {
        fcp_ = std::move(value);
        return *this;
    }

    // vICMSDeson, motDesICMS
    core::optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const { return grupo_icms_desonerado_; }
    grupo_tributacao_icms_70& set_grupo_icms_desonerado(core::optional<grupo_icms_desonerado> value)
    {
        grupo_icms_desonerado_ = std::move(value);
        return *this;
    }

private:
    core::optional<core::decimal> percentual_reducao_bc_icms_;
    core::optional<grupo_fcp> fcp_;
    core::optional<grupo_icms_desonerado> grupo_icms_desonerado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

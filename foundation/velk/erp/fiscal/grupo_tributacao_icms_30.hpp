#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/icms_st.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>
#include <velk/erp/fiscal/grupo_icms_desonerado.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS exempt or not taxed, with substitution (group ICMS30).
class VELK_EXPORT grupo_tributacao_icms_30 : public detail::origem_cst<grupo_tributacao_icms_30>,
                                 public detail::icms_st<grupo_tributacao_icms_30> {
public:
    // vICMSDeson, motDesICMS
    core::optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const { return grupo_icms_desonerado_; }
    grupo_tributacao_icms_30& set_grupo_icms_desonerado(core::optional<grupo_icms_desonerado> value)
    {
        grupo_icms_desonerado_ = std::move(value);
        return *this;
    }

private:
    core::optional<grupo_icms_desonerado> grupo_icms_desonerado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

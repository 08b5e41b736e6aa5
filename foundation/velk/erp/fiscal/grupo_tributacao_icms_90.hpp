#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/origem_cst.hpp>
#include <velk/erp/fiscal/grupo_icms_desonerado.hpp>
#include <velk/erp/fiscal/tributacao_normal_icms_90.hpp>
#include <velk/erp/fiscal/tributacao_st_icms_90.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS, other situations (group ICMS90).
class VELK_EXPORT grupo_tributacao_icms_90 : public detail::origem_cst<grupo_tributacao_icms_90> {
public:
    // modBC, vBC, pRedBC, pICMS, vICMS, FCP
    core::optional<tributacao_normal_icms_90> get_tributacao_normal_icms_90() const
    {
        return tributacao_normal_icms_90_;
    }
    grupo_tributacao_icms_90& set_tributacao_normal_icms_90(core::optional<tributacao_normal_icms_90> value)
    {
        tributacao_normal_icms_90_ = std::move(value);
        return *this;
    }

    // modBCST up to vICMSST, FCP ST
    core::optional<tributacao_st_icms_90> get_tributacao_st_icms_90() const { return tributacao_st_icms_90_; }
    grupo_tributacao_icms_90& set_tributacao_st_icms_90(core::optional<tributacao_st_icms_90> value)
    {
        tributacao_st_icms_90_ = std::move(value);
        return *this;
    }

    // vICMSDeson, motDesICMS
    core::optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const { return grupo_icms_desonerado_; }
    grupo_tributacao_icms_90& set_grupo_icms_desonerado(core::optional<grupo_icms_desonerado> value)
    {
        grupo_icms_desonerado_ = std::move(value);
        return *this;
    }

private:
    core::optional<tributacao_normal_icms_90> tributacao_normal_icms_90_;
    core::optional<tributacao_st_icms_90> tributacao_st_icms_90_;
    core::optional<grupo_icms_desonerado> grupo_icms_desonerado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

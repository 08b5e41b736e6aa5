#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/detail/origem_csosn.hpp>
#include <velk/erp/fiscal/tributacao_credito_sn_icms_900.hpp>
#include <velk/erp/fiscal/tributacao_normal_icms_900.hpp>
#include <velk/erp/fiscal/tributacao_st_icms_900.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional, other situations (group ICMSSN900).
class VELK_EXPORT grupo_tributacao_icms_900 : public detail::origem_csosn<grupo_tributacao_icms_900> {
public:
    // modBC, vBC, pRedBC, pICMS, vICMS
    core::optional<tributacao_normal_icms_900> get_tributacao_normal_icms_900() const
    {
        return tributacao_normal_icms_900_;
    }
    grupo_tributacao_icms_900& set_tributacao_normal_icms_900(core::optional<tributacao_normal_icms_900> value)
    {
        tributacao_normal_icms_900_ = std::move(value);
        return *this;
    }

    // modBCST up to vICMSST, FCP ST
    core::optional<tributacao_st_icms_900> get_tributacao_st_icms_900() const { return tributacao_st_icms_900_; }
    grupo_tributacao_icms_900& set_tributacao_st_icms_900(core::optional<tributacao_st_icms_900> value)
    {
        tributacao_st_icms_900_ = std::move(value);
        return *this;
    }

    // pCredSN, vCredICMSSN
    core::optional<tributacao_credito_sn_icms_900> get_tributacao_credito_sn_icms_900() const
    {
        return tributacao_credito_sn_icms_900_;
    }
    grupo_tributacao_icms_900& set_tributacao_credito_sn_icms_900(core::optional<tributacao_credito_sn_icms_900> value)
    {
        tributacao_credito_sn_icms_900_ = std::move(value);
        return *this;
    }

private:
    core::optional<tributacao_normal_icms_900> tributacao_normal_icms_900_;
    core::optional<tributacao_st_icms_900> tributacao_st_icms_900_;
    core::optional<tributacao_credito_sn_icms_900> tributacao_credito_sn_icms_900_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

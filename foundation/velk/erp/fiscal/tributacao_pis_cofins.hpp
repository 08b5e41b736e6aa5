#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/grupo_tributacao_cofins.hpp>
#include <velk/erp/fiscal/grupo_tributacao_pis.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// PIS and COFINS of the item.
class VELK_EXPORT tributacao_pis_cofins {
public:
    // PIS
    core::optional<grupo_tributacao_pis> get_grupo_tributacao_pis() const { return grupo_tributacao_pis_; }
    tributacao_pis_cofins& set_grupo_tributacao_pis(core::optional<grupo_tributacao_pis> value)
    {
        grupo_tributacao_pis_ = std::move(value);
        return *this;
    }

    // COFINS
    core::optional<grupo_tributacao_cofins> get_grupo_tributacao_cofins() const { return grupo_tributacao_cofins_; }
    tributacao_pis_cofins& set_grupo_tributacao_cofins(core::optional<grupo_tributacao_cofins> value)
    {
        grupo_tributacao_cofins_ = std::move(value);
        return *this;
    }

private:
    core::optional<grupo_tributacao_pis> grupo_tributacao_pis_;
    core::optional<grupo_tributacao_cofins> grupo_tributacao_cofins_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

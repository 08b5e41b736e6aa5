#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_nao_tributado.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// COFINS not charged (group COFINSNT).
class VELK_EXPORT grupo_tributacao_cofins_nt {
public:
    // CST
    cst_pis_cofins_nao_tributado get_cst_cofins() const { return cst_cofins_; }
    grupo_tributacao_cofins_nt& set_cst_cofins(cst_pis_cofins_nao_tributado value)
    {
        cst_cofins_ = value;
        return *this;
    }

private:
    cst_pis_cofins_nao_tributado cst_cofins_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

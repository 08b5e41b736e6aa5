#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/cst_pis_cofins_nao_tributado.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// PIS not charged (group PISNT).
class VELK_EXPORT grupo_tributacao_pis_nt {
public:
    // CST
    cst_pis_cofins_nao_tributado get_cst_pis() const { return cst_pis_; }
    grupo_tributacao_pis_nt& set_cst_pis(cst_pis_cofins_nao_tributado value)
    {
        cst_pis_ = value;
        return *this;
    }

private:
    cst_pis_cofins_nao_tributado cst_pis_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

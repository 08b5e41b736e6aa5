#pragma once

#include <velk/erp/fiscal/csosn.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Simples Nacional without credit: CSOSN 102, 103, 300 or 400 (group ICMSSN102).
class grupo_tributacao_icms_102 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_102& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CSOSN
    csosn get_csosn() const { return csosn_; }
    grupo_tributacao_icms_102& set_csosn(csosn value)
    {
        csosn_ = value;
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    csosn csosn_{};
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

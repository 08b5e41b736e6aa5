#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_icms.hpp>
#include <velk/erp/fiscal/grupo_icms_desonerado.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// ICMS exempt, not taxed or suspended (group ICMS40).
class grupo_tributacao_icms_40 {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    grupo_tributacao_icms_40& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return *this;
    }

    // CST
    cst_icms get_cst() const { return cst_; }
    grupo_tributacao_icms_40& set_cst(cst_icms value)
    {
        cst_ = value;
        return *this;
    }

    // vICMSDeson, motDesICMS
    core::optional<grupo_icms_desonerado> get_grupo_icms_desonerado() const { return grupo_icms_desonerado_; }
    grupo_tributacao_icms_40& set_grupo_icms_desonerado(core::optional<grupo_icms_desonerado> value)
    {
        grupo_icms_desonerado_ = std::move(value);
        return *this;
    }

private:
    origem_mercadoria origem_mercadoria_{};
    cst_icms cst_{};
    core::optional<grupo_icms_desonerado> grupo_icms_desonerado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

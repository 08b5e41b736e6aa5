#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/grupo_fcp_st_retido_anteriormente.hpp>
#include <velk/erp/fiscal/grupo_icms_st_retido.hpp>
#include <velk/erp/fiscal/informacoes_icms_efetivo.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// ICMS retained before by substitution, and the effective ICMS of a sale to the consumer. Its setters give back the
// group that holds these values, so that they chain with the group's own.
template <class Grupo>
class icms_retido_anteriormente {
public:
    // vBCSTRet, pST, vICMSSubstituto, vICMSSTRet
    core::optional<grupo_icms_st_retido> get_icms_st_retido() const { return icms_st_retido_; }
    Grupo& set_icms_st_retido(core::optional<grupo_icms_st_retido> value)
    {
        icms_st_retido_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // vBCFCPSTRet, pFCPSTRet, vFCPSTRet
    core::optional<grupo_fcp_st_retido_anteriormente> get_fcp_st_retido_anteriormente() const
    {
        return fcp_st_retido_anteriormente_;
    }
    Grupo& set_fcp_st_retido_anteriormente(core::optional<grupo_fcp_st_retido_anteriormente> value)
    {
        fcp_st_retido_anteriormente_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

    // pRedBCEfet, vBCEfet, pICMSEfet, vICMSEfet
    core::optional<informacoes_icms_efetivo> get_informacoes_icms_efetivo() const { return informacoes_icms_efetivo_; }
    Grupo& set_informacoes_icms_efetivo(core::optional<informacoes_icms_efetivo> value)
    {
        informacoes_icms_efetivo_ = std::move(value);
        return static_cast<Grupo&>(*this);
    }

private:
    core::optional<grupo_icms_st_retido> icms_st_retido_;
    core::optional<grupo_fcp_st_retido_anteriormente> fcp_st_retido_anteriormente_;
    core::optional<informacoes_icms_efetivo> informacoes_icms_efetivo_;
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/cst_ipi.hpp>
#include <velk/erp/fiscal/tributacao_ipi_calculo_aliquota.hpp>
#include <velk/erp/fiscal/tributacao_ipi_calculo_valor.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// IPI of the item (group IPI).
class VELK_EXPORT tributacao_ipi {
public:
    // CNPJProd, digits only
    core::optional<std::string> get_cnpj_produtor() const { return cnpj_produtor_; }
    tributacao_ipi& set_cnpj_produtor(core::optional<std::string> value)
    {
        cnpj_produtor_ = std::move(value);
        return *this;
    }

    // cSelo
    core::optional<std::string> get_codigo_selo_controle_ipi() const { return codigo_selo_controle_ipi_; }
    tributacao_ipi& set_codigo_selo_controle_ipi(core::optional<std::string> value)
    {
        codigo_selo_controle_ipi_ = std::move(value);
        return *this;
    }

    // qSelo
    std::uint64_t get_quantidade_selo_controle() const { return quantidade_selo_controle_; }
    tributacao_ipi& set_quantidade_selo_controle(std::uint64_t value)
    {
        quantidade_selo_controle_ = value;
        return *this;
    }

    // cEnq, digits only
    std::string get_classe_enquadramento_ipi() const { return classe_enquadramento_ipi_; }
    tributacao_ipi& set_classe_enquadramento_ipi(std::string value)
    {
        classe_enquadramento_ipi_ = std::move(value);
        return *this;
    }

    // clEnq, layout 3.10 only
    core::optional<std::string> get_classe_enquadramento_ipi_cigarros_bebidas() const
    {
        return classe_enquadramento_ipi_cigarros_bebidas_;
    }
    tributacao_ipi& set_classe_enquadramento_ipi_cigarros_bebidas(core::optional<std::string> value)
    {
        classe_enquadramento_ipi_cigarros_bebidas_ = std::move(value);
        return *this;
    }

    // CST
    cst_ipi get_cst_ipi() const { return cst_ipi_; }
    tributacao_ipi& set_cst_ipi(cst_ipi value)
    {
        cst_ipi_ = value;
        return *this;
    }

    // vBC and pIPI; taken first
    core::optional<tributacao_ipi_calculo_aliquota> get_tributacao_ipi_calculo_aliquota() const
    {
        return tributacao_ipi_calculo_aliquota_;
    }
    tributacao_ipi& set_tributacao_ipi_calculo_aliquota(core::optional<tributacao_ipi_calculo_aliquota> value)
    {
        tributacao_ipi_calculo_aliquota_ = std::move(value);
        return *this;
    }

    // qUnid and vUnid
    core::optional<tributacao_ipi_calculo_valor> get_tributacao_ipi_calculo_valor() const
    {
        return tributacao_ipi_calculo_valor_;
    }
    tributacao_ipi& set_tributacao_ipi_calculo_valor(core::optional<tributacao_ipi_calculo_valor> value)
    {
        tributacao_ipi_calculo_valor_ = std::move(value);
        return *this;
    }

    // vIPI
    core::optional<core::decimal> get_valor_ipi() const { return valor_ipi_; }
    tributacao_ipi& set_valor_ipi(core::optional<core::decimal> value)
    {
        valor_ipi_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> cnpj_produtor_;
    core::optional<std::string> codigo_selo_controle_ipi_;
    std::uint64_t quantidade_selo_controle_ = 0;
    std::string classe_enquadramento_ipi_;
    core::optional<std::string> classe_enquadramento_ipi_cigarros_bebidas_;
    cst_ipi cst_ipi_{};
    core::optional<tributacao_ipi_calculo_aliquota> tributacao_ipi_calculo_aliquota_;
    core::optional<tributacao_ipi_calculo_valor> tributacao_ipi_calculo_valor_;
    core::optional<core::decimal> valor_ipi_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

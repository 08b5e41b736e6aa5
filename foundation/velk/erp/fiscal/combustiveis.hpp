#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/encerrante_bomba_combustiveis.hpp>
#include <velk/erp/fiscal/informacoes_cide_combustiveis.hpp>
#include <velk/erp/fiscal/informacoes_combustivel_glp.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Details of a fuel item.
class VELK_EXPORT combustiveis {
public:
    // cProdANP: ANP product code, 9 digits
    std::uint32_t get_codigo_produto_anp() const { return codigo_produto_anp_; }
    combustiveis& set_codigo_produto_anp(std::uint32_t value)
    {
        codigo_produto_anp_ = value;
        return *this;
    }

    // descANP
    std::string get_descricao_produto_anp() const { return descricao_produto_anp_; }
    combustiveis& set_descricao_produto_anp(std::string value)
    {
        descricao_produto_anp_ = std::move(value);
        return *this;
    }

    // pGLP, pGNn, pGNi, vPart
    core::optional<informacoes_combustivel_glp> get_informacoes_glp() const { return informacoes_glp_; }
    combustiveis& set_informacoes_glp(core::optional<informacoes_combustivel_glp> value)
    {
        informacoes_glp_ = std::move(value);
        return *this;
    }

    // CODIF
    core::optional<std::string> get_codigo_autorizacao_codif() const { return codigo_autorizacao_codif_; }
    combustiveis& set_codigo_autorizacao_codif(core::optional<std::string> value)
    {
        codigo_autorizacao_codif_ = std::move(value);
        return *this;
    }

    // qTemp
    core::optional<core::decimal> get_quantidade_faturada_temperatura_ambiente() const
    {
        return quantidade_faturada_temperatura_ambiente_;
    }
    combustiveis& set_quantidade_faturada_temperatura_ambiente(core::optional<core::decimal> value)
    {
        quantidade_faturada_temperatura_ambiente_ = std::move(value);
        return *this;
    }

    // UFCons
    std::string get_uf_consumo() const { return uf_consumo_; }
    combustiveis& set_uf_consumo(std::string value)
    {
        uf_consumo_ = std::move(value);
        return *this;
    }

    // CIDE
    core::optional<informacoes_cide_combustiveis> get_informacoes_cide_combustiveis() const
    {
        return informacoes_cide_combustiveis_;
    }
    combustiveis& set_informacoes_cide_combustiveis(core::optional<informacoes_cide_combustiveis> value)
    {
        informacoes_cide_combustiveis_ = std::move(value);
        return *this;
    }

    // encerrante
    core::optional<encerrante_bomba_combustiveis> get_encerrante_bomba_combustiveis() const
    {
        return encerrante_bomba_combustiveis_;
    }
    combustiveis& set_encerrante_bomba_combustiveis(core::optional<encerrante_bomba_combustiveis> value)
    {
        encerrante_bomba_combustiveis_ = std::move(value);
        return *this;
    }

private:
    std::uint32_t codigo_produto_anp_ = 0;
    std::string descricao_produto_anp_;
    core::optional<informacoes_combustivel_glp> informacoes_glp_;
    core::optional<std::string> codigo_autorizacao_codif_;
    core::optional<core::decimal> quantidade_faturada_temperatura_ambiente_;
    std::string uf_consumo_;
    core::optional<informacoes_cide_combustiveis> informacoes_cide_combustiveis_;
    core::optional<encerrante_bomba_combustiveis> encerrante_bomba_combustiveis_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

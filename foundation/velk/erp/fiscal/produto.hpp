#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/arma.hpp>
#include <velk/erp/fiscal/combustiveis.hpp>
#include <velk/erp/fiscal/declaracao_importacao.hpp>
#include <velk/erp/fiscal/grupo_exportacao.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms.hpp>
#include <velk/erp/fiscal/indicador_total.hpp>
#include <velk/erp/fiscal/informacoes_rastreabilidade.hpp>
#include <velk/erp/fiscal/medicamento.hpp>
#include <velk/erp/fiscal/tributacao_icms_uf_destino.hpp>
#include <velk/erp/fiscal/tributacao_imposto_importacao.hpp>
#include <velk/erp/fiscal/tributacao_ipi.hpp>
#include <velk/erp/fiscal/tributacao_pis_cofins.hpp>
#include <velk/erp/fiscal/tributacao_produto.hpp>
#include <velk/erp/fiscal/tributos_devolvidos.hpp>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// An item of the note: the goods, their amounts and their taxes.
class VELK_EXPORT produto {
public:
    // cProd: the issuer's own code
    std::string get_codigo_produto() const { return codigo_produto_; }
    produto& set_codigo_produto(std::string value)
    {
        codigo_produto_ = std::move(value);
        return *this;
    }

    // cEAN: GTIN, or "SEM GTIN"
    std::string get_codigo_de_barras() const { return codigo_de_barras_; }
    produto& set_codigo_de_barras(std::string value)
    {
        codigo_de_barras_ = std::move(value);
        return *this;
    }

    // xProd
    std::string get_descricao() const { return descricao_; }
    produto& set_descricao(std::string value)
    {
        descricao_ = std::move(value);
        return *this;
    }

    // NCM
    std::uint32_t get_ncm() const { return ncm_; }
    produto& set_ncm(std::uint32_t value)
    {
        ncm_ = value;
        return *this;
    }

    // CEST
    core::optional<std::uint32_t> get_cest() const { return cest_; }
    produto& set_cest(core::optional<std::uint32_t> value)
    {
        cest_ = value;
        return *this;
    }

    // cBenef
    core::optional<std::string> get_codigo_beneficio_fiscal_uf() const { return codigo_beneficio_fiscal_uf_; }
    produto& set_codigo_beneficio_fiscal_uf(core::optional<std::string> value)
    {
        codigo_beneficio_fiscal_uf_ = std::move(value);
        return *this;
    }

    // EXTIPI
    core::optional<std::uint16_t> get_extipi() const { return extipi_; }
    produto& set_extipi(core::optional<std::uint16_t> value)
    {
        extipi_ = value;
        return *this;
    }

    // CFOP
    std::uint16_t get_cfop() const { return cfop_; }
    produto& set_cfop(std::uint16_t value)
    {
        cfop_ = value;
        return *this;
    }

    // uCom
    std::string get_unidade_comercial() const { return unidade_comercial_; }
    produto& set_unidade_comercial(std::string value)
    {
        unidade_comercial_ = std::move(value);
        return *this;
    }

    // qCom
    core::decimal get_quantidade_comercial() const { return quantidade_comercial_; }
    produto& set_quantidade_comercial(core::decimal value)
    {
        quantidade_comercial_ = std::move(value);
        return *this;
    }

    // vUnCom
    core::decimal get_valor_unitario_comercial() const { return valor_unitario_comercial_; }
    produto& set_valor_unitario_comercial(core::decimal value)
    {
        valor_unitario_comercial_ = std::move(value);
        return *this;
    }

    // vProd
    core::decimal get_valor_total_bruto() const { return valor_total_bruto_; }
    produto& set_valor_total_bruto(core::decimal value)
    {
        valor_total_bruto_ = std::move(value);
        return *this;
    }

    // cEANTrib
    std::string get_codigo_de_barras_tributavel() const { return codigo_de_barras_tributavel_; }
    produto& set_codigo_de_barras_tributavel(std::string value)
    {
        codigo_de_barras_tributavel_ = std::move(value);
        return *this;
    }

    // uTrib
    std::string get_unidade_tributavel() const { return unidade_tributavel_; }
    produto& set_unidade_tributavel(std::string value)
    {
        unidade_tributavel_ = std::move(value);
        return *this;
    }

    // qTrib, required; also qUnid of IPI
    core::optional<core::decimal> get_quantidade_tributavel() const { return quantidade_tributavel_; }
    produto& set_quantidade_tributavel(core::optional<core::decimal> value)
    {
        quantidade_tributavel_ = std::move(value);
        return *this;
    }

    // vUnTrib
    core::decimal get_valor_unitario_tributavel() const { return valor_unitario_tributavel_; }
    produto& set_valor_unitario_tributavel(core::decimal value)
    {
        valor_unitario_tributavel_ = std::move(value);
        return *this;
    }

    // vFrete
    core::optional<core::decimal> get_valor_frete() const { return valor_frete_; }
    produto& set_valor_frete(core::optional<core::decimal> value)
    {
        valor_frete_ = std::move(value);
        return *this;
    }

    // vSeg
    core::optional<core::decimal> get_valor_seguro() const { return valor_seguro_; }
    produto& set_valor_seguro(core::optional<core::decimal> value)
    {
        valor_seguro_ = std::move(value);
        return *this;
    }

    // vDesc
    core::optional<core::decimal> get_valor_desconto() const { return valor_desconto_; }
    produto& set_valor_desconto(core::optional<core::decimal> value)
    {
        valor_desconto_ = std::move(value);
        return *this;
    }

    // vOutro
    core::optional<core::decimal> get_valor_despesas_acessorias() const { return valor_despesas_acessorias_; }
    produto& set_valor_despesas_acessorias(core::optional<core::decimal> value)
    {
        valor_despesas_acessorias_ = std::move(value);
        return *this;
    }

    // indTot
    indicador_total get_indicador_item_compoe_valor_total() const { return indicador_item_compoe_valor_total_; }
    produto& set_indicador_item_compoe_valor_total(indicador_total value)
    {
        indicador_item_compoe_valor_total_ = value;
        return *this;
    }

    // DI
    std::vector<declaracao_importacao> get_declaracao_importacao() const { return declaracao_importacao_; }
    produto& set_declaracao_importacao(std::vector<declaracao_importacao> value)
    {
        declaracao_importacao_ = std::move(value);
        return *this;
    }

    // detExport
    std::vector<grupo_exportacao> get_grupo_exportacao() const { return grupo_exportacao_; }
    produto& set_grupo_exportacao(std::vector<grupo_exportacao> value)
    {
        grupo_exportacao_ = std::move(value);
        return *this;
    }

    // xPed
    core::optional<std::string> get_pedido_ordem_de_compra() const { return pedido_ordem_de_compra_; }
    produto& set_pedido_ordem_de_compra(core::optional<std::string> value)
    {
        pedido_ordem_de_compra_ = std::move(value);
        return *this;
    }

    // nItemPed
    core::optional<std::uint32_t> get_codigo_do_produto_ordem_de_compra() const
    {
        return codigo_do_produto_ordem_de_compra_;
    }
    produto& set_codigo_do_produto_ordem_de_compra(core::optional<std::uint32_t> value)
    {
        codigo_do_produto_ordem_de_compra_ = value;
        return *this;
    }

    // rastro
    std::vector<informacoes_rastreabilidade> lista_informacoes_rastreabilidade() const
    {
        return lista_informacoes_rastreabilidade_;
    }
    produto& set_lista_informacoes_rastreabilidade(std::vector<informacoes_rastreabilidade> value)
    {
        lista_informacoes_rastreabilidade_ = std::move(value);
        return *this;
    }

    // med
    core::optional<std::vector<medicamento>> get_medicamentos() const { return medicamentos_; }
    produto& set_medicamentos(core::optional<std::vector<medicamento>> value)
    {
        medicamentos_ = std::move(value);
        return *this;
    }

    // arma
    core::optional<std::vector<arma>> get_armas() const { return armas_; }
    produto& set_armas(core::optional<std::vector<arma>> value)
    {
        armas_ = std::move(value);
        return *this;
    }

    // comb; taken over medicines and firearms
    core::optional<combustiveis> get_combustiveis() const { return combustiveis_; }
    produto& set_combustiveis(core::optional<combustiveis> value)
    {
        combustiveis_ = std::move(value);
        return *this;
    }

    // vTotTrib
    core::optional<core::decimal> get_valor_total_tributos() const { return valor_total_tributos_; }
    produto& set_valor_total_tributos(core::optional<core::decimal> value)
    {
        valor_total_tributos_ = std::move(value);
        return *this;
    }

    // ICMS or ISSQN
    tributacao_produto get_tributacao() const { return tributacao_; }
    produto& set_tributacao(tributacao_produto value)
    {
        tributacao_ = std::move(value);
        return *this;
    }

    // IPI
    core::optional<tributacao_ipi> get_tributacao_ipi() const { return tributacao_ipi_; }
    produto& set_tributacao_ipi(core::optional<tributacao_ipi> value)
    {
        tributacao_ipi_ = std::move(value);
        return *this;
    }

    // II
    core::optional<tributacao_imposto_importacao> get_tributacao_importacao() const { return tributacao_importacao_; }
    produto& set_tributacao_importacao(core::optional<tributacao_imposto_importacao> value)
    {
        tributacao_importacao_ = std::move(value);
        return *this;
    }

    // PIS and COFINS
    core::optional<tributacao_pis_cofins> get_tributacao_pis_cofins() const { return tributacao_pis_cofins_; }
    produto& set_tributacao_pis_cofins(core::optional<tributacao_pis_cofins> value)
    {
        tributacao_pis_cofins_ = std::move(value);
        return *this;
    }

    // ICMSUFDest
    core::optional<tributacao_icms_uf_destino> get_tributacao_icms_uf_destino() const
    {
        return tributacao_icms_uf_destino_;
    }
    produto& set_tributacao_icms_uf_destino(core::optional<tributacao_icms_uf_destino> value)
    {
        tributacao_icms_uf_destino_ = std::move(value);
        return *this;
    }

    // impostoDevol
    core::optional<fiscal::tributos_devolvidos> tributos_devolvidos() const { return tributos_devolvidos_; }
    produto& set_tributos_devolvidos(core::optional<fiscal::tributos_devolvidos> value)
    {
        tributos_devolvidos_ = std::move(value);
        return *this;
    }

    // infAdProd
    core::optional<std::string> get_informacoes_adicionais() const { return informacoes_adicionais_; }
    produto& set_informacoes_adicionais(core::optional<std::string> value)
    {
        informacoes_adicionais_ = std::move(value);
        return *this;
    }

    // The ICMS group of get_tributacao, when the item is taxed by ICMS and not by ISSQN; the older
    // layout 3.10 reads the item's tax this way.
    core::optional<grupo_tributacao_icms> get_grupo_tributacao_icms() const;

private:
    std::string codigo_produto_;
    std::string codigo_de_barras_;
    std::string descricao_;
    std::uint32_t ncm_ = 0;
    core::optional<std::uint32_t> cest_;
    core::optional<std::string> codigo_beneficio_fiscal_uf_;
    core::optional<std::uint16_t> extipi_;
    std::uint16_t cfop_ = 0;
    std::string unidade_comercial_;
    core::decimal quantidade_comercial_;
    core::decimal valor_unitario_comercial_;
    core::decimal valor_total_bruto_;
    std::string codigo_de_barras_tributavel_;
    std::string unidade_tributavel_;
    core::optional<core::decimal> quantidade_tributavel_;
    core::decimal valor_unitario_tributavel_;
    core::optional<core::decimal> valor_frete_;
    core::optional<core::decimal> valor_seguro_;
    core::optional<core::decimal> valor_desconto_;
    core::optional<core::decimal> valor_despesas_acessorias_;
    indicador_total indicador_item_compoe_valor_total_{};
    std::vector<declaracao_importacao> declaracao_importacao_;
    std::vector<grupo_exportacao> grupo_exportacao_;
    core::optional<std::string> pedido_ordem_de_compra_;
    core::optional<std::uint32_t> codigo_do_produto_ordem_de_compra_;
    std::vector<informacoes_rastreabilidade> lista_informacoes_rastreabilidade_;
    core::optional<std::vector<medicamento>> medicamentos_;
    core::optional<std::vector<arma>> armas_;
    core::optional<combustiveis> combustiveis_;
    core::optional<core::decimal> valor_total_tributos_;
    tributacao_produto tributacao_;
    core::optional<tributacao_ipi> tributacao_ipi_;
    core::optional<tributacao_imposto_importacao> tributacao_importacao_;
    core::optional<tributacao_pis_cofins> tributacao_pis_cofins_;
    core::optional<tributacao_icms_uf_destino> tributacao_icms_uf_destino_;
    core::optional<fiscal::tributos_devolvidos> tributos_devolvidos_;
    core::optional<std::string> informacoes_adicionais_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/montar_prod_grupos.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t indTot[] = {0, 1};

void montar_impostoDevol(fiscal::produto const& produto, core::optional<grupo::impostoDevol>& impostoDevol)
{
    if (auto const devolvidos = produto.tributos_devolvidos()) {
        impostoDevol = grupo::impostoDevol{devolvidos->get_percentual(), {devolvidos->get_ipi().get_valor()}};
    }
}

// The plain tags of prod, from cProd to nItemPed.
bool montar_valores(fiscal::produto const& produto, grupo::prod& prod, core::result::stack& stack)
{
    prod.cProd = produto.get_codigo_produto();
    prod.cEAN = produto.get_codigo_de_barras();
    prod.xProd = produto.get_descricao();
    prod.NCM = produto.get_ncm();
    prod.CEST = produto.get_cest();
    prod.EXTIPI = produto.get_extipi();
    prod.CFOP = produto.get_cfop();
    prod.uCom = produto.get_unidade_comercial();
    prod.qCom = produto.get_quantidade_comercial();
    prod.vUnCom = produto.get_valor_unitario_comercial();
    prod.vProd = produto.get_valor_total_bruto();
    prod.cEANTrib = produto.get_codigo_de_barras_tributavel();
    prod.uTrib = produto.get_unidade_tributavel();
    auto const quantidade_tributavel = produto.get_quantidade_tributavel();
    if (!quantidade_tributavel) {
        return recusar<61>(stack, "null");
    }
    prod.qTrib = *quantidade_tributavel;
    prod.vUnTrib = produto.get_valor_unitario_tributavel();
    prod.vFrete = produto.get_valor_frete();
    prod.vSeg = produto.get_valor_seguro();
    prod.vDesc = produto.get_valor_desconto();
    prod.vOutro = produto.get_valor_despesas_acessorias();
    if (!mapear<25>(produto.get_indicador_item_compoe_valor_total(), indTot, prod.indTot, stack)) {
        return false;
    }
    prod.xPed = produto.get_pedido_ordem_de_compra();
    prod.nItemPed = produto.get_codigo_do_produto_ordem_de_compra();
    return true;
}

}  // namespace

bool montar_prod(fiscal::produto const& produto, grupo::prod& prod, core::result::stack& stack)
{
    for (fiscal::declaracao_importacao const& declaracao : produto.get_declaracao_importacao()) {
        if (!montar_DI(declaracao, prod.DI.emplace_back(), stack)) {
            return false;
        }
    }
    for (fiscal::grupo_exportacao const& exportacao : produto.get_grupo_exportacao()) {
        if (!montar_detExport(exportacao, prod.detExport.emplace_back(), stack)) {
            return false;
        }
    }
    if (!montar_valores(produto, prod, stack)) {
        return false;
    }
    for (fiscal::informacoes_rastreabilidade const& lote : produto.lista_informacoes_rastreabilidade()) {
        prod.rastro.push_back(montar_rastro(lote));
    }
    if (!montar_especifico(produto, prod.especifico, stack)) {
        return false;
    }
    prod.cBenef = produto.get_codigo_beneficio_fiscal_uf();
    return true;
}

bool montar_det(fiscal::produto const& produto, grupo::det& det, core::result::stack& stack)
{
    if (!montar_prod(produto, det.prod, stack) || !montar_imposto(produto, det.imposto, stack)) {
        return false;
    }
    montar_impostoDevol(produto, det.impostoDevol);
    det.infAdProd = produto.get_informacoes_adicionais();
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

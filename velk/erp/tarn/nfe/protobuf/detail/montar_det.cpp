// An item: the goods, the fuel, the taxes and what is given back.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

void montar_comb(mensagem::GrupoDetalhamentoCombustivel const& combustivel, grupo::comb& comb)
{
    comb.cProdANP = limitado<std::uint32_t>(combustivel.codigo_produto_anp());
    comb.descANP = combustivel.descricao_anp();
    if (combustivel.has_informacoes_glp()) {
        mensagem::InformacoesCombustivelGlp const& glp = combustivel.informacoes_glp();
        atribuir(glp.has_percentual_derivado_do_petroleo(), glp.percentual_derivado_do_petroleo(), comb.pGLP);
        atribuir(glp.has_percentual_gas_natural_nacional(), glp.percentual_gas_natural_nacional(), comb.pGNn);
        atribuir(glp.has_percentual_gas_natural_importado(), glp.percentual_gas_natural_importado(), comb.pGNi);
        atribuir(glp.has_valor_partida(), glp.valor_partida(), comb.vPart);
    }
    comb.CODIF = texto(combustivel.has_codif(), combustivel.codif());
    atribuir(combustivel.has_quantidade_faturada_temperatura_ambiente(),
             combustivel.quantidade_faturada_temperatura_ambiente(), comb.qTemp);
    comb.UFCons = combustivel.uf_consumo();
    if (combustivel.has_informacoes_cide()) {
        mensagem::InformacoesCideCombustiveis const& cide = combustivel.informacoes_cide();
        grupo::CIDE& CIDE = comb.CIDE.emplace();
        atribuir(cide.has_base_calculo(), cide.base_calculo(), CIDE.qBCProd);
        atribuir(cide.has_valor_aliquota(), cide.valor_aliquota(), CIDE.vAliqProd);
        atribuir(cide.has_valor_cide(), cide.valor_cide(), CIDE.vCIDE);
    }
    if (combustivel.has_encerrante()) {
        mensagem::EncerranteBombaCombustivel const& bomba = combustivel.encerrante();
        grupo::encerrante& encerrante = comb.encerrante.emplace();
        encerrante.nBico = limitado<std::uint16_t>(bomba.identificacao_bico());
        if (bomba.has_identificacao_bomba()) {
            encerrante.nBomba = limitado<std::uint16_t>(bomba.identificacao_bomba().value());
        }
        encerrante.nTanque = limitado<std::uint16_t>(bomba.identificacao_tanque());
        atribuir(bomba.has_valor_inicial(), bomba.valor_inicial(), encerrante.vEncIni);
        atribuir(bomba.has_valor_final(), bomba.valor_final(), encerrante.vEncFin);
    }
}

void montar_prod(mensagem::Produto const& produto, grupo::prod& prod)
{
    prod.cProd = produto.codigo_produto();
    prod.cEAN = produto.codigo_barras();
    prod.xProd = produto.descricao();
    prod.NCM = produto.ncm();
    if (produto.has_cest()) {
        prod.CEST = produto.cest().value();
    }
    prod.cBenef = texto(produto.has_codigo_beneficio_fiscal(), produto.codigo_beneficio_fiscal());
    prod.CFOP = limitado<std::uint16_t>(produto.cfop());
    prod.uCom = produto.unidade_comercial();
    atribuir(produto.has_quantidade_comercial(), produto.quantidade_comercial(), prod.qCom);
    atribuir(produto.has_valor_unitario_comercial(), produto.valor_unitario_comercial(), prod.vUnCom);
    atribuir(produto.has_valor_total_bruto(), produto.valor_total_bruto(), prod.vProd);
    prod.cEANTrib = produto.codigo_barras_tributavel();
    prod.uTrib = produto.unidade_tributavel();
    atribuir(produto.has_quantidade_tributavel(), produto.quantidade_tributavel(), prod.qTrib);
    atribuir(produto.has_valor_unitario_tributavel(), produto.valor_unitario_tributavel(), prod.vUnTrib);
    atribuir(produto.has_valor_frete(), produto.valor_frete(), prod.vFrete);
    atribuir(produto.has_valor_desconto(), produto.valor_desconto(), prod.vDesc);
    atribuir(produto.has_valor_despesas_acessorias(), produto.valor_despesas_acessorias(), prod.vOutro);
    int const indTot = produto.indicador_item_compoe_total();
    prod.indTot = indTot < 0 ? 0 : limitado<std::uint16_t>(static_cast<unsigned int>(indTot));
    prod.xPed = texto(produto.has_pedido_ordem_de_compra(), produto.pedido_ordem_de_compra());
    if (produto.has_codigo_produto_ordem_de_compra()) {
        prod.nItemPed = produto.codigo_produto_ordem_de_compra().value();
    }
    if (produto.has_grupo_detalhamento_combustivel()) {
        montar_comb(produto.grupo_detalhamento_combustivel(), prod.especifico.emplace().emplace<grupo::comb>());
    }
}

bool montar_imposto(mensagem::Produto const& produto, grupo::imposto& imposto, core::result::stack& stack)
{
    atribuir(produto.has_valor_total_tributos(), produto.valor_total_tributos(), imposto.vTotTrib);
    return montar_ICMS(produto, imposto.ICMS_ou_ISSQN.emplace<grupo::ICMS>(), stack) &&
           montar_PIS(produto.tributacao_pis_cofins(), imposto.PIS, stack) &&
           montar_COFINS(produto.tributacao_pis_cofins(), imposto.COFINS, stack);
}

}  // namespace

bool montar_det(mensagem::Produto const& produto, grupo::det& det, core::result::stack& stack)
{
    montar_prod(produto, det.prod);
    if (!montar_imposto(produto, det.imposto, stack)) {
        return false;
    }
    if (produto.has_tributos_devolvidos()) {
        mensagem::TributosDevolvidos const& devolvidos = produto.tributos_devolvidos();
        grupo::impostoDevol& devolucao = det.impostoDevol.emplace();
        atribuir(devolvidos.has_percentual_devolvido(), devolvidos.percentual_devolvido(), devolucao.pDevol);
        atribuir(devolvidos.ipi_devolvido().has_valor_ipi_devolvido(), devolvidos.ipi_devolvido().valor_ipi_devolvido(),
                 devolucao.IPI.vIPIDevol);
    }
    det.infAdProd = texto(produto.has_informacoes_adicionais(), produto.informacoes_adicionais());
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

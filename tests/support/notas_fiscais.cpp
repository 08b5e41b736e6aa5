#include <support/notas_fiscais.hpp>

#include <support/partes_de_notas.hpp>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace velk::test {

using namespace erp::fiscal;

core::decimal valor(std::string_view texto)
{
    core::decimal resultado;
    if (!core::decimal::parse(texto, resultado)) {
        std::fprintf(stderr, "valor(\"%.*s\"): not a decimal\n", static_cast<int>(texto.size()), texto.data());
        std::abort();
    }
    return resultado;
}

core::datetime horario_brasilia(int ano, unsigned mes, unsigned dia, int hora, unsigned minuto, unsigned segundo)
{
    return core::datetime(core::date(dia, mes, ano), core::time(hora, minuto, segundo, 0), -180);
}

namespace {

// A product of the bakery: Simples Nacional without credit.
produto produto_nfce(char const* codigo, char const* gtin, char const* descricao, std::uint32_t ncm, std::uint16_t cfop,
                     char const* unidade, char const* quantidade, char const* preco, char const* total,
                     char const* tributos)
{
    return item(codigo, gtin, descricao, ncm, cfop, unidade, quantidade, preco, total)
        .set_valor_total_tributos(valor(tributos))
        .set_tributacao(
            grupo_tributacao_icms_102().set_origem_mercadoria(origem_mercadoria::nacional).set_csosn(csosn::csosn_102))
        .set_tributacao_pis_cofins(pis_cofins_simples());
}

}  // namespace

nota_fiscal nota_nfce_simples()
{
    emitente const padaria =
        empresa("27164983000158", "Padaria e Mercearia Vila Madalena Ltda", "Empório Vila Madalena",
                local("Rua Fradique Coutinho", "1126", "Vila Madalena", 3550308, "São Paulo", "SP", 5416001),
                "1138151234", "147293584118", regime_tributario::simples_nacional);

    // 2 x 18.90 + 0.350 kg x 16.90 (5.915, billed 5.92) + 9.49 = 53.21
    produto cafe = produto_nfce("000123", "7891023450018", "CAFE TORRADO E MOIDO TRADICIONAL 500G", 9012100, 5102, "UN",
                                "2", "18.90", "37.80", "7.49");
    produto pao =
        produto_nfce("000001", "SEM GTIN", "PAO FRANCES", 19059090, 5102, "KG", "0.350", "16.90", "5.92", "0.98");
    produto refrigerante = produto_nfce("000457", "7894567002217", "REFRIGERANTE COLA PET 2L", 22021000, 5405, "UN",
                                        "1", "9.49", "9.49", "3.12");
    // Soft drinks bear ICMS by substitution, charged at the manufacturer.
    refrigerante.set_cest(301100).set_tributacao(
        grupo_tributacao_icms_500().set_origem_mercadoria(origem_mercadoria::nacional).set_csosn(csosn::csosn_500));

    return nota({35, 65, 48213, 61938274, 2024, 5, 14, 18, 42, 3550308, "VENDA"}, padaria)
        .set_data_emissao(horario_brasilia(2024, 5, 14, 18, 42, 37))
        .set_produtos({cafe, pao, refrigerante})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_valor_total_dos_produtos_da_nota(valor("53.21"))
                                                      .set_total_da_nota(valor("53.21"))
                                                      .set_total_dos_tributos_do_item(valor("11.59"))))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::dinheiro, "60.00")}, "6.79"))
        .set_informacoes_adicionais(
            informacoes_adicionais().set_informacoes_complementares("Tributos aproximados: R$ 11,59 (Fonte: IBPT)"));
}

namespace {

// The share of ICMS of the state of destination on a sale to a consumer there
// who pays no ICMS: Rio de Janeiro charges 20% and 2% for its fund against
// poverty; all of the difference goes to it.
tributacao_icms_uf_destino partilha_rio_de_janeiro(char const* base, char const* interestadual, char const* fcp,
                                                   char const* destino)
{
    return tributacao_icms_uf_destino()
        .set_valor_bc(valor(base))
        .set_valor_bc_fcp(valor(base))
        .set_percentual_fundo_combate_pobreza(valor("2.00"))
        .set_aliquota_interna(valor("20.00"))
        .set_aliquota_interestadual(valor(interestadual))
        .set_percentual_partilha(valor("100.00"))
        .set_valor_icms_fundo_combate_pobreza(valor(fcp))
        .set_valor_icms_uf_destino(valor(destino))
        .set_valor_icms_uf_remetente(valor("0.00"));
}

// The distributor's items: the hospital's order 4500012345, item by item.
produto do_pedido(produto item, unsigned numero_item)
{
    return item.set_pedido_ordem_de_compra("4500012345").set_codigo_do_produto_ordem_de_compra(numero_item);
}

produto dipirona()
{
    return do_pedido(item("DIP500INJ100", "7891058300128", "DIPIRONA SODICA 500MG/ML SOL INJ CX 100 AMP 2ML",
                          30049099, 6108, "CX", "10", "185.00", "1850.00"),
                     10)
        .set_lista_informacoes_rastreabilidade({informacoes_rastreabilidade()
                                                    .set_numero_lote("DP24051")
                                                    .set_quantidade_de_produto_no_lote(valor("10"))
                                                    .set_data_fabricacao(core::date(10, 3, 2024))
                                                    .set_data_validade(core::date(9, 3, 2026))})
        .set_medicamentos(std::vector<medicamento>{
            medicamento().set_codigo_anvisa("1058300020015").set_preco_maximo_consumidor(valor("412.35"))})
        .set_tributacao(icms_00("1850.00", "12.00", "222.00", origem_mercadoria::nacional))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_04))
        .set_tributacao_icms_uf_destino(partilha_rio_de_janeiro("1850.00", "12.00", "37.00", "148.00"));
}

produto oximetro_importado()
{
    declaracao_importacao const di =
        declaracao_importacao()
            .set_numero_documento_importacao("2408731562")
            .set_data_registro(core::date(2, 4, 2024))
            .set_local_desembaraco("PORTO DE SANTOS")
            .set_uf_desembaraco("SP")
            .set_data_desembaraco(core::date(5, 4, 2024))
            .set_via_transporte(via_transporte::maritima)
            .set_valor_afrmm(valor("125.40"))
            .set_forma_intermedio_importacao(forma_intermedio_importacao::conta_propria)
            .set_codigo_exportador("SZMED0042")
            .set_adicoes(
                {adicao().set_numero_adicao(1).set_numero_sequencial_da_adicao(1).set_codigo_fabricante_estrangeiro(
                    "SZMED0042")});
    return do_pedido(item("OXI-PM60", "6953187044029", "OXIMETRO DE PULSO PORTATIL PM60", 90181980, 6108, "UN", "5",
                          "249.00", "1245.00"),
                     20)
        .set_declaracao_importacao({di})
        // Imported goods travel between states at 4%.
        .set_tributacao(icms_00("1245.00", "4.00", "49.80", origem_mercadoria::estrangeira_importacao_direta))
        .set_tributacao_pis_cofins(pis_cofins_aliquota("1245.00", "20.54", "1.65", "94.62", "7.60"))
        .set_tributacao_icms_uf_destino(partilha_rio_de_janeiro("1245.00", "4.00", "24.90", "199.20"));
}

// Diesel for the hospital's generators; its ICMS was charged at the refinery.
produto diesel()
{
    return do_pedido(item("DSL-S10", "SEM GTIN", "OLEO DIESEL B S10 ADITIVADO", 27101921, 6656, "L", "500", "6.189",
                          "3094.50"),
                     30)
        .set_combustiveis(combustiveis()
                              .set_codigo_produto_anp(820101034)
                              .set_descricao_produto_anp("OLEO DIESEL B S10 - COMUM")
                              .set_uf_consumo("RJ"))
        .set_tributacao(
            grupo_tributacao_icms_60().set_origem_mercadoria(origem_mercadoria::nacional).set_cst(cst_icms::cst_60))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_04));
}

}  // namespace

nota_fiscal nota_nfe_completa()
{
    endereco sede = local("Rua Barão de Jaguara", "1481", "Centro", 3509502, "Campinas", "SP", 13015002);
    emitente distribuidora =
        empresa("08931527000141", "Distribuidora Paulista de Produtos Hospitalares Ltda", "DistriMed Campinas",
                sede.set_complemento("Sala 12"), "1932345678", "244680170119", regime_tributario::regime_normal);
    distribuidora.set_inscricao_municipal("1392817").set_cnae(4644301);

    destinatario const hospital =
        destinatario()
            .set_cnpj("33587164000116")
            .set_razao_social("Hospital Santa Luzia de Copacabana S.A.")
            .set_endereco(local("Rua Barata Ribeiro", "370", "Copacabana", 3304557, "Rio de Janeiro", "RJ", 22040002))
            .set_telefone("2125551234")
            .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte)
            .set_email("compras@hsantaluzia.com.br");

    local_entrega const almoxarifado = local_entrega()
                                           .set_cnpj("33587164000205")
                                           .set_endereco(endereco()
                                                             .set_logradouro("Rodovia Washington Luiz")
                                                             .set_numero_endereco("3300")
                                                             .set_complemento("Galpão 4")
                                                             .set_bairro("Jardim Primavera")
                                                             .set_ibge_municipio(3301702)
                                                             .set_nome_municipio("Duque de Caxias")
                                                             .set_uf("RJ"));

    total_nfe_icms const totais = total_nfe_icms()
                                      .set_total_base_normal(valor("3095.00"))
                                      .set_total_icms_normal(valor("271.80"))
                                      .set_total_icms_fcp(valor("61.90"))
                                      .set_total_icms_destino(valor("347.20"))
                                      .set_total_icms_remetente(valor("0.00"))
                                      .set_valor_total_dos_produtos_da_nota(valor("6189.50"))
                                      .set_total_imposto_pis(valor("20.54"))
                                      .set_total_imposto_confins(valor("94.62"))
                                      .set_total_da_nota(valor("6189.50"));

    informacoes_transporte const transporte =
        informacoes_transporte()
            .set_modalidade_frete(modalidade_frete::por_conta_remetente)
            .set_transportador(transportador()
                                   .set_documento(erp::cnpj(46291385000194))
                                   .set_razao_social("Transportes Rodovia Sul Ltda")
                                   .set_ie("618370427118")
                                   .set_logradouro("Av. John Boyd Dunlop, 3900")
                                   .set_municipio("Campinas")
                                   .set_uf("SP"))
            .set_veiculo(veiculo_transporte().set_placa("BRA2E19").set_uf("SP").set_rntc("045123987"))
            .set_volumes({volume()
                              .set_quantidade(15)
                              .set_especie("CAIXA")
                              .set_marca("DISTRIMED")
                              .set_peso_liquido(valor("38.500"))
                              .set_peso_bruto(valor("41.200")),
                          volume()
                              .set_quantidade(1)
                              .set_especie("TANQUE IBC")
                              .set_peso_liquido(valor("422.500"))
                              .set_peso_bruto(valor("481.000"))});

    // Sold to another state, to a hospital that consumes what it buys.
    return nota({35, 55, 721, 30417625, 2024, 5, 14, 9, 15, 3509502, "VENDA DE MERCADORIA ADQUIRIDA DE TERCEIROS"},
                distribuidora)
        .set_data_saida_entrada(horario_brasilia(2024, 5, 14, 14, 0, 0))
        .set_indicador_operacao(destino_operacao::interestadual)
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_nfe_referenciadas({nfe_referenciada().set_chave_nfe("35240408931527000141550010000006981715302842")})
        .set_nf_referenciadas({nf_referenciada()
                                   .set_uf_emitente(35)
                                   .set_ano_mes_emissao(1911)
                                   .set_cnpj("62084519000152")
                                   .set_modelo(1)
                                   .set_serie("1")
                                   .set_numero(15837)})
        .set_destinatario(hospital)
        .set_local_entrega(almoxarifado)
        .set_autorizacoes_acesso_xml(
            {autorizacao_acesso_xml().set_cpf("28461935764"), autorizacao_acesso_xml().set_cnpj("46291385000194")})
        .set_produtos({dipirona(), oximetro_importado(), diesel()})
        .set_total_nfe(total_nfe().set_total_icms(totais))
        .set_informacoes_transporte(transporte)
        .set_cobranca(fatura("721", "6189.50",
                             {parcela("001", core::date(13, 6, 2024), "3094.75"),
                              parcela("002", core::date(13, 7, 2024), "3094.75")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::boleto_bancario, "6189.50")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "Pedido de compra 4500012345. Entregar no almoxarifado central, de segunda a sexta, das 8h às 16h."));
}

}  // namespace velk::test

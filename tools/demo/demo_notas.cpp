#include "demo_notas.hpp"

#include <velk/core/fatal.hpp>

#include <string_view>

namespace velk::demo {

namespace {

using namespace erp::fiscal;

core::decimal valor(std::string_view texto)
{
    core::decimal resultado;
    if (!core::decimal::parse(texto, resultado)) {
        core::fatal_exit("demo note: not a decimal");
    }
    return resultado;
}

core::datetime brasilia(int ano, unsigned mes, unsigned dia, int hora, unsigned minuto)
{
    return core::datetime(core::date(dia, mes, ano), core::time(hora, minuto, 0, 0), -180);
}

// The holder of the demo certificate, a shop in Pinheiros.
emitente loja()
{
    return emitente()
        .set_cnpj("12345678000195")
        .set_razao_social("EMPRESA DEMONSTRACAO LTDA")
        .set_nome_fantasia("Loja Demonstração")
        .set_endereco(endereco()
                          .set_logradouro("Rua dos Pinheiros")
                          .set_numero_endereco("870")
                          .set_bairro("Pinheiros")
                          .set_ibge_municipio(3550308)
                          .set_nome_municipio("São Paulo")
                          .set_uf("SP")
                          .set_cep(5422001)
                          .set_ibge_pais(1058)
                          .set_pais("Brasil"))
        .set_telefone("1130321234")
        .set_ie("135792465809")
        .set_regime_fiscal(regime_tributario::regime_normal);
}

produto item(char const* codigo, char const* gtin, char const* descricao, std::uint32_t ncm, std::uint16_t cfop,
             char const* quantidade, char const* preco, char const* total)
{
    return produto()
        .set_codigo_produto(codigo)
        .set_codigo_de_barras(gtin)
        .set_descricao(descricao)
        .set_ncm(ncm)
        .set_cfop(cfop)
        .set_unidade_comercial("UN")
        .set_quantidade_comercial(valor(quantidade))
        .set_valor_unitario_comercial(valor(preco))
        .set_valor_total_bruto(valor(total))
        .set_codigo_de_barras_tributavel(gtin)
        .set_unidade_tributavel("UN")
        .set_quantidade_tributavel(valor(quantidade))
        .set_valor_unitario_tributavel(valor(preco))
        .set_indicador_item_compoe_valor_total(indicador_total::compoe);
}

grupo_tributacao_icms_00 icms_18(char const* base, char const* icms)
{
    return grupo_tributacao_icms_00()
        .set_origem_mercadoria(origem_mercadoria::nacional)
        .set_cst(cst_icms::cst_00)
        .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
        .set_valor_bc_icms(valor(base))
        .set_aliquota_icms(valor("18.00"))
        .set_valor_icms(valor(icms));
}

// PIS and COFINS of a company under the real-profit regime.
tributacao_pis_cofins lucro_real(char const* base, char const* pis, char const* cofins)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_aliquota()
                                      .set_cst_pis(cst_pis_cofins_aliquota::cst_01)
                                      .set_valor_bc_pis(valor(base))
                                      .set_percentual_aliquota_pis(valor("1.65"))
                                      .set_valor_pis(valor(pis)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_aliquota()
                                         .set_cst_cofins(cst_pis_cofins_aliquota::cst_01)
                                         .set_valor_bc_cofins(valor(base))
                                         .set_percentual_aliquota_cofins(valor("7.60"))
                                         .set_valor_cofins(valor(cofins)));
}

nota_fiscal cabecalho(char const* chave, std::uint32_t codigo, char const* modelo, std::uint32_t numero)
{
    return nota_fiscal()
        .set_chave_44_digitos(chave)
        .set_codigo_nf(codigo)
        .set_natureza_operacao("VENDA DE MERCADORIA")
        .set_modelo_emissao(modelo)
        .set_serie("1")
        .set_numero(numero)
        .set_tipo_operacao(tipo_operacao::saida)
        .set_indicador_operacao(destino_operacao::interna)
        .set_ibge_municipio_emissao(3550308)
        .set_tipo_emissao(tipo_emissao::normal)
        .set_indicador_ambiente(indicador_ambiente::homologacao)
        .set_indicador_finalidade_emissao(finalidade_emissao::normal)
        .set_indicador_intermediador(indicador_intermediador::sem_intermediador)
        .set_emitente(loja())
        .set_informacoes_responsavel_tecnico(informacoes_responsavel_tecnico()
                                                 .set_cnpj("12345678000195")
                                                 .set_nome_pessoa_contatada("Equipe Fiscal")
                                                 .set_email("fiscal@demonstracao.example.com.br")
                                                 .set_telefone("1130321234"));
}

}  // namespace

nota_fiscal demo_nfce()
{
    // 2 x 24.90 + 1 x 15.00 = 64.80; 18% ICMS on the kettle, the batteries
    // under substitution charged before.
    produto chaleira =
        item("CH-110", "7891234567895", "CHALEIRA ELETRICA INOX 1,7L", 85161000, 5102, "2", "24.90", "49.80");
    chaleira.set_valor_total_tributos(valor("16.43"))
        .set_tributacao(icms_18("49.80", "8.96"))
        .set_tributacao_pis_cofins(lucro_real("49.80", "0.82", "3.78"));
    produto pilhas = item("PL-AA4", "SEM GTIN", "PILHA ALCALINA AA CARTELA C/4", 85061019, 5405, "1", "15.00", "15.00");
    pilhas.set_cest(1000100)
        .set_valor_total_tributos(valor("4.95"))
        .set_tributacao(
            grupo_tributacao_icms_60().set_origem_mercadoria(origem_mercadoria::nacional).set_cst(cst_icms::cst_60))
        .set_tributacao_pis_cofins(lucro_real("15.00", "0.25", "1.14"));

    return cabecalho("35240912345678000195650010000000011102938476", 10293847, "65", 1)
        .set_data_emissao(brasilia(2024, 9, 16, 10, 12))
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_indicador_presenca(indicador_presenca::presencial)
        .set_produtos({chaleira, pilhas})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("49.80"))
                                                      .set_total_icms_normal(valor("8.96"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("64.80"))
                                                      .set_total_imposto_pis(valor("1.07"))
                                                      .set_total_imposto_confins(valor("4.92"))
                                                      .set_total_da_nota(valor("64.80"))
                                                      .set_total_dos_tributos_do_item(valor("21.38"))))
        .set_informacoes_transporte(informacoes_transporte().set_modalidade_frete(modalidade_frete::sem_transporte))
        .set_informacoes_pagamento(
            informacoes_pagamento()
                .set_detalhes_pagamento(
                    {detalhes_pagamento()
                         .set_meio_pagamento(meio_pagamento::cartao_debito)
                         .set_valor_pagamento(valor("40.00"))
                         .set_transacao_tef(transacao_tef()
                                                .set_tipo_integracao(tipo_integracao_pagamento::integrado)
                                                .set_cnpj("66554433000105")
                                                .set_bandeira(bandeira_cartao::elo)
                                                .set_numero_autorizacao("551208")),
                     detalhes_pagamento()
                         .set_meio_pagamento(meio_pagamento::dinheiro)
                         .set_valor_pagamento(valor("30.00"))})
                .set_valor_total_troco(valor("5.20")))
        .set_informacoes_adicionais(
            informacoes_adicionais().set_informacoes_complementares("Tributos aproximados: R$ 21,38 (Fonte: IBPT)."));
}

nota_fiscal demo_nfce_contingencia()
{
    return demo_nfce()
        .set_chave_44_digitos("35240912345678000195650010000000029102938487")
        .set_codigo_nf(10293848)
        .set_numero(2)
        .set_data_emissao(brasilia(2024, 9, 16, 10, 47))
        .set_tipo_emissao(tipo_emissao::contingencia_offline_nfce)
        .set_data_contingencia(brasilia(2024, 9, 16, 10, 40))
        .set_justificativa_entrada_contingencia("SEM CONEXAO COM A SEFAZ AUTORIZADORA DE SAO PAULO")
        .set_destinatario(destinatario()
                              .set_cpf("12345678909")
                              .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte));
}

nota_fiscal demo_nfe()
{
    // 10 kettles at 24.90 with IPI at 6.5%; ICMS by substitution of the
    // batteries at an added value margin of 51.81%.
    produto chaleira =
        item("CH-110", "7891234567895", "CHALEIRA ELETRICA INOX 1,7L", 85161000, 5102, "10", "24.90", "249.00");
    chaleira.set_tributacao(icms_18("249.00", "44.82"))
        .set_tributacao_ipi(
            tributacao_ipi()
                .set_classe_enquadramento_ipi("999")
                .set_cst_ipi(cst_ipi::cst_50)
                .set_tributacao_ipi_calculo_aliquota(
                    tributacao_ipi_calculo_aliquota().set_valor_bc_ipi(valor("249.00")).set_aliquota_ipi(valor("6.50")))
                .set_valor_ipi(valor("16.19")))
        .set_tributacao_pis_cofins(lucro_real("249.00", "4.11", "18.92"));
    produto pilhas =
        item("PL-AA4", "SEM GTIN", "PILHA ALCALINA AA CARTELA C/4", 85061019, 5403, "20", "12.00", "240.00");
    pilhas.set_cest(1000100)
        .set_tributacao(grupo_tributacao_icms_10()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_10)
                            .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                            .set_valor_bc_icms(valor("240.00"))
                            .set_aliquota_icms(valor("18.00"))
                            .set_valor_icms(valor("43.20"))
                            .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                            .set_percentual_margem_valor_adicionado_icms_st(valor("51.81"))
                            .set_valor_bc_icms_st(valor("364.34"))
                            .set_aliquota_icms_st(valor("18.00"))
                            .set_valor_icms_st(valor("22.38")))
        .set_tributacao_pis_cofins(lucro_real("240.00", "3.96", "18.24"));

    return cabecalho("35240912345678000195550010000000021564738294", 56473829, "55", 2)
        .set_data_emissao(brasilia(2024, 9, 16, 14, 30))
        .set_operacao_consumidor_final(consumidor_final::nao)
        .set_indicador_presenca(indicador_presenca::nao_presencial_outros)
        .set_destinatario(destinatario()
                              .set_cnpj("66554433000105")
                              .set_razao_social("COMERCIO DE UTILIDADES CAMPINAS LTDA")
                              .set_endereco(endereco()
                                                .set_logradouro("Avenida Francisco Glicério")
                                                .set_numero_endereco("1000")
                                                .set_bairro("Centro")
                                                .set_ibge_municipio(3509502)
                                                .set_nome_municipio("Campinas")
                                                .set_uf("SP")
                                                .set_cep(13012000)
                                                .set_ibge_pais(1058)
                                                .set_pais("Brasil"))
                              .set_indicador_de_ie(indicador_ie_destinatario::contribuinte_isento))
        .set_produtos({chaleira, pilhas})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("489.00"))
                                                      .set_total_icms_normal(valor("88.02"))
                                                      .set_total_base_st(valor("364.34"))
                                                      .set_total_retido(valor("22.38"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("489.00"))
                                                      .set_total_ipi(valor("16.19"))
                                                      .set_total_imposto_pis(valor("8.07"))
                                                      .set_total_imposto_confins(valor("37.16"))
                                                      .set_total_da_nota(valor("527.57"))))
        .set_informacoes_transporte(
            informacoes_transporte()
                .set_modalidade_frete(modalidade_frete::por_conta_remetente)
                .set_transportador(transportador()
                                       .set_documento(erp::cpf(98765432100))
                                       .set_razao_social("Transportes Demonstração")
                                       .set_municipio("São Paulo")
                                       .set_uf("SP"))
                .set_volumes({volume().set_quantidade(3).set_especie("CAIXA").set_peso_bruto(valor("18.400"))}))
        .set_cobranca(cobranca()
                          .set_numero_fatura("2")
                          .set_valor_original_fatura(valor("527.57"))
                          .set_valor_liquido(valor("527.57"))
                          .set_duplicatas({duplicata()
                                               .set_numero_duplicata("001")
                                               .set_data_vencimento(core::date(16, 10, 2024))
                                               .set_valor_duplicata(valor("263.79")),
                                           duplicata()
                                               .set_numero_duplicata("002")
                                               .set_data_vencimento(core::date(15, 11, 2024))
                                               .set_valor_duplicata(valor("263.78"))}))
        .set_informacoes_pagamento(informacoes_pagamento().set_detalhes_pagamento(
            {detalhes_pagamento()
                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)
                 .set_meio_pagamento(meio_pagamento::boleto_bancario)
                 .set_valor_pagamento(valor("527.57"))}));
}

}  // namespace velk::demo

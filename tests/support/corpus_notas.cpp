#include <support/corpus_notas.hpp>

#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>

namespace velk::test {

using namespace erp::fiscal;

namespace {

// The parts every note of the corpus shares.

endereco exterior(char const* logradouro, char const* numero, char const* bairro, std::uint16_t pais,
                  char const* nome_pais)
{
    return endereco()
        .set_logradouro(logradouro)
        .set_numero_endereco(numero)
        .set_bairro(bairro)
        .set_ibge_municipio(9999999)
        .set_nome_municipio("EXTERIOR")
        .set_uf("EX")
        .set_ibge_pais(pais)
        .set_pais(nome_pais);
}

// Lucro real: 1.65% and 7.6%; lucro presumido: 0.65% and 3%.
tributacao_pis_cofins lucro_real(char const* base, char const* pis, char const* cofins)
{
    return pis_cofins_aliquota(base, pis, "1.65", cofins, "7.60");
}

tributacao_pis_cofins lucro_presumido(char const* base, char const* pis, char const* cofins)
{
    return pis_cofins_aliquota(base, pis, "0.65", cofins, "3.00");
}

// Caxias do Sul (RS): an auto-parts and machine maker sells inside the state
// to a hardware wholesaler. Brake pads under ICMS by substitution with IPI at
// 5%; welding machines on a reduced base with the relieved ICMS, IPI at zero
// rate. Billed in two instalments; an independent trucker carries the goods.
nota_fiscal nfe_rs_industria()
{
    emitente const metalurgica =
        empresa("92615847000107", "Metalúrgica Serra Gaúcha Ltda", "Serra Gaúcha Autopeças",
                local("Rua Os Dezoito do Forte", "2366", "São Pelegrino", 4305108, "Caxias do Sul", "RS", 95020472),
                "5432145500", "0960284710", regime_tributario::regime_normal);

    produto pastilhas = item("PF-2231", "7896153001185", "JOGO DE PASTILHAS DE FREIO DIANTEIRO", 87083090, 5401, "JG",
                             "20", "85.00", "1700.00");
    pastilhas.set_cest(107300)
        .set_tributacao(grupo_tributacao_icms_10()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_10)
                            .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                            .set_valor_bc_icms(valor("1700.00"))
                            .set_aliquota_icms(valor("17.00"))
                            .set_valor_icms(valor("289.00"))
                            .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                            .set_percentual_margem_valor_adicionado_icms_st(valor("71.78"))
                            .set_valor_bc_icms_st(valor("3066.27"))
                            .set_aliquota_icms_st(valor("17.00"))
                            .set_valor_icms_st(valor("232.27")))
        .set_tributacao_ipi(tributacao_ipi()
                                .set_classe_enquadramento_ipi("999")
                                .set_cst_ipi(cst_ipi::cst_50)
                                .set_tributacao_ipi_calculo_aliquota(tributacao_ipi_calculo_aliquota()
                                                                         .set_valor_bc_ipi(valor("1700.00"))
                                                                         .set_aliquota_ipi(valor("5.00")))
                                .set_valor_ipi(valor("85.00")))
        .set_tributacao_pis_cofins(lucro_real("1700.00", "28.05", "129.20"));

    // Machines of the agreement 52/91: the base is cut so that 17% becomes
    // 8.8%; what is not charged is reported as relieved.
    produto solda = item("MS-250I", "7896024137104", "MAQUINA DE SOLDA INVERSORA 250A", 85153100, 5101, "UN", "2",
                         "2450.00", "4900.00");
    solda
        .set_tributacao(grupo_tributacao_icms_20()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_20)
                            .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                            .set_percentual_reducao_bc_icms(valor("48.2353"))
                            .set_valor_bc_icms(valor("2536.47"))
                            .set_aliquota_icms(valor("17.00"))
                            .set_valor_icms(valor("431.20"))
                            .set_grupo_icms_desonerado(grupo_icms_desonerado()
                                                           .set_valor_icms_desonerado(valor("401.80"))
                                                           .set_motivo(motivo_desoneracao_icms::outros)))
        .set_tributacao_ipi(tributacao_ipi().set_classe_enquadramento_ipi("999").set_cst_ipi(cst_ipi::cst_51))
        .set_tributacao_pis_cofins(lucro_real("4900.00", "80.85", "372.40"));

    return nota({43, 55, 318, 48201736, 2024, 5, 20, 10, 5, 4305108, "VENDA DE PRODUCAO DO ESTABELECIMENTO"},
                metalurgica)
        .set_data_saida_entrada(horario_brasilia(2024, 5, 20, 15, 30, 0))
        .set_destinatario(contribuinte(
            "04187392000109", "Comercial de Ferragens Pampa Ltda",
            local("Avenida Assis Brasil", "3970", "São Sebastião", 4314902, "Porto Alegre", "RS", 91060000),
            "1240355677"))
        .set_produtos({pastilhas, solda})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("4236.47"))
                                                      .set_total_icms_normal(valor("720.20"))
                                                      .set_total_desonerado(valor("401.80"))
                                                      .set_total_base_st(valor("3066.27"))
                                                      .set_total_retido(valor("232.27"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("6600.00"))
                                                      .set_total_ipi(valor("85.00"))
                                                      .set_total_imposto_pis(valor("108.90"))
                                                      .set_total_imposto_confins(valor("501.60"))
                                                      .set_total_da_nota(valor("6917.27"))))
        .set_informacoes_transporte(
            informacoes_transporte()
                .set_modalidade_frete(modalidade_frete::por_conta_remetente)
                .set_transportador(transportador()
                                       .set_documento(erp::cpf(38417295682))
                                       .set_razao_social("Jorge Luis Bertolini")
                                       .set_logradouro("Rua Sinimbu, 1840")
                                       .set_municipio("Caxias do Sul")
                                       .set_uf("RS"))
                .set_veiculo(veiculo_transporte().set_placa("IXR4E27").set_uf("RS").set_rntc("012345678"))
                .set_volumes({volume()
                                  .set_quantidade(22)
                                  .set_especie("CAIXA")
                                  .set_marca("SERRA")
                                  .set_numeracao("1 A 22")
                                  .set_peso_liquido(valor("310.000"))
                                  .set_peso_bruto(valor("342.500"))}))
        .set_cobranca(fatura(
            "000318", "6917.27",
            {parcela("001", core::date(19, 6, 2024), "3458.64"), parcela("002", core::date(19, 7, 2024), "3458.63")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::boleto_bancario, "6917.27")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}));
}

// Curitiba (PR): a food and household wholesaler sells to a supermarket in
// Ponta Grossa. Paper towels with the partial deferral of Paraná, mineral
// water exempt with substitution, biscuits on a reduced base with
// substitution, a free gift taxed under "other" and eggs, exempt.
nota_fiscal nfe_pr_atacado()
{
    emitente const atacadista =
        empresa("73510468000108", "Atacadista Curitibano de Alimentos e Utilidades Ltda", "Atacado Curitibano",
                local("Rua Anne Frank", "5800", "Boqueirão", 4106902, "Curitiba", "PR", 81650020), "4133761200",
                "9054132791", regime_tributario::regime_normal);

    produto papel = item("PT-2R", "7894000124056", "PAPEL TOALHA FOLHA DUPLA 2 ROLOS", 48182000, 5102, "PCT", "120",
                         "6.50", "780.00");
    papel
        .set_tributacao(grupo_tributacao_icms_51()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_51)
                            .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                            .set_valor_bc_icms(valor("780.00"))
                            .set_aliquota_icms(valor("18.00"))
                            .set_valor_icms_operacao(valor("140.40"))
                            .set_percentual_diferimento(valor("33.33"))
                            .set_valor_icms_diferido(valor("46.80"))
                            .set_valor_icms(valor("93.60")))
        .set_tributacao_pis_cofins(lucro_real("780.00", "12.87", "59.28"));

    produto agua = item("AGM-20L", "7897505010022", "AGUA MINERAL NATURAL GALAO 20L", 22011000, 5403, "UN", "50",
                        "9.00", "450.00");
    agua.set_cest(300700)
        .set_tributacao(grupo_tributacao_icms_30()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_30)
                            .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                            .set_percentual_margem_valor_adicionado_icms_st(valor("40.00"))
                            .set_valor_bc_icms_st(valor("630.00"))
                            .set_aliquota_icms_st(valor("18.00"))
                            .set_valor_icms_st(valor("113.40"))
                            .set_grupo_icms_desonerado(grupo_icms_desonerado()
                                                           .set_valor_icms_desonerado(valor("81.00"))
                                                           .set_motivo(motivo_desoneracao_icms::outros)))
        .set_tributacao_pis_cofins(lucro_real("450.00", "7.43", "34.20"));

    produto biscoito = item("BR-130", "7896081010112", "BISCOITO RECHEADO CHOCOLATE 130G", 19053100, 5403, "UN", "240",
                            "2.10", "504.00");
    biscoito.set_cest(1705700)
        .set_tributacao(grupo_tributacao_icms_70()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_70)
                            .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                            .set_percentual_reducao_bc_icms(valor("33.33"))
                            .set_valor_bc_icms(valor("336.02"))
                            .set_aliquota_icms(valor("18.00"))
                            .set_valor_icms(valor("60.48"))
                            .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                            .set_percentual_margem_valor_adicionado_icms_st(valor("35.00"))
                            .set_percentual_reducao_bc_icms_st(valor("33.33"))
                            .set_valor_bc_icms_st(valor("453.62"))
                            .set_aliquota_icms_st(valor("18.00"))
                            .set_valor_icms_st(valor("21.17")))
        .set_tributacao_pis_cofins(lucro_real("504.00", "8.32", "38.30"));

    // A free gift sent with the goods, given back in full as a discount.
    produto brinde =
        item("BRD-COPO", "SEM GTIN", "COPO TERMICO PROMOCIONAL 500ML", 96170010, 5910, "UN", "10", "12.00", "120.00");
    brinde.set_valor_desconto(valor("120.00"))
        .set_tributacao(
            grupo_tributacao_icms_90()
                .set_origem_mercadoria(origem_mercadoria::nacional)
                .set_cst(cst_icms::cst_90)
                .set_tributacao_normal_icms_90(tributacao_normal_icms_90()
                                                   .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                                                   .set_valor_bc_icms(valor("120.00"))
                                                   .set_aliquota_icms(valor("18.00"))
                                                   .set_valor_icms(valor("21.60"))))
        .set_tributacao_pis_cofins(
            pis_cofins_outras(cst_pis_cofins_outras_operacoes::cst_49, "0.00", "0.00", "0.00", "0.00", "0.00"));

    produto ovos = item("OV-BR-G", "SEM GTIN", "OVOS BRANCOS GRANDES", 4072100, 5102, "DZ", "30", "11.90", "357.00");
    ovos.set_tributacao(
            grupo_tributacao_icms_40().set_origem_mercadoria(origem_mercadoria::nacional).set_cst(cst_icms::cst_40))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_06));

    return nota({41, 55, 90412, 73625184, 2024, 6, 3, 8, 40, 4106902, "VENDA DE MERCADORIA"}, atacadista)
        .set_destinatario(contribuinte(
            "18642057000150", "Supermercado Campos Gerais Ltda",
            local("Rua Balduíno Taques", "1450", "Centro", 4119905, "Ponta Grossa", "PR", 84010050), "1037284609"))
        .set_produtos({papel, agua, biscoito, brinde, ovos})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("1236.02"))
                                                      .set_total_icms_normal(valor("175.68"))
                                                      .set_total_desonerado(valor("81.00"))
                                                      .set_total_base_st(valor("1083.62"))
                                                      .set_total_retido(valor("134.57"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("2211.00"))
                                                      .set_valor_total_do_desconto_da_nota(valor("120.00"))
                                                      .set_total_imposto_pis(valor("28.62"))
                                                      .set_total_imposto_confins(valor("131.78"))
                                                      .set_total_da_nota(valor("2225.57"))))
        .set_informacoes_transporte(
            informacoes_transporte()
                .set_modalidade_frete(modalidade_frete::por_conta_destinatario)
                .set_transportador(transportador()
                                       .set_documento(erp::cnpj(57290316000182))
                                       .set_razao_social("Rodoviário Princesa dos Campos Ltda")
                                       .set_municipio("Ponta Grossa")
                                       .set_uf("PR"))
                .set_volumes({volume().set_quantidade(64).set_especie("FARDO").set_peso_bruto(valor("1342.800"))}))
        .set_cobranca(fatura("90412", "2225.57", {parcela("001", core::date(3, 7, 2024), "2225.57")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::duplicata_mercantil, "2225.57")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}));
}

grupo_tributacao_icms_201 simples_com_credito_e_st(char const* base_st, char const* icms_st, char const* credito)
{
    return grupo_tributacao_icms_201()
        .set_origem_mercadoria(origem_mercadoria::nacional)
        .set_csosn(csosn::csosn_201)
        .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
        .set_percentual_margem_valor_adicionado_icms_st(valor("60.00"))
        .set_valor_bc_icms_st(valor(base_st))
        .set_aliquota_icms_st(valor("17.00"))
        .set_valor_icms_st(valor(icms_st))
        .set_aliquota_de_credito_sn(valor("3.01"))
        .set_valor_de_credito_sn(valor(credito));
}

// Blumenau (SC): a knitwear maker of the Simples Nacional sells to a shop in
// Florianópolis: T-shirts with credit, socks with credit and substitution,
// towels with substitution and no credit, and offcuts by weight taxed
// outside the Simples, paid by PIX and carried in its own van.
nota_fiscal nfe_sc_simples()
{
    emitente const malharia =
        empresa("31074825000184", "Malharia Vale Europeu Ltda", "Malhas Vale Europeu",
                local("Rua Bahia", "5521", "Salto Weissbach", 4202404, "Blumenau", "SC", 89032001), "4733781245",
                "257168435", regime_tributario::simples_nacional);

    produto camiseta = item("CM-PENT-M", "7891023004570", "CAMISETA MALHA PENTEADA GOLA REDONDA M", 61091000, 5101,
                            "UN", "100", "29.90", "2990.00");
    camiseta
        .set_tributacao(grupo_tributacao_icms_101()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_csosn(csosn::csosn_101)
                            .set_aliquota_de_credito_sn(valor("3.01"))
                            .set_valor_de_credito_sn(valor("90.00")))
        .set_tributacao_pis_cofins(pis_cofins_simples());

    produto meia = item("MEIA-ESP-39", "7898136000321", "MEIA ESPORTIVA CANO MEDIO 39-43", 61159500, 5401, "PAR", "200",
                        "8.50", "1700.00");
    meia.set_tributacao(simples_com_credito_e_st("2720.00", "173.40", "51.17"))
        .set_tributacao_pis_cofins(pis_cofins_simples());

    produto toalha = item("TB-VELUDO", "7893219005187", "TOALHA DE BANHO VELUDO 70X140", 63026000, 5401, "UN", "30",
                          "34.00", "1020.00");
    toalha
        .set_tributacao(grupo_tributacao_icms_202()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_csosn(csosn::csosn_202)
                            .set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
                            .set_percentual_margem_valor_adicionado_icms_st(valor("60.00"))
                            .set_valor_bc_icms_st(valor("1632.00"))
                            .set_aliquota_icms_st(valor("17.00"))
                            .set_valor_icms_st(valor("104.04")))
        .set_tributacao_pis_cofins(pis_cofins_simples());

    produto retalho =
        item("RET-KG", "SEM GTIN", "RETALHO DE MALHA DE ALGODAO", 63109000, 5101, "KG", "50", "12.00", "600.00");
    retalho
        .set_tributacao(
            grupo_tributacao_icms_900()
                .set_origem_mercadoria(origem_mercadoria::nacional)
                .set_csosn(csosn::csosn_900)
                .set_tributacao_normal_icms_900(tributacao_normal_icms_900()
                                                    .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                                                    .set_valor_bc_icms(valor("600.00"))
                                                    .set_aliquota_icms(valor("17.00"))
                                                    .set_valor_icms(valor("102.00")))
                .set_tributacao_credito_sn_icms_900(tributacao_credito_sn_icms_900()
                                                        .set_aliquota_de_credito_sn(valor("3.01"))
                                                        .set_valor_de_credito_sn(valor("18.06"))))
        .set_tributacao_pis_cofins(pis_cofins_simples());

    return nota({42, 55, 2291, 15938462, 2024, 6, 11, 14, 20, 4202404, "VENDA DE PRODUCAO DO ESTABELECIMENTO"},
                malharia)
        .set_destinatario(contribuinte(
            "86931572000100", "Boutique Beira-Mar Moda e Praia Ltda",
            local("Avenida Beira-Mar Norte", "2000", "Centro", 4205407, "Florianópolis", "SC", 88015700), "261304755"))
        .set_produtos({camiseta, meia, toalha, retalho})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("600.00"))
                                                      .set_total_icms_normal(valor("102.00"))
                                                      .set_total_base_st(valor("4352.00"))
                                                      .set_total_retido(valor("277.44"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("6310.00"))
                                                      .set_total_da_nota(valor("6587.44"))))
        .set_informacoes_transporte(
            informacoes_transporte()
                .set_modalidade_frete(modalidade_frete::proprio_remetente)
                .set_veiculo(veiculo_transporte().set_placa("QHJ2C45").set_uf("SC"))
                .set_volumes({volume().set_quantidade(12).set_especie("CAIXA").set_peso_liquido(valor("96.400"))}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::pagamento_instantaneo, "6587.44")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_vista)}))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "DOCUMENTO EMITIDO POR ME OU EPP OPTANTE PELO SIMPLES NACIONAL. PERMITE O APROVEITAMENTO DO CREDITO DE "
            "ICMS NO VALOR DE R$ 159,23, CORRESPONDENTE A ALIQUOTA DE 3,01%, NOS TERMOS DO ART. 23 DA LC 123/2006."));
}

// Duque de Caxias (RJ): a lubricant distributor sells to a filling station in
// Jundiaí (SP) oil whose ICMS was retained by substitution before; the
// retained tax is passed on to São Paulo.
nota_fiscal nfe_rj_repasse()
{
    emitente const distribuidora = empresa(
        "45726103000171", "Fluminense Distribuidora de Lubrificantes Ltda", "Flumilub",
        local("Rodovia Washington Luiz", "4120", "Parque Beira Mar", 3301702, "Duque de Caxias", "RJ", 25085000),
        "2136521100", "86503212", regime_tributario::regime_normal);

    produto oleo = item("LUB-15W40-24", "7890500020171", "OLEO LUBRIFICANTE MOTOR 15W40 CX 24X1L", 27101932, 6404, "CX",
                        "100", "52.00", "5200.00");
    oleo.set_cest(600700)
        .set_tributacao(grupo_repasse_icms_st()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_tributacao_icms(cst_icms::cst_60)
                            .set_valor_bc_icms_st_retido(valor("5000.00"))
                            .set_aliquota_suportada_consumidor_final(valor("18.00"))
                            .set_valor_icms_st_retido(valor("450.00"))
                            .set_valor_bc_icms_st_destino(valor("5200.00"))
                            .set_valor_icms_st_destino(valor("936.00")))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_04));

    return nota({33, 55, 15530, 40918273, 2024, 6, 18, 9, 10, 3301702,
                 "VENDA DE MERCADORIA COM ICMS RETIDO ANTERIORMENTE"},
                distribuidora)
        .set_indicador_operacao(destino_operacao::interestadual)
        .set_destinatario(contribuinte(
            "09384617000122", "Auto Posto e Lubrificantes Anhanguera Ltda",
            local("Rodovia Anhanguera, km 57", "S/N", "Distrito Industrial", 3525904, "Jundiaí", "SP", 13213000),
            "146150292484"))
        .set_produtos({oleo})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_valor_total_dos_produtos_da_nota(valor("5200.00"))
                                                      .set_total_da_nota(valor("5200.00"))))
        .set_informacoes_transporte(
            informacoes_transporte()
                .set_modalidade_frete(modalidade_frete::por_conta_remetente)
                .set_transportador(transportador()
                                       .set_documento(erp::cnpj(24817039000164))
                                       .set_razao_social("Transportadora Via Dutra Ltda")
                                       .set_logradouro("Rodovia Presidente Dutra, km 171")
                                       .set_municipio("Nova Iguaçu")
                                       .set_uf("RJ"))
                .set_veiculo(veiculo_transporte().set_placa("LQT7H82").set_uf("RJ").set_rntc("041552207"))
                .set_volumes({volume()
                                  .set_quantidade(100)
                                  .set_especie("CAIXA")
                                  .set_peso_liquido(valor("2160.000"))
                                  .set_peso_bruto(valor("2300.000"))}))
        .set_cobranca(fatura("15530", "5200.00", {parcela("001", core::date(18, 7, 2024), "5200.00")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::boleto_bancario, "5200.00")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}));
}

// Tijuca, Rio de Janeiro: a grocery's NFC-e with ICMS and the 2% fund against
// poverty of Rio, bananas exempt; the consumer gives a CPF and pays part by
// credit card through the till's TEF and part in cash, with change.
nota_fiscal nfce_rj_mercado()
{
    emitente const mercado =
        empresa("61305284000119", "Mercado Hortifruti Tijuca Ltda", "Hortifruti Tijuca",
                local("Rua Conde de Bonfim", "615", "Tijuca", 3304557, "Rio de Janeiro", "RJ", 20520053), "2122648800",
                "77319450", regime_tributario::regime_normal);

    grupo_fcp const fundo_azeite =
        grupo_fcp().set_valor_bc(valor("39.90")).set_percentual(valor("2.00")).set_valor(valor("0.80"));
    grupo_fcp const fundo_queijo =
        grupo_fcp().set_valor_bc(valor("16.98")).set_percentual(valor("2.00")).set_valor(valor("0.34"));
    produto azeite = item("1002", "7891000315507", "AZEITE DE OLIVA EXTRA VIRGEM 500ML", 15091000, 5102, "UN", "1",
                          "39.90", "39.90");
    azeite.set_valor_total_tributos(valor("12.35"))
        .set_tributacao(icms_00("39.90", "18.00", "7.18").set_fcp(fundo_azeite))
        .set_tributacao_pis_cofins(lucro_presumido("39.90", "0.26", "1.20"));
    produto queijo =
        item("2044", "7896153001185", "QUEIJO PARMESAO RALADO 100G", 4069000, 5102, "UN", "2", "8.49", "16.98");
    queijo.set_valor_total_tributos(valor("5.26"))
        .set_tributacao(icms_00("16.98", "18.00", "3.06").set_fcp(fundo_queijo))
        .set_tributacao_pis_cofins(lucro_presumido("16.98", "0.11", "0.51"));
    produto banana = item("0031", "SEM GTIN", "BANANA PRATA", 8039000, 5102, "KG", "1.235", "6.99", "8.63");
    banana.set_valor_total_tributos(valor("0.95"))
        .set_tributacao(
            grupo_tributacao_icms_40().set_origem_mercadoria(origem_mercadoria::nacional).set_cst(cst_icms::cst_40))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_06));

    detalhes_pagamento const credito = cartao(meio_pagamento::cartao_credito, "40.00",
                                              tipo_integracao_pagamento::integrado, bandeira_cartao::visa, "A1B2C3",
                                              "38061794000176");

    return nota({33, 65, 120388, 27364519, 2024, 6, 22, 11, 47, 3304557, "VENDA"}, mercado)
        .set_destinatario(
            destinatario().set_cpf("51926783409").set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte))
        .set_produtos({azeite, queijo, banana})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("56.88"))
                                                      .set_total_icms_normal(valor("10.24"))
                                                      .set_total_fcp(valor("1.14"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("65.51"))
                                                      .set_total_imposto_pis(valor("0.37"))
                                                      .set_total_imposto_confins(valor("1.71"))
                                                      .set_total_da_nota(valor("65.51"))
                                                      .set_total_dos_tributos_do_item(valor("18.56"))))
        .set_informacoes_pagamento(pago_com({credito, pagamento(meio_pagamento::dinheiro, "30.00")}, "4.49"))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "Tributos aproximados: R$ 18,56 (Fonte: IBPT). Volte sempre!"));
}

// São Paulo: a kitchenware shop sells through a marketplace to a consumer in
// Campinas; the platform takes the card payment and its carrier delivers.
nota_fiscal nfe_sp_marketplace()
{
    emitente const loja = empresa("52947106000109", "Casa e Cozinha Utilidades Domésticas Ltda", "Casa & Cozinha",
                                  local("Rua Vergueiro", "7182", "Vila Mariana", 3550308, "São Paulo", "SP", 4273300),
                                  "1150842210", "798236412113", regime_tributario::regime_normal);

    produto panela = item("PP-45L", "7891000100158", "PANELA DE PRESSAO ALUMINIO 4,5L", 76151000, 5102, "UN", "1",
                          "189.90", "189.90");
    panela.set_valor_frete(valor("19.90"))
        .set_valor_total_tributos(valor("63.42"))
        .set_tributacao(icms_00("209.80", "18.00", "37.76"))
        .set_tributacao_pis_cofins(lucro_real("209.80", "3.46", "15.94"));

    detalhes_pagamento const cartao_plataforma =
        cartao(meio_pagamento::cartao_credito, "209.80", tipo_integracao_pagamento::integrado,
               bandeira_cartao::mastercard, "784512", "90472513000198");

    return nota({35, 55, 60217, 55412983, 2024, 7, 2, 21, 13, 3550308, "VENDA DE MERCADORIA"}, loja)
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_indicador_presenca(indicador_presenca::internet)
        .set_indicador_intermediador(indicador_intermediador::plataforma_terceiros)
        .set_destinatario(
            destinatario()
                .set_cpf("70231846517")
                .set_razao_social("Renata Alves Moreira")
                .set_endereco(local("Rua Coronel Quirino", "1220", "Cambuí", 3509502, "Campinas", "SP", 13025002))
                .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte)
                .set_email("renata.moreira@example.com.br"))
        .set_produtos({panela})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("209.80"))
                                                      .set_total_icms_normal(valor("37.76"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("189.90"))
                                                      .set_total_frete(valor("19.90"))
                                                      .set_total_imposto_pis(valor("3.46"))
                                                      .set_total_imposto_confins(valor("15.94"))
                                                      .set_total_da_nota(valor("209.80"))
                                                      .set_total_dos_tributos_do_item(valor("63.42"))))
        .set_informacoes_transporte(informacoes_transporte()
                                        .set_modalidade_frete(modalidade_frete::por_conta_remetente)
                                        .set_transportador(transportador()
                                                               .set_documento(erp::cnpj(15739268000117))
                                                               .set_razao_social("Entregas Expressas Paulista Ltda")
                                                               .set_ie("110428732075")
                                                               .set_logradouro("Rua Voluntários da Pátria, 2500")
                                                               .set_municipio("São Paulo")
                                                               .set_uf("SP"))
                                        .set_volumes({volume()
                                                          .set_quantidade(1)
                                                          .set_especie("CAIXA")
                                                          .set_peso_liquido(valor("2.800"))
                                                          .set_peso_bruto(valor("3.350"))}))
        .set_informacoes_pagamento(pago_com({cartao_plataforma}))
        .set_informacoes_intermediador(
            informacoes_intermediador().set_cnpj(27461983000110).set_identificador_cadastrado("casaecozinha_oficial"));
}

// Franca (SP): a coffee trader exports green coffee to Hamburg through the
// port of Santos, paid by an exchange contract.
nota_fiscal nfe_sp_exportacao()
{
    emitente const exportadora = empresa(
        "81620374000101", "Café Alta Mogiana Exportadora Ltda", "Alta Mogiana Coffee",
        local("Avenida Doutor Ismael Alonso y Alonso", "2700", "Jardim Consolação", 3516200, "Franca", "SP", 14403430),
        "1637228300", "247109836554", regime_tributario::regime_normal);

    produto cafe = item("CV-MOG-23", "SEM GTIN", "CAFE ARABICA EM GRAO CRU TIPO 2/3 PENEIRA 17/18", 9011110, 7102, "SC",
                        "320", "1450.00", "464000.00");
    // The taxable unit of an export is the statistical unit of the NCM.
    cafe.set_unidade_tributavel("KG")
        .set_quantidade_tributavel(valor("19200"))
        .set_valor_unitario_tributavel(valor("24.1666666667"))
        .set_tributacao(
            grupo_tributacao_icms_40().set_origem_mercadoria(origem_mercadoria::nacional).set_cst(cst_icms::cst_41))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_08));

    return nota({35, 55, 884, 69201538, 2024, 7, 8, 16, 0, 3516200, "VENDA DE MERCADORIA PARA O EXTERIOR"}, exportadora)
        .set_indicador_operacao(destino_operacao::exterior)
        .set_destinatario(destinatario()
                              .set_indicador_estrangeiro("HRB98765")
                              .set_razao_social("Kaffeeroesterei Hanseatisch GmbH")
                              .set_endereco(exterior("Am Sandtorkai", "48", "HafenCity", 230, "ALEMANHA"))
                              .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte))
        .set_produtos({cafe})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_valor_total_dos_produtos_da_nota(valor("464000.00"))
                                                      .set_total_da_nota(valor("464000.00"))))
        .set_informacoes_transporte(informacoes_transporte()
                                        .set_modalidade_frete(modalidade_frete::por_conta_remetente)
                                        .set_transportador(transportador()
                                                               .set_documento(erp::cnpj(57290316000182))
                                                               .set_razao_social("Rodoviário Princesa dos Campos Ltda")
                                                               .set_municipio("Ponta Grossa")
                                                               .set_uf("PR"))
                                        .set_volumes({volume()
                                                          .set_quantidade(320)
                                                          .set_especie("SACA")
                                                          .set_marca("ALTA MOGIANA")
                                                          .set_peso_liquido(valor("19200.000"))
                                                          .set_peso_bruto(valor("19264.000"))}))
        .set_informacoes_pagamento(pago_com(
            {pagamento(meio_pagamento::outros, "464000.00").set_descricao_meio_pagamento("CONTRATO DE CAMBIO")}))
        .set_comercio_exterior(informacoes_comercio_exterior().set_uf_saida("SP").set_local_embarque("PORTO DE SANTOS"))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "EXPORTACAO DIRETA. DU-E 24BR0004567891. INCOTERM FOB SANTOS. CONTRATO DE CAMBIO 224510987."));
}

// Barueri (SP): an importer's entry note for memory modules cleared at
// Viracopos: import tax, IPI, PIS and COFINS of import, and ICMS on the
// whole cost, as the import declaration states.
nota_fiscal nfe_sp_importacao()
{
    emitente const importadora =
        empresa("63091825000189", "Tecnoparts Importação de Componentes Eletrônicos Ltda", "Tecnoparts",
                local("Alameda Rio Negro", "1030", "Alphaville Industrial", 3505708, "Barueri", "SP", 6454000),
                "1141956600", "206394712079", regime_tributario::regime_normal);

    declaracao_importacao const di =
        declaracao_importacao()
            .set_numero_documento_importacao("2405123456")
            .set_data_registro(core::date(8, 5, 2024))
            .set_local_desembaraco("AEROPORTO INTERNACIONAL DE VIRACOPOS")
            .set_uf_desembaraco("SP")
            .set_data_desembaraco(core::date(10, 5, 2024))
            .set_via_transporte(via_transporte::aerea)
            .set_forma_intermedio_importacao(forma_intermedio_importacao::conta_propria)
            .set_codigo_exportador("HEXIN0091")
            .set_adicoes(
                {adicao().set_numero_adicao(1).set_numero_sequencial_da_adicao(1).set_codigo_fabricante_estrangeiro(
                    "HEXIN0091")});

    produto memoria = item("DDR4-16G-3200", "SEM GTIN", "MODULO DE MEMORIA DDR4 16GB 3200MHZ", 84733042, 3102, "UN",
                           "500", "112.40", "56200.00");
    // PIS, COFINS, customs fees and ICMS go into the note as other expenses.
    memoria.set_valor_despesas_acessorias(valor("26753.96"))
        .set_declaracao_importacao({di})
        .set_tributacao(icms_00("101724.76", "18.00", "18310.46", origem_mercadoria::estrangeira_importacao_direta))
        .set_tributacao_ipi(tributacao_ipi()
                                .set_classe_enquadramento_ipi("999")
                                .set_cst_ipi(cst_ipi::cst_00)
                                .set_tributacao_ipi_calculo_aliquota(tributacao_ipi_calculo_aliquota()
                                                                         .set_valor_bc_ipi(valor("65192.00"))
                                                                         .set_aliquota_ipi(valor("15.00")))
                                .set_valor_ipi(valor("9778.80")))
        .set_tributacao_importacao(tributacao_imposto_importacao()
                                       .set_valor_bc_imposto_importacao(valor("56200.00"))
                                       .set_valor_despesas_aduaneiras(valor("1840.00"))
                                       .set_valor_imposto_importacao(valor("8992.00")))
        .set_tributacao_pis_cofins(pis_cofins_outras(cst_pis_cofins_outras_operacoes::cst_50, "56200.00", "1180.20",
                                                     "2.10", "5423.30", "9.65"));

    return nota({35, 55, 4471, 82736415, 2024, 5, 13, 8, 0, 3505708, "COMPRA PARA COMERCIALIZACAO - IMPORTACAO"},
                importadora)
        .set_tipo_operacao(tipo_operacao::entrada)
        .set_indicador_operacao(destino_operacao::exterior)
        .set_indicador_presenca(indicador_presenca::nao_se_aplica)
        .set_destinatario(destinatario()
                              .set_indicador_estrangeiro("91440300MA5F")
                              .set_razao_social("Shenzhen Hexin Electronics Co Ltd")
                              .set_endereco(exterior("Keji South 12th Road", "18", "Nanshan", 1600, "CHINA"))
                              .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte))
        .set_produtos({memoria})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("101724.76"))
                                                      .set_total_icms_normal(valor("18310.46"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("56200.00"))
                                                      .set_total_imposto_de_importacao(valor("8992.00"))
                                                      .set_total_ipi(valor("9778.80"))
                                                      .set_total_imposto_pis(valor("1180.20"))
                                                      .set_total_imposto_confins(valor("5423.30"))
                                                      .set_total_despesas_acessorias(valor("26753.96"))
                                                      .set_total_da_nota(valor("101724.76"))))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::sem_pagamento, "0.00")}))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "DI 24/0512345-6 DE 08/05/2024. II R$ 8.992,00; IPI R$ 9.778,80; PIS R$ 1.180,20; COFINS R$ 5.423,30; "
            "SISCOMEX E DESPESAS ADUANEIRAS R$ 1.840,00."));
}

// Joinville (SC): a gun shop sells a pistol to a registered sport shooter,
// paid by debit card on a stand-alone terminal.
nota_fiscal nfe_sc_armas()
{
    emitente const armaria =
        empresa("49205716000114", "Armaria Catarinense Comércio de Armas e Munições Ltda", "Armaria Catarinense",
                local("Rua Blumenau", "1788", "América", 4209102, "Joinville", "SC", 89204251), "4734335510",
                "258390174", regime_tributario::regime_normal);

    produto pistola = item("PST-380-15", "SEM GTIN", "PISTOLA SEMIAUTOMATICA CAL .380 ACP 15 TIROS OXIDADA", 93020000,
                           5102, "UN", "1", "5890.00", "5890.00");
    pistola
        .set_armas(std::vector<arma>{arma()
                                         .set_tipo(tipo_arma::uso_permitido)
                                         .set_numero_serie_arma("KDH12345")
                                         .set_numero_serie_cano("KDH12345")
                                         .set_descricao("PISTOLA CAL .380 ACP, 15 TIROS, CANO 100MM, OXIDADA")})
        .set_tributacao(icms_00("5890.00", "25.00", "1472.50"))
        .set_tributacao_pis_cofins(lucro_real("5890.00", "97.19", "447.64"));

    detalhes_pagamento debito = cartao(meio_pagamento::cartao_debito, "5890.00",
                                       tipo_integracao_pagamento::nao_integrado, bandeira_cartao::elo, "019283");

    return nota({42, 55, 7340, 36182947, 2024, 8, 5, 15, 42, 4209102, "VENDA DE MERCADORIA"}, armaria)
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_indicador_presenca(indicador_presenca::presencial)
        .set_destinatario(
            destinatario()
                .set_cpf("26391574855")
                .set_razao_social("Marcelo Henrique Wagner")
                .set_endereco(local("Rua Reinoldo Rau", "600", "Centro", 4208906, "Jaraguá do Sul", "SC", 89251600))
                .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte))
        .set_produtos({pistola})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("5890.00"))
                                                      .set_total_icms_normal(valor("1472.50"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("5890.00"))
                                                      .set_total_imposto_pis(valor("97.19"))
                                                      .set_total_imposto_confins(valor("447.64"))
                                                      .set_total_da_nota(valor("5890.00"))))
        .set_informacoes_pagamento(pago_com({debito}))
        .set_informacoes_adicionais(informacoes_adicionais().set_informacoes_complementares(
            "CR 123456 - EXERCITO BRASILEIRO. AUTORIZACAO DE AQUISICAO 2024/0458."));
}

// Londrina (PR): a filling station's NFC-e: gasoline with the pump readings,
// its ICMS charged before by substitution and the effective ICMS, and a fuel
// additive; paid by debit card and cash, with change.
nota_fiscal nfce_pr_posto()
{
    emitente const posto =
        empresa("70583914000108", "Auto Posto Rota do Café Ltda", "Posto Rota do Café",
                local("Avenida Tiradentes", "3355", "Jardim Rosicler", 4113700, "Londrina", "PR", 86072360),
                "4333257788", "9087631572", regime_tributario::regime_normal);

    produto gasolina = item("GC", "SEM GTIN", "GASOLINA COMUM C", 27101259, 5656, "L", "32.450", "6.290", "204.11");
    gasolina.set_valor_total_tributos(valor("79.41"))
        .set_combustiveis(combustiveis()
                              .set_codigo_produto_anp(320101001)
                              .set_descricao_produto_anp("GASOLINA C COMUM")
                              .set_uf_consumo("PR")
                              .set_encerrante_bomba_combustiveis(encerrante_bomba_combustiveis()
                                                                     .set_identificacao_bico(4)
                                                                     .set_identificacao_bomba(2)
                                                                     .set_identificacao_tanque(1)
                                                                     .set_valor_inicial(valor("152340.120"))
                                                                     .set_valor_final(valor("152372.570"))))
        .set_tributacao(grupo_tributacao_icms_60()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_cst(cst_icms::cst_60)
                            .set_icms_st_retido(grupo_icms_st_retido()
                                                    .set_valor_bc_icms_retido(valor("204.11"))
                                                    .set_aliquota_suportada_consumidor_final(valor("19.00"))
                                                    .set_valor_icms_st_retido(valor("38.78")))
                            .set_informacoes_icms_efetivo(informacoes_icms_efetivo()
                                                              .set_percentual_reducao_bc(valor("0.00"))
                                                              .set_valor_bc(valor("204.11"))
                                                              .set_aliquota(valor("19.00"))
                                                              .set_valor(valor("38.78"))))
        .set_tributacao_pis_cofins(pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado::cst_04));

    produto aditivo =
        item("AD-200", "7897000031256", "ADITIVO PARA GASOLINA 200ML", 38111900, 5102, "UN", "1", "24.90", "24.90");
    aditivo.set_valor_total_tributos(valor("8.69"))
        .set_tributacao(icms_00("24.90", "19.50", "4.86"))
        .set_tributacao_pis_cofins(lucro_presumido("24.90", "0.16", "0.75"));

    return nota({41, 65, 551902, 19283746, 2024, 8, 14, 7, 26, 4113700, "VENDA DE COMBUSTIVEL"}, posto)
        .set_produtos({gasolina, aditivo})
        .set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                      .set_total_base_normal(valor("24.90"))
                                                      .set_total_icms_normal(valor("4.86"))
                                                      .set_valor_total_dos_produtos_da_nota(valor("229.01"))
                                                      .set_total_imposto_pis(valor("0.16"))
                                                      .set_total_imposto_confins(valor("0.75"))
                                                      .set_total_da_nota(valor("229.01"))
                                                      .set_total_dos_tributos_do_item(valor("88.10"))))
        .set_informacoes_pagamento(
            pago_com({cartao(meio_pagamento::cartao_debito, "200.00", tipo_integracao_pagamento::nao_integrado,
                             bandeira_cartao::mastercard, "447120"),
                      pagamento(meio_pagamento::dinheiro, "50.00")},
                     "20.99"));
}

// São Paulo: an air-conditioning firm sells a split unit to a residential
// building and installs it: the unit under ICMS, the installation under
// ISSQN of the city, with the federal taxes the building withholds.
nota_fiscal nfe_sp_servico()
{
    emitente refrigeracao =
        empresa("15862409000194", "Refrigeração Paulistana Comércio e Serviços Ltda", "Refrigeração Paulistana",
                local("Rua Domingos de Morais", "2781", "Vila Mariana", 3550308, "São Paulo", "SP", 4035001),
                "1155720044", "115932085623", regime_tributario::regime_normal);
    refrigeracao.set_inscricao_municipal("48213765").set_cnae(4322302);

    produto split = item("SPL-12K-INV", "7891023004570", "AR CONDICIONADO SPLIT INVERTER 12000 BTUS 220V", 84151011,
                         5102, "UN", "1", "2799.00", "2799.00");
    split.set_tributacao(icms_00("2799.00", "18.00", "503.82"))
        .set_tributacao_pis_cofins(lucro_real("2799.00", "46.18", "212.72"));

    produto instalacao = item("SRV-INST-SPL", "SEM GTIN", "INSTALACAO DE AR CONDICIONADO SPLIT ATE 12000 BTUS", 0, 5933,
                              "UN", "1", "450.00", "450.00");
    instalacao
        .set_tributacao(issqn()
                            .set_valor_bc(valor("450.00"))
                            .set_valor_aliquota(valor("5.00"))
                            .set_valor_issqn(valor("22.50"))
                            .set_codigo_municio_de_ocorrencia(3550308)
                            .set_item_lista_servicos("14.06")
                            .set_indicador_iss(1)
                            .set_codigo_servico("07498")
                            .set_indicador_incentivo(2))
        .set_tributacao_pis_cofins(lucro_real("450.00", "7.43", "34.20"));

    return nota({35, 55, 1932, 61729384, 2024, 5, 20, 17, 5, 3550308, "VENDA E INSTALACAO"}, refrigeracao)
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_destinatario(
            destinatario()
                .set_cnpj("36749052000102")
                .set_razao_social("Condomínio Edifício Jardim Europa")
                .set_endereco(local("Rua Groenlândia", "1100", "Jardim Europa", 3550308, "São Paulo", "SP", 1434000))
                .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte)
                .set_email("sindico@jardimeuropa.example.com.br"))
        .set_produtos({split, instalacao})
        .set_total_nfe(total_nfe()
                           .set_total_icms(total_nfe_icms()
                                               .set_total_base_normal(valor("2799.00"))
                                               .set_total_icms_normal(valor("503.82"))
                                               .set_valor_total_dos_produtos_da_nota(valor("2799.00"))
                                               .set_total_imposto_pis(valor("46.18"))
                                               .set_total_imposto_confins(valor("212.72"))
                                               .set_total_da_nota(valor("3249.00")))
                           .set_total_issqn(total_nfe_issqn()
                                                .set_valor_servico(valor("450.00"))
                                                .set_valor_base_calculo(valor("450.00"))
                                                .set_valor_iss(valor("22.50"))
                                                .set_valor_pis(valor("7.43"))
                                                .set_valor_cofins(valor("34.20"))
                                                .set_data_prestacao_servico(core::date(20, 5, 2024)))
                           .set_total_nfe_retencao_tributos(total_nfe_retencao_tributos()
                                                                .set_valor_pis_retido(valor("2.93"))
                                                                .set_valor_cofins_retido(valor("13.50"))
                                                                .set_valor_csll_retido(valor("4.50"))))
        .set_informacoes_transporte(informacoes_transporte()
                                        .set_modalidade_frete(modalidade_frete::proprio_remetente)
                                        .set_veiculo(veiculo_transporte().set_placa("FZK8D21").set_uf("SP")))
        .set_cobranca(fatura("1932", "3249.00", {parcela("001", core::date(20, 6, 2024), "3249.00")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::boleto_bancario, "3249.00")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}));
}

// The technical manager with the security code the authority gave it: the
// hash is SHA-1, in base 64, of the code followed by the access key.
nota_fiscal com_csrt(nota_fiscal nota, char const* hash)
{
    informacoes_responsavel_tecnico responsavel = *nota.get_informacoes_responsavel_tecnico();
    nota.set_informacoes_responsavel_tecnico(responsavel.set_informacoes_codigo_seguranca(
        informacoes_codigo_seguranca().set_identificador_csrt(1).set_hash_csrt(hash)));
    return nota;
}

// CSRT "G8063VRTNDMO886SFNK5LDUDEI24XJ22YIPO", id 01, with the key of the note.
nota_fiscal nfe_sc_armas_com_csrt()
{
    return com_csrt(nfe_sc_armas(), "qFhsa1gmmOguU1Zk1ByJEjGls78=");
}

// The notes below each show one case in which the layout's schema wants
// more, or another form, than the plain reading of the model gives.

template <class Alterar>
nota_fiscal com_produto(nota_fiscal nota, std::size_t indice, Alterar alterar)
{
    std::vector<produto> produtos = nota.get_produtos();
    alterar(produtos.at(indice));
    return nota.set_produtos(produtos);
}

// The building's contract is billed under the municipal regime of services
// by estimate: cRegTrib 2, in one digit.
nota_fiscal nfe_sp_servico_por_estimativa()
{
    nota_fiscal nota = nfe_sp_servico();
    total_nfe total = nota.get_total_nfe();
    total_nfe_issqn issqn = *total.get_total_issqn();
    return nota.set_total_nfe(total.set_total_issqn(issqn.set_codigo_regime_tributacao(2)));
}

// The installation, under ISSQN, also in the field of IPI, not taxed: IPI
// goes before ISSQN.
nota_fiscal nfe_sp_servico_com_ipi()
{
    return com_produto(nfe_sp_servico(), 1, [](produto& instalacao) {
        instalacao.set_tributacao_ipi(
            tributacao_ipi().set_classe_enquadramento_ipi("999").set_cst_ipi(cst_ipi::cst_53));
    });
}

// The coffee is cleared at a dry port before it leaves through Santos.
nota_fiscal nfe_sp_exportacao_com_despacho()
{
    nota_fiscal nota = nfe_sp_exportacao();
    informacoes_comercio_exterior exterior = *nota.get_comercio_exterior();
    return nota.set_comercio_exterior(exterior.set_local_despacho("PORTO SECO DE FRANCA"));
}

// Part of the coffee came from a cooperative with the end of export and
// under drawback: one export detail has the drawback act alone (no indirect
// export), another the cooperative's note, its registration and quantity.
nota_fiscal nfe_sp_exportacao_indireta()
{
    return com_produto(nfe_sp_exportacao(), 0, [](produto& cafe) {
        cafe.set_grupo_exportacao(
            {grupo_exportacao().set_numero_ato_concessorio_drawback(20240003817),
             grupo_exportacao()
                 .set_numero_registro_exportacao(240001234567)
                 .set_chave_acesso_nfe_recebida(chave_acesso(35, 2406, "43917258000160", 55, 1, 31877, 90817265))
                 .set_quantidade_exportada(valor("160.0000"))});
    });
}

// The bakery's customer pays by debit card on a terminal apart from the
// till, which records no integration type.
nota_fiscal nfce_sp_padaria_cartao_avulso()
{
    detalhes_pagamento debito = pagamento(meio_pagamento::cartao_debito, "53.21");
    debito.set_transacao_tef(transacao_tef().set_bandeira(bandeira_cartao::elo).set_numero_autorizacao("771204"));
    return nota_nfce_simples().set_informacoes_pagamento(pago_com({debito}));
}

// The importer's entry note with no payment given at all: written as
// "without payment".
nota_fiscal nfe_sp_importacao_sem_pagamento()
{
    return nfe_sp_importacao().set_informacoes_pagamento(informacoes_pagamento());
}

// The grocery's till lost its link to the authority and issued offline:
// tpEmis 9 in the key, with the time and the reason of the contingency.
nota_fiscal nfce_rj_mercado_contingencia()
{
    nota_fiscal nota = nfce_rj_mercado();
    std::string chave = nota.get_chave_44_digitos().substr(0, 34) + "9" + nota.get_chave_44_digitos().substr(35, 8);
    chave += digito_chave(chave);
    return nota.set_chave_44_digitos(chave)
        .set_tipo_emissao(tipo_emissao::contingencia_offline_nfce)
        .set_data_contingencia(horario_brasilia(2024, 6, 22, 11, 41, 0))
        .set_justificativa_entrada_contingencia("SEM CONEXAO COM A SEFAZ AUTORIZADORA");
}

// ICMS by substitution on a margin of value added: the part of ICMS90
// (tributacao_st_icms_90) or of ICMSSN900 (tributacao_st_icms_900).
template <class ST>
ST st_por_margem(char const* margem, char const* base, char const* aliquota, char const* icms)
{
    ST st;
    st.set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
        .set_percentual_margem_valor_adicionado_icms_st(valor(margem))
        .set_valor_bc_icms_st(valor(base))
        .set_aliquota_icms_st(valor(aliquota))
        .set_valor_icms_st(valor(icms));
    return st;
}

// The wholesaler's free gift also bears ICMS by substitution (40% margin):
// ICMS90 with its own ICMS and the substitution, each whole.
nota_fiscal nfe_pr_atacado_brinde_com_st()
{
    nota_fiscal nota = com_produto(nfe_pr_atacado(), 3, [](produto& brinde) {
        grupo_tributacao_icms_90 icms = std::get<grupo_tributacao_icms_90>(brinde.get_grupo_tributacao_icms()->base());
        brinde.set_tributacao(icms.set_tributacao_st_icms_90(
            st_por_margem<tributacao_st_icms_90>("40.00", "168.00", "18.00", "8.64")));
    });
    total_nfe_icms icms = nota.get_total_nfe().get_total_icms();
    icms.set_total_base_st(valor("1251.62")).set_total_retido(valor("143.21")).set_total_da_nota(valor("2234.21"));
    return nota.set_total_nfe(total_nfe().set_total_icms(icms))
        .set_cobranca(fatura("90412", "2234.21", {parcela("001", core::date(3, 7, 2024), "2234.21")}))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::duplicata_mercantil, "2234.21")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_prazo)}));
}

// The knitwear maker's remnants also bear ICMS by substitution (60% margin):
// ICMSSN900 with its own ICMS, the substitution and the credit, each whole.
nota_fiscal nfe_sc_simples_retalho_com_st()
{
    nota_fiscal nota = com_produto(nfe_sc_simples(), 3, [](produto& retalho) {
        grupo_tributacao_icms_900 icms =
            std::get<grupo_tributacao_icms_900>(retalho.get_grupo_tributacao_icms()->base());
        retalho.set_tributacao(icms.set_tributacao_st_icms_900(
            st_por_margem<tributacao_st_icms_900>("60.00", "960.00", "17.00", "61.20")));
    });
    total_nfe_icms icms = nota.get_total_nfe().get_total_icms();
    icms.set_total_base_st(valor("5312.00")).set_total_retido(valor("338.64")).set_total_da_nota(valor("6648.64"));
    return nota.set_total_nfe(total_nfe().set_total_icms(icms))
        .set_informacoes_pagamento(pago_com({pagamento(meio_pagamento::pagamento_instantaneo, "6648.64")
                                                 .set_indicador_forma_pagamento(indicador_forma_pagamento::a_vista)}));
}

}  // namespace

std::vector<nota_do_corpus> const& corpus_notas()
{
    static std::vector<nota_do_corpus> const notas = {
        {"nfce_sp_padaria", "NFC-e SP, Simples Nacional: CSOSN 102 and 500, PIS/COFINS other, cash with change",
         nota_nfce_simples},
        {"nfe_sp_distribuidora", "NF-e SP to RJ: ICMS00 with ICMSUFDest, ICMS60, medicine, fuel, import declaration",
         nota_nfe_completa},
        {"nfe_rs_industria", "NF-e RS: ICMS10 with IPI taxed, ICMS20 with relief and IPI at zero rate, carrier by CPF",
         nfe_rs_industria},
        {"nfe_pr_atacado", "NF-e PR: ICMS51, ICMS30, ICMS70, ICMS90, ICMS40; PIS/COFINS by rate, other, not taxed",
         nfe_pr_atacado},
        {"nfe_sc_simples", "NF-e SC, Simples Nacional: CSOSN 101, 201, 202, 900; PIX", nfe_sc_simples},
        {"nfe_rj_repasse", "NF-e RJ to SP: ICMSST, substitution passed on to the state of destination", nfe_rj_repasse},
        {"nfce_rj_mercado", "NFC-e RJ: ICMS00 with FCP, credit card by TEF and cash with change", nfce_rj_mercado},
        {"nfe_sp_marketplace", "NF-e SP: internet sale through a marketplace, card, carrier", nfe_sp_marketplace},
        {"nfe_sp_exportacao", "NF-e SP: export of green coffee, ICMS40 with CST 41", nfe_sp_exportacao},
        {"nfe_sp_importacao", "NF-e SP: import entry with II, IPI, PIS/COFINS of import", nfe_sp_importacao},
        {"nfe_sc_armas", "NF-e SC: a firearm, debit card on a stand-alone terminal, CSRT", nfe_sc_armas_com_csrt},
        {"nfce_pr_posto", "NFC-e PR: gasoline with pump readings, ICMS60 retained and effective, debit and cash",
         nfce_pr_posto},
        {"nfe_sp_servico", "NF-e SP: goods under ICMS and a service under ISSQN, ISSQNtot and retTrib", nfe_sp_servico},
        {"nfe_sp_servico_por_estimativa", "NF-e SP: special regime of services, cRegTrib of one digit",
         nfe_sp_servico_por_estimativa},
        {"nfe_sp_servico_com_ipi", "NF-e SP: a service under ISSQN with IPI not taxed, IPI before ISSQN",
         nfe_sp_servico_com_ipi},
        {"nfe_sp_exportacao_com_despacho", "NF-e SP: export cleared at a dry port, xLocDespacho",
         nfe_sp_exportacao_com_despacho},
        {"nfe_sp_exportacao_indireta", "NF-e SP: export details, one without exportInd and one with it whole",
         nfe_sp_exportacao_indireta},
        {"nfce_sp_padaria_cartao_avulso", "NFC-e SP: debit card without integration type, tpIntegra 2",
         nfce_sp_padaria_cartao_avulso},
        {"nfe_sp_importacao_sem_pagamento", "NF-e SP: no payment given, one detPag of tPag 90 and vPag 0.00",
         nfe_sp_importacao_sem_pagamento},
        {"nfce_rj_mercado_contingencia", "NFC-e RJ: offline contingency, dhCont with xJust",
         nfce_rj_mercado_contingencia},
        {"nfe_pr_atacado_brinde_com_st", "NF-e PR: ICMS90 with own ICMS and substitution, each whole",
         nfe_pr_atacado_brinde_com_st},
        {"nfe_sc_simples_retalho_com_st", "NF-e SC: ICMSSN900 with own ICMS, substitution and credit, each whole",
         nfe_sc_simples_retalho_com_st},
    };
    return notas;
}

}  // namespace velk::test

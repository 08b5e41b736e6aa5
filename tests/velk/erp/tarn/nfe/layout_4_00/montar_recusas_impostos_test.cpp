// Every value of the taxes and the closing groups that the builder can
// refuse: the code, its words, the argument "value" and the items beneath.

#include "layout_teste.hpp"
#include "recusa_teste.hpp"

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::test::alteracao;
using velk::test::bruto;
using velk::test::com_ipi;
using velk::test::conversor;
using velk::test::no_primeiro_produto;
using velk::test::recusa;
using velk::test::tributar;
using velk::test::valor;

// Groups with every required value, for the cases to take one away.
grupo_tributacao_icms_00 icms00()
{
    return grupo_tributacao_icms_00()
        .set_cst(cst_icms::cst_00)
        .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
        .set_valor_bc_icms(valor("100.00"))
        .set_aliquota_icms(valor("18.00"))
        .set_valor_icms(valor("18.00"));
}

template <class Grupo>
Grupo com_st(Grupo grupo)
{
    grupo.set_modalidade_bc_icms_st(modalidade_bc_icms_st::margem_valor_agregado)
        .set_valor_bc_icms_st(valor("140.00"))
        .set_aliquota_icms_st(valor("18.00"))
        .set_valor_icms_st(valor("7.20"));
    return grupo;
}

grupo_tributacao_icms_10 icms10()
{
    return com_st(grupo_tributacao_icms_10()
                      .set_cst(cst_icms::cst_10)
                      .set_valor_bc_icms(valor("100.00"))
                      .set_aliquota_icms(valor("18.00"))
                      .set_valor_icms(valor("18.00")));
}

grupo_tributacao_icms_20 icms20()
{
    return grupo_tributacao_icms_20()
        .set_cst(cst_icms::cst_20)
        .set_percentual_reducao_bc_icms(valor("33.33"))
        .set_valor_bc_icms(valor("66.67"))
        .set_aliquota_icms(valor("18.00"))
        .set_valor_icms(valor("12.00"));
}

grupo_tributacao_icms_70 icms70()
{
    return com_st(grupo_tributacao_icms_70().set_cst(cst_icms::cst_70).set_percentual_reducao_bc_icms(valor("33.33")));
}

grupo_tributacao_icms_90 icms90()
{
    return grupo_tributacao_icms_90().set_cst(cst_icms::cst_90);
}

tributacao_normal_icms_90 normal_90()
{
    return tributacao_normal_icms_90()
        .set_valor_bc_icms(valor("100.00"))
        .set_aliquota_icms(valor("18.00"))
        .set_valor_icms(valor("18.00"));
}

tributacao_st_icms_90 st_90()
{
    return com_st(tributacao_st_icms_90());
}

grupo_tributacao_icms_900 icms900()
{
    return grupo_tributacao_icms_900().set_csosn(csosn::csosn_900);
}

tributacao_credito_sn_icms_900 credito_900()
{
    return tributacao_credito_sn_icms_900().set_aliquota_de_credito_sn(valor("2.56")).set_valor_de_credito_sn(
        valor("2.56"));
}

grupo_icms_desonerado desonerado(motivo_desoneracao_icms motivo)
{
    return grupo_icms_desonerado().set_valor_icms_desonerado(valor("5.00")).set_motivo(motivo);
}

// A service under ISSQN with its indicators, as the layout admits them.
issqn servico()
{
    return issqn().set_item_lista_servicos("14.01").set_indicador_iss(1).set_indicador_incentivo(2);
}

grupo_tributacao_icms_101 icms101()
{
    return grupo_tributacao_icms_101()
        .set_csosn(csosn::csosn_101)
        .set_aliquota_de_credito_sn(valor("2.56"))
        .set_valor_de_credito_sn(valor("2.56"));
}

grupo_tributacao_icms_201 icms201()
{
    return com_st(grupo_tributacao_icms_201()
                      .set_csosn(csosn::csosn_201)
                      .set_aliquota_de_credito_sn(valor("2.56"))
                      .set_valor_de_credito_sn(valor("2.56")));
}

tributacao_ipi ipi_por_aliquota()
{
    return tributacao_ipi()
        .set_classe_enquadramento_ipi("999")
        .set_cst_ipi(cst_ipi::cst_50)
        .set_tributacao_ipi_calculo_aliquota(
            tributacao_ipi_calculo_aliquota().set_valor_bc_ipi(valor("100.00")).set_aliquota_ipi(valor("10.00")))
        .set_valor_ipi(valor("10.00"));
}

template <class Pis>
alteracao com_pis(Pis pis)
{
    return no_primeiro_produto([pis](produto& p) {
        p.set_tributacao_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_pis(pis));
    });
}

template <class Cofins>
alteracao com_cofins(Cofins cofins)
{
    return no_primeiro_produto([cofins](produto& p) {
        p.set_tributacao_pis_cofins(tributacao_pis_cofins().set_grupo_tributacao_cofins(cofins));
    });
}

grupo_tributacao_pis_aliquota pis_aliquota()
{
    return grupo_tributacao_pis_aliquota().set_valor_bc_pis(valor("100.00")).set_percentual_aliquota_pis(valor("1.65"));
}

grupo_tributacao_pis_outros pis_outros()
{
    return grupo_tributacao_pis_outros().set_valor_bc_pis(valor("100.00")).set_percentual_aliquota_pis(valor("1.65"));
}

grupo_tributacao_cofins_aliquota cofins_aliquota()
{
    return grupo_tributacao_cofins_aliquota()
        .set_valor_bc_cofins(valor("100.00"))
        .set_percentual_aliquota_cofins(valor("7.60"));
}

grupo_tributacao_cofins_outros cofins_outros()
{
    return grupo_tributacao_cofins_outros()
        .set_valor_bc_cofins(valor("100.00"))
        .set_percentual_aliquota_cofins(valor("7.60"));
}

alteracao pago_com(detalhes_pagamento pagamento)
{
    return [pagamento](nota_fiscal& nota) {
        nota.set_informacoes_pagamento(informacoes_pagamento().set_detalhes_pagamento({pagamento}));
    };
}

detalhes_pagamento cartao(transacao_tef transacao)
{
    return detalhes_pagamento()
        .set_meio_pagamento(meio_pagamento::cartao_credito)
        .set_valor_pagamento(valor("6189.50"))
        .set_transacao_tef(std::move(transacao));
}

alteracao processo(unsigned int indicador)
{
    return [indicador](nota_fiscal& nota) {
        nota.set_informacoes_adicionais(informacoes_adicionais().set_grupo_processo_referenciado(
            {grupo_processo_referenciado()
                 .set_identificador("0001234-56.2024.8.26.0100")
                 .set_indicador_da_origem(bruto<indicador_origem_processo>(indicador))}));
    };
}

alteracao regime_de_servicos(std::uint16_t codigo)
{
    return [codigo](nota_fiscal& nota) {
        nota.set_total_nfe(nota.get_total_nfe().set_total_issqn(
            total_nfe_issqn().set_valor_servico(valor("450.00")).set_codigo_regime_tributacao(codigo)));
    };
}

char const* const base_icms = "A base de cálculo do ICMS está inválida";
char const* const aliquota_icms = "A aliquota do ICMS está inválida";
char const* const valor_icms = "O valor do ICMS está inválido";
char const* const aliquota_ipi = "A aliquota do IPI está inválida";

std::vector<recusa> const recusas = {
    // ICMS: enumerations
    {"origin 9", tributar(icms00().set_origem_mercadoria(bruto<origem_mercadoria>(9))), 28,
     "A origem da mercadoria está inválida", "9", {}},
    {"base mode 4", tributar(icms00().set_modalidade_bc_icms(bruto<modalidade_bc_icms>(4))), 29,
     "A modalidade da base de cálculo do ICMS está inválida", "4", {}},
    {"base mode 4 in ICMS90",
     tributar(icms90().set_tributacao_normal_icms_90(
                  normal_90().set_modalidade_bc_icms(bruto<modalidade_bc_icms>(4)))),
     29, "A modalidade da base de cálculo do ICMS está inválida", "4", {}},
    {"substitution base mode 6", tributar(icms10().set_modalidade_bc_icms_st(bruto<modalidade_bc_icms_st>(6))), 30,
     "A modalidade da base de cálculo por ST do ICMS está inválida", "6", {}},
    {"substitution base mode 6 in ICMSSN900",
     tributar(grupo_tributacao_icms_900()
                  .set_csosn(csosn::csosn_900)
                  .set_tributacao_st_icms_900(
                      tributacao_st_icms_900().set_modalidade_bc_icms_st(bruto<modalidade_bc_icms_st>(6)))),
     30, "A modalidade da base de cálculo por ST do ICMS está inválida", "6", {}},
    {"CSOSN 10", tributar(grupo_tributacao_icms_102().set_csosn(bruto<csosn>(10))), 31,
     "A situação de operação do simples nacional está inválida", "10", {}},
    {"CST 11", tributar(icms00().set_cst(bruto<cst_icms>(11))), 32, "O código de tributação do ICMS está inválido",
     "11", {}},
    {"CST 11 passed on", tributar(grupo_repasse_icms_st().set_tributacao_icms(bruto<cst_icms>(11))), 32,
     "O código de tributação do ICMS está inválido", "11", {}},
    {"relief reason 9",
     [](nota_fiscal& n) {
         tributar(
             n, grupo_tributacao_icms_40()
                    .set_cst(cst_icms::cst_40)
                    .set_grupo_icms_desonerado(grupo_icms_desonerado().set_motivo(bruto<motivo_desoneracao_icms>(9))));
     },
     46, "O motivo do ICMS desonerado está invaĺido", "9", {}},
    // ICMS: codes the group does not admit, with the model's value
    {"CST 41 in ICMS00", tributar(icms00().set_cst(cst_icms::cst_41)), 32,
     "O código de tributação do ICMS está inválido", "5", {}},
    {"CST 00 passed on", tributar(grupo_repasse_icms_st().set_tributacao_icms(cst_icms::cst_00)), 32,
     "O código de tributação do ICMS está inválido", "0", {}},
    {"CSOSN 102 in ICMSSN101", tributar(icms101().set_csosn(csosn::csosn_102)), 31,
     "A situação de operação do simples nacional está inválida", "1", {}},
    {"CSOSN 900 in ICMSSN202", tributar(com_st(grupo_tributacao_icms_202().set_csosn(csosn::csosn_900))), 31,
     "A situação de operação do simples nacional está inválida", "9", {}},
    {"relief for taxis in ICMS20",
     tributar(icms20().set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::taxi))), 46,
     "O motivo do ICMS desonerado está invaĺido", "0", {}},
    {"relief of farming in ICMS30",
     tributar(com_st(grupo_tributacao_icms_30().set_cst(cst_icms::cst_30))
                  .set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::produtor_agropecuario))),
     46, "O motivo do ICMS desonerado está invaĺido", "2", {}},
    {"relief of the disabled in ICMS40",
     tributar(grupo_tributacao_icms_40().set_cst(cst_icms::cst_40).set_grupo_icms_desonerado(
         desonerado(motivo_desoneracao_icms::deficiente_fisico))),
     46, "O motivo do ICMS desonerado está invaĺido", "1", {}},
    {"relief of SUFRAMA in ICMS90",
     tributar(icms90().set_grupo_icms_desonerado(desonerado(motivo_desoneracao_icms::suframa))), 46,
     "O motivo do ICMS desonerado está invaĺido", "6", {}},
    // ICMS: required values
    {"ICMS00 without vBC", tributar(icms00().set_valor_bc_icms({})), 47, base_icms, "O valor de vBC é obrigatório", {}},
    {"ICMS00 without pICMS", tributar(icms00().set_aliquota_icms({})), 51, aliquota_icms,
     "O valor de pICMS é obrigatório", {}},
    {"ICMS00 without vICMS", tributar(icms00().set_valor_icms({})), 55, valor_icms, "O valor de vICMS é obrigatório",
     {}},
    {"ICMS10 without vBCST", tributar(icms10().set_valor_bc_icms_st({})), 47, base_icms,
     "O valor de vBCST é obrigatório", {}},
    {"ICMS10 without pICMSST", tributar(icms10().set_aliquota_icms_st({})), 51, aliquota_icms,
     "O valor de pICMSST é obrigatório", {}},
    {"ICMS10 without vICMSST", tributar(icms10().set_valor_icms_st({})), 55, valor_icms,
     "O valor de vICMSST é obrigatório", {}},
    {"ICMS20 without pRedBC", tributar(icms20().set_percentual_reducao_bc_icms({})), 62,
     "O percentual de redução da base de cálculo do ICMS está inválido", "O valor de pRedBC é obrigatório", {}},
    {"ICMS20 without vBC, before pICMS", tributar(icms20().set_valor_bc_icms({}).set_aliquota_icms({})), 47, base_icms,
     "O valor de vBC é obrigatório", {}},
    {"ICMS30 without vICMSST",
     tributar(com_st(grupo_tributacao_icms_30().set_cst(cst_icms::cst_30)).set_valor_icms_st({})), 55, valor_icms,
     "O valor de vICMSST é obrigatório", {}},
    {"ICMS70 without pRedBC", tributar(icms70().set_percentual_reducao_bc_icms({})), 62,
     "O percentual de redução da base de cálculo do ICMS está inválido", "O valor de pRedBC é obrigatório", {}},
    {"ICMS70 without vBCST", tributar(icms70().set_valor_bc_icms_st({})), 47, base_icms,
     "O valor de vBCST é obrigatório", {}},
    {"ICMS70 without vICMSST", tributar(icms70().set_valor_icms_st({})), 55, valor_icms,
     "O valor de vICMSST é obrigatório", {}},
    {"ICMSSN101 without pCredSN", tributar(icms101().set_aliquota_de_credito_sn({})), 56,
     "A aliquota de crédito do ICMS está inválida", "O valor de pCredSN é obrigatório", {}},
    {"ICMSSN101 without vCredICMSSN", tributar(icms101().set_valor_de_credito_sn({})), 57,
     "O valor do crédito do ICMS está inválida", "O valor de vCredICMSSN é obrigatório", {}},
    {"ICMSSN201 without vCredICMSSN names pCredSN", tributar(icms201().set_valor_de_credito_sn({})), 57,
     "O valor do crédito do ICMS está inválida", "O valor de pCredSN é obrigatório", {}},
    {"ICMSSN201 without pICMSST", tributar(icms201().set_aliquota_icms_st({})), 51, aliquota_icms,
     "O valor de pICMSST é obrigatório", {}},
    {"ICMSSN202 without vICMSST",
     tributar(com_st(grupo_tributacao_icms_202().set_csosn(csosn::csosn_202)).set_valor_icms_st({})), 55, valor_icms,
     "O valor de vICMSST é obrigatório", {}},
    {"ICMS90 with its own ICMS without vBC",
     tributar(icms90().set_tributacao_normal_icms_90(normal_90().set_valor_bc_icms({}))), 47, base_icms,
     "O valor de vBC é obrigatório", {}},
    {"ICMS90 with its own ICMS without pICMS",
     tributar(icms90().set_tributacao_normal_icms_90(normal_90().set_aliquota_icms({}))), 51, aliquota_icms,
     "O valor de pICMS é obrigatório", {}},
    {"ICMS90 with its own ICMS without vICMS",
     tributar(icms90().set_tributacao_normal_icms_90(normal_90().set_valor_icms({}))), 55, valor_icms,
     "O valor de vICMS é obrigatório", {}},
    {"ICMS90 with substitution without vBCST",
     tributar(icms90().set_tributacao_st_icms_90(st_90().set_valor_bc_icms_st({}))), 47, base_icms,
     "O valor de vBCST é obrigatório", {}},
    {"ICMS90 with modBCST and vBCST alone",
     tributar(icms90().set_tributacao_st_icms_90(st_90().set_aliquota_icms_st({}).set_valor_icms_st({}))), 51,
     aliquota_icms, "O valor de pICMSST é obrigatório", {}},
    {"ICMS90 with substitution without vICMSST",
     tributar(icms90().set_tributacao_st_icms_90(st_90().set_valor_icms_st({}))), 55, valor_icms,
     "O valor de vICMSST é obrigatório", {}},
    {"ICMSSN900 with its own ICMS without vICMS",
     tributar(icms900().set_tributacao_normal_icms_900(tributacao_normal_icms_900()
                                                           .set_valor_bc_icms(valor("100.00"))
                                                           .set_aliquota_icms(valor("18.00")))),
     55, valor_icms, "O valor de vICMS é obrigatório", {}},
    {"ICMSSN900 with substitution without pICMSST",
     tributar(icms900().set_tributacao_st_icms_900(com_st(tributacao_st_icms_900()).set_aliquota_icms_st({}))), 51,
     aliquota_icms, "O valor de pICMSST é obrigatório", {}},
    {"ICMSSN900 with pCredSN alone",
     tributar(icms900().set_tributacao_credito_sn_icms_900(credito_900().set_valor_de_credito_sn({}))), 57,
     "O valor do crédito do ICMS está inválida", "O valor de vCredICMSSN é obrigatório", {}},
    {"ICMSSN900 with vCredICMSSN alone",
     tributar(icms900().set_tributacao_credito_sn_icms_900(credito_900().set_aliquota_de_credito_sn({}))), 56,
     "A aliquota de crédito do ICMS está inválida", "O valor de pCredSN é obrigatório", {}},
    // ISSQN: what the layout admits beside it and in its indicators
    {"ISSQN with import tax",
     no_primeiro_produto([](produto& p) {
         p.set_tributacao(servico()).set_tributacao_importacao(
             tributacao_imposto_importacao().set_valor_bc_imposto_importacao(valor("100.00")));
     }),
     65, "O grupo referente a tributação é inválido", nullptr, {}},
    {"ISSQN indicator 0", tributar(servico().set_indicador_iss(0)), 65, "O grupo referente a tributação é inválido",
     nullptr, {}},
    {"ISSQN indicator 8", tributar(servico().set_indicador_iss(8)), 65, "O grupo referente a tributação é inválido",
     nullptr, {}},
    {"ISSQN incentive 3", tributar(servico().set_indicador_incentivo(3)), 65,
     "O grupo referente a tributação é inválido", nullptr, {}},
    // IPI
    {"IPI CST 14", com_ipi(ipi_por_aliquota().set_cst_ipi(bruto<cst_ipi>(14))), 43,
     "O código de tributação do IPI está inválido", "14", {}},
    {"producer's CNPJ with punctuation", com_ipi(ipi_por_aliquota().set_cnpj_produtor("08.931.527/0001-41")), 75,
     "O CNPJ do produtor está inválido", "08.931.527/0001-41", {conversor}},
    {"class of framing not a number", com_ipi(ipi_por_aliquota().set_classe_enquadramento_ipi("99A")), 76,
     "A classe enquadramento do IPI está inválida", "99A", {conversor}},
    {"class of framing longer than 16 characters",
     com_ipi(ipi_por_aliquota().set_classe_enquadramento_ipi("00000000000000999")), 76,
     "A classe enquadramento do IPI está inválida", "00000000000000999", {conversor}},
    {"IPI without rate, checked before the base",
     com_ipi(ipi_por_aliquota().set_tributacao_ipi_calculo_aliquota(tributacao_ipi_calculo_aliquota())), 54,
     aliquota_ipi, "O valor pIPI é obrigatório para o cálculo do IPI", {}},
    {"IPI without base",
     com_ipi(ipi_por_aliquota().set_tributacao_ipi_calculo_aliquota(
                 tributacao_ipi_calculo_aliquota().set_aliquota_ipi(valor("10.00")))),
     50, "A base de cálculo do IPI está inválida", "O valor vBC é obrigatório para o cálculo do IPI", {}},
    {"IPI by unit without the value per unit",
     com_ipi(ipi_por_aliquota().set_tributacao_ipi_calculo_aliquota({}).set_tributacao_ipi_calculo_valor(
                 tributacao_ipi_calculo_valor())),
     63, "A unidade tributável está inválida", "null", {}},
    // PIS and COFINS
    {"PISAliq CST 2", com_pis(pis_aliquota().set_cst_pis(bruto<cst_pis_cofins_aliquota>(2))), 33,
     "O código de tributação do PIS está inválido", "2", {}},
    {"PISNT CST 6", com_pis(grupo_tributacao_pis_nt().set_cst_pis(bruto<cst_pis_cofins_nao_tributado>(6))), 34,
     "O código do PIS não tributado está inválido", "6", {}},
    {"PISOutr CST 24", com_pis(pis_outros().set_cst_pis(bruto<cst_pis_cofins_outras_operacoes>(24))), 35,
     "O código de outras operações do PIS está inválido", "24", {}},
    {"COFINSAliq CST 2", com_cofins(cofins_aliquota().set_cst_cofins(bruto<cst_pis_cofins_aliquota>(2))), 36,
     "O código de tributação COFINS está inválido", "2", {}},
    {"COFINSNT CST 6", com_cofins(grupo_tributacao_cofins_nt().set_cst_cofins(bruto<cst_pis_cofins_nao_tributado>(6))),
     37, "O código do COFINS não tributado está inválido", "6", {}},
    {"COFINSOutr CST 24", com_cofins(cofins_outros().set_cst_cofins(bruto<cst_pis_cofins_outras_operacoes>(24))), 38,
     "O código de outras opraçãoes de COFINS está inválido", "24", {}},
    {"PISAliq without base", com_pis(pis_aliquota().set_valor_bc_pis({})), 48, "A base de cálculo do PIS está inválida",
     "O valor vBC referente ao PIS é obrigatório", {}},
    {"PISAliq without rate", com_pis(pis_aliquota().set_percentual_aliquota_pis({})), 52,
     "A aliquota do PIS está inválida", "O valor pPIS é obrigatório", {}},
    {"PISOutr without base", com_pis(pis_outros().set_valor_bc_pis({})), 48, "A base de cálculo do PIS está inválida",
     "O valor vBC é obrigatório para o cálculo do PIS", {}},
    {"PISOutr without rate, reported with the code of IPI", com_pis(pis_outros().set_percentual_aliquota_pis({})), 54,
     aliquota_ipi, "O valor pPIS é obrigatório para o cálculo do PIS", {}},
    {"COFINSAliq without base", com_cofins(cofins_aliquota().set_valor_bc_cofins({})), 49,
     "A base de cálculo do COFINS está inválida", "O valor vBC é obrigatório para o cálculo da COFINS", {}},
    {"COFINSAliq without rate", com_cofins(cofins_aliquota().set_percentual_aliquota_cofins({})), 53,
     "A aliquota do COFINS está inválida", "O valor pCOFINS é obrigatório para o cálculo da COFINS", {}},
    {"COFINSOutr without base, without the verb", com_cofins(cofins_outros().set_valor_bc_cofins({})), 49,
     "A base de cálculo do COFINS está inválida", "O valor vBC obrigatório para o cálculo da COFINS", {}},
    {"COFINSOutr without rate", com_cofins(cofins_outros().set_percentual_aliquota_cofins({})), 53,
     "A aliquota do COFINS está inválida", "O valor pCOFINS é obrigatório para o cálculo da COFINS", {}},
    // Closing groups
    {"freight mode 6, with the words of the type of issue",
     [](nota_fiscal& n) {
         n.set_informacoes_transporte(n.get_informacoes_transporte().set_modalidade_frete(bruto<modalidade_frete>(6)));
     },
     45, "O tipo de emissão está inválido", "6", {}},
    {"payment form 2",
     pago_com(cartao(transacao_tef()).set_indicador_forma_pagamento(bruto<indicador_forma_pagamento>(2))), 39,
     "O indicador da forma de pagamento está inválido", "2", {}},
    {"means of payment 17", pago_com(cartao(transacao_tef()).set_meio_pagamento(bruto<meio_pagamento>(17))), 40,
     "O indicador do tipo de pagamento está inválido", "17", {}},
    {"integration type 2", pago_com(cartao(transacao_tef().set_tipo_integracao(bruto<tipo_integracao_pagamento>(2)))),
     41, "O tipo de integração do pagamento está inválido", "2", {}},
    {"card brand 28", pago_com(cartao(transacao_tef().set_bandeira(bruto<bandeira_cartao>(28)))), 42,
     "A bandeira do cartão usado na transação está inválido", "28", {}},
    {"regime of services 0", regime_de_servicos(0), 21, "O código do regime tributário está inválido", "0", {}},
    {"regime of services 7", regime_de_servicos(7), 21, "O código do regime tributário está inválido", "7", {}},
    {"process origin 4", processo(4), 77, "O indicador da origem do processo está inválido", "4", {}},
    {"process origin 8", processo(8), 77, "O indicador da origem do processo está inválido", "8", {}},
    {"process origin 10", processo(10), 77, "O indicador da origem do processo está inválido", "10", {}},
};

class montar_recusa_imposto : public testing::TestWithParam<recusa> {};

TEST_P(montar_recusa_imposto, pushes_its_code_words_and_value_on_top_of_what_the_readers_pushed)
{
    velk::test::verificar_recusa(velk::test::nota_nfe_completa(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(codigos, montar_recusa_imposto, testing::ValuesIn(recusas), velk::test::nome_do_caso);

TEST(montar_recusas_impostos, the_enumerations_of_a_group_are_read_before_its_values)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    tributar(nota, icms10().set_valor_bc_icms({}).set_modalidade_bc_icms_st(bruto<modalidade_bc_icms_st>(7)));
    velk::core::result::stack report;
    velk::erp::tarn::nfe::layout_4_00::montar_layout_4_00(nota, report);
    EXPECT_EQ(report.get_value(), 30);
}

TEST(montar_recusas_impostos, the_first_failing_item_stops_the_note)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    velk::test::no_produto(nota, 1, [](produto& p) { p.set_tributacao(icms00().set_valor_icms({})); });
    velk::test::no_produto(nota, 2, [](produto& p) { p.set_tributacao(icms00().set_valor_bc_icms({})); });
    velk::core::result::stack report;
    velk::erp::tarn::nfe::layout_4_00::montar_layout_4_00(nota, report);
    ASSERT_EQ(report.size(), 1u);
    EXPECT_EQ(report.get_value(), 55);
}

TEST(layout_4_00_morte, a_taxed_ipi_without_its_value_ends_the_process)
{
    nota_fiscal nota = velk::test::nota_nfe_completa();
    com_ipi(nota, ipi_por_aliquota().set_valor_ipi({}));
    EXPECT_EXIT(
        {
            velk::core::result::stack report;
            velk::erp::tarn::nfe::layout_4_00::montar_layout_4_00(nota, report);
        },
        testing::ExitedWithCode(1),
        "BUG FOUND! Verifique se há valor no optional antes de chamar o método 'T &&value\\(\\)'");
}

}  // namespace

#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <support/palavras_categoria.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using velk::core::result::chain;
using velk::core::result::stack;
using velk::erp::tarn::nfe::processar_nota_result_category;

processar_nota_result_category const& categoria = processar_nota_result_category::instance();

// The words of every code as the published table gives them, its slips of
// spelling and accent included; 79 and 80 have none.
TEST(processar_nota_result_category, words_of_every_code)
{
    velk::test::conferir_palavras(categoria, "tarn-nfe-nota-fiscal", {
        {1, "O CNPJ do produtor rural está inválido"},
        {2, "O CPF do produtor rural está inválido"},
        {3, "Nenhum documento informado para o produtor rural"},
        {4, "O CNPJ do emitente está inválido"},
        {5, "Nenhum documento informado para o emitente"},
        {6, "O CNPJ do destinatario está inválido"},
        {7, "O CPF do destinatario está inválido"},
        {8, "A identificação de estrangeiro está inválida"},
        {9, "Nenhum documento informado para o destinatario"},
        {10, "O CPF informado para entrega está inválido"},
        {11, "O CNPJ informado para entrega está inválido"},
        {12, "Nenhum documento informado para entrega"},
        {13, "O CNPJ do transportador está inválido"},
        {14, "O CPF do transportados está inválido"},
        {15, "Nenhum documento informado para o transportados"},
        {16, "O ambiente de emissão inválido"},
        {17, "A indicação de consumidor final está inválida"},
        {18, "A indicação de presença do consumidor está inválida"},
        {19, "O modelo da nota referenciada de produtor está inválido"},
        {20, "O modelo do cupom fiscal está inválido"},
        {21, "O código do regime tributário está inválido"},
        {22, "Tipo de operação da nota inválido"},
        {23, "O destino de operação da nota está inválido"},
        {24, "O indicador da IE do destinatário está inválido"},
        {25, "O indicador no item referente a composição total está inválida"},
        {26, "O tipo da via de transporte está inválida"},
        {27, "O tipo de intermediação do transporte está inválido"},
        {28, "A origem da mercadoria está inválida"},
        {29, "A modalidade da base de cálculo do ICMS está inválida"},
        {30, "A modalidade da base de cálculo por ST do ICMS está inválida"},
        {31, "A situação de operação do simples nacional está inválida"},
        {32, "O código de tributação do ICMS está inválido"},
        {33, "O código de tributação do PIS está inválido"},
        {34, "O código do PIS não tributado está inválido"},
        {35, "O código de outras operações do PIS está inválido"},
        {36, "O código de tributação COFINS está inválido"},
        {37, "O código do COFINS não tributado está inválido"},
        {38, "O código de outras opraçãoes de COFINS está inválido"},
        {39, "O indicador da forma de pagamento está inválido"},
        {40, "O indicador do tipo de pagamento está inválido"},
        {41, "O tipo de integração do pagamento está inválido"},
        {42, "A bandeira do cartão usado na transação está inválido"},
        {43, "O código de tributação do IPI está inválido"},
        {44, "A modalidade do frete está inválida"},
        {45, "O tipo de emissão está inválido"},
        {46, "O motivo do ICMS desonerado está invaĺido"},
        {47, "A base de cálculo do ICMS está inválida"},
        {48, "A base de cálculo do PIS está inválida"},
        {49, "A base de cálculo do COFINS está inválida"},
        {50, "A base de cálculo do IPI está inválida"},
        {51, "A aliquota do ICMS está inválida"},
        {52, "A aliquota do PIS está inválida"},
        {53, "A aliquota do COFINS está inválida"},
        {54, "A aliquota do IPI está inválida"},
        {55, "O valor do ICMS está inválido"},
        {56, "A aliquota de crédito do ICMS está inválida"},
        {57, "O valor do crédito do ICMS está inválida"},
        {58, "A chave de acesso da nota fiscal está inválida"},
        {59, "O CEP do emitente está inválido"},
        {60, "O telefone do destinatario está inválido"},
        {61, "A quantidade tributável está inválida"},
        {62, "O percentual de redução da base de cálculo do ICMS está inválido"},
        {63, "A unidade tributável está inválida"},
        {64, "A finalidade de emissão está inválida"},
        {65, "O grupo referente a tributação é inválido"},
        {66, "Documento inválido para fornecer acesso ao xml da nota"},
        {67, "O CNPJ da nota referenciada é inválido"},
        {68, "A série da nota referenciada é inválida"},
        {69, "A série da nota referenciada de produtor é inválida"},
        {70, "O código de IBGE está inválido"},
        {71, "O modelo de emissão está inválido"},
        {72, "A série é inválida"},
        {73, "O telefone do emitente está inválido"},
        {74, "O CNPJ do importador está inválido"},
        {75, "O CNPJ do produtor está inválido"},
        {76, "A classe enquadramento do IPI está inválida"},
        {77, "O indicador da origem do processo está inválido"},
        {78, "O indicador de intermediador/marketplace está inválido"},
        {81, "O tipo de arma está inválido"},
    }, {79, 80});
}

TEST(processar_nota_result_category, required_values_are_fresh_reports)
{
    struct obrigatorio {
        void (*reportar)(stack&, std::string const&);
        int codigo;
    };
    for (obrigatorio const caso : {obrigatorio{velk::erp::tarn::nfe::obrigatorio_base, 47},
                                   obrigatorio{velk::erp::tarn::nfe::obrigatorio_valor, 55}}) {
        stack report;
        chain<velk::core::converter_result_category::invalid_value>(report);
        caso.reportar(report, "O valor de vBCST é obrigatório");
        ASSERT_EQ(report.size(), 1u);
        EXPECT_TRUE(report.get_category() == categoria);
        EXPECT_EQ(report.get_value(), caso.codigo);
        EXPECT_EQ(*report.top().find_argument("value"), "O valor de vBCST é obrigatório");
    }
}

}  // namespace

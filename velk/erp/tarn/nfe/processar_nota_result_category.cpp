#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <velk/core/result/report.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

// By code, from 1.
char const* const mensagens[] = {
    "O CNPJ do produtor rural está inválido",  // 1
    "O CPF do produtor rural está inválido",  // 2
    "Nenhum documento informado para o produtor rural",  // 3
    "O CNPJ do emitente está inválido",  // 4
    "Nenhum documento informado para o emitente",  // 5
    "O CNPJ do destinatario está inválido",  // 6
    "O CPF do destinatario está inválido",  // 7
    "A identificação de estrangeiro está inválida",  // 8
    "Nenhum documento informado para o destinatario",  // 9
    "O CPF informado para entrega está inválido",  // 10
    "O CNPJ informado para entrega está inválido",  // 11
    "Nenhum documento informado para entrega",  // 12
    "O CNPJ do transportador está inválido",  // 13
    "O CPF do transportados está inválido",  // 14
    "Nenhum documento informado para o transportados",  // 15
    "O ambiente de emissão inválido",  // 16
    "A indicação de consumidor final está inválida",  // 17
    "A indicação de presença do consumidor está inválida",  // 18
    "O modelo da nota referenciada de produtor está inválido",  // 19
    "O modelo do cupom fiscal está inválido",  // 20
    "O código do regime tributário está inválido",  // 21
    "Tipo de operação da nota inválido",  // 22
    "O destino de operação da nota está inválido",  // 23
    "O indicador da IE do destinatário está inválido",  // 24
    "O indicador no item referente a composição total está inválida",  // 25
    "O tipo da via de transporte está inválida",  // 26
    "O tipo de intermediação do transporte está inválido",  // 27
    "A origem da mercadoria está inválida",  // 28
    "A modalidade da base de cálculo do ICMS está inválida",  // 29
    "A modalidade da base de cálculo por ST do ICMS está inválida",  // 30
    "A situação de operação do simples nacional está inválida",  // 31
    "O código de tributação do ICMS está inválido",  // 32
    "O código de tributação do PIS está inválido",  // 33
    "O código do PIS não tributado está inválido",  // 34
    "O código de outras operações do PIS está inválido",  // 35
    "O código de tributação COFINS está inválido",  // 36
    "O código do COFINS não tributado está inválido",  // 37
    "O código de outras opraçãoes de COFINS está inválido",  // 38
    "O indicador da forma de pagamento está inválido",  // 39
    "O indicador do tipo de pagamento está inválido",  // 40
    "O tipo de integração do pagamento está inválido",  // 41
    "A bandeira do cartão usado na transação está inválido",  // 42
    "O código de tributação do IPI está inválido",  // 43
    "A modalidade do frete está inválida",  // 44
    "O tipo de emissão está inválido",  // 45
    "O motivo do ICMS desonerado está invaĺido",  // 46
    "A base de cálculo do ICMS está inválida",  // 47
    "A base de cálculo do PIS está inválida",  // 48
    "A base de cálculo do COFINS está inválida",  // 49
    "A base de cálculo do IPI está inválida",  // 50
    "A aliquota do ICMS está inválida",  // 51
    "A aliquota do PIS está inválida",  // 52
    "A aliquota do COFINS está inválida",  // 53
    "A aliquota do IPI está inválida",  // 54
    "O valor do ICMS está inválido",  // 55
    "A aliquota de crédito do ICMS está inválida",  // 56
    "O valor do crédito do ICMS está inválida",  // 57
    "A chave de acesso da nota fiscal está inválida",  // 58
    "O CEP do emitente está inválido",  // 59
    "O telefone do destinatario está inválido",  // 60
    "A quantidade tributável está inválida",  // 61
    "O percentual de redução da base de cálculo do ICMS está inválido",  // 62
    "A unidade tributável está inválida",  // 63
    "A finalidade de emissão está inválida",  // 64
    "O grupo referente a tributação é inválido",  // 65
    "Documento inválido para fornecer acesso ao xml da nota",  // 66
    "O CNPJ da nota referenciada é inválido",  // 67
    "A série da nota referenciada é inválida",  // 68
    "A série da nota referenciada de produtor é inválida",  // 69
    "O código de IBGE está inválido",  // 70
    "O modelo de emissão está inválido",  // 71
    "A série é inválida",  // 72
    "O telefone do emitente está inválido",  // 73
    "O CNPJ do importador está inválido",  // 74
    "O CNPJ do produtor está inválido",  // 75
    "A classe enquadramento do IPI está inválida",  // 76
    "O indicador da origem do processo está inválido",  // 77
    "O indicador de intermediador/marketplace está inválido",  // 78
    nullptr,  // 79
    nullptr,  // 80
    "O tipo de arma está inválido",  // 81
};

static_assert(sizeof mensagens / sizeof mensagens[0] == processar_nota_result_category::ultimo_codigo);

}  // namespace

processar_nota_result_category::processar_nota_result_category() : table_category("tarn-nfe-nota-fiscal", mensagens)
{
}

processar_nota_result_category const& processar_nota_result_category::instance()
{
    static processar_nota_result_category const category;
    return category;
}

void obrigatorio_base(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<processar_nota_result_category, 47>(stack, mensagem);
}

void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<processar_nota_result_category, 55>(stack, mensagem);
}

}  // namespace velk::erp::inline v4::tarn::nfe

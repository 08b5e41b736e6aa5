#pragma once

#include <velk/core/result/category.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/text_formatter.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Refusals of the values of a fiscal note while its document is generated, in
// every layout and from every source. Each code names the kind of value that
// was refused; the detail travels in the item's argument "value": the text
// that was refused, the raw number of an enumeration outside its range, or a
// sentence that names the missing tag.
class processar_nota_result_category final : public core::result::category {
public:
    // What the argument "value" of a code holds.
    enum class argumento { nenhum, texto, numero };

    static processar_nota_result_category const& instance();

    char const* get_name() const override;
    char const* get_message(int code) const override;

    static constexpr int ultimo_codigo = 81;

    static constexpr argumento get_argumento(int code)
    {
        return code >= 1 && code <= ultimo_codigo ? codigos[code].valor : argumento::nenhum;
    }

    template <int N>
        requires(get_argumento(N) == argumento::texto)
    void create(core::result::stack::item& item, core::result::code<processar_nota_result_category, N>,
                std::string const& value) const
    {
        item.set_argument("value", value);
    }

    template <int N>
        requires(get_argumento(N) == argumento::numero)
    void create(core::result::stack::item& item, core::result::code<processar_nota_result_category, N>,
                unsigned int value) const
    {
        item.set_argument("value", core::text_formatter::format("{0}", value));
    }

    template <int N>
        requires(N >= 1 && N <= ultimo_codigo && get_argumento(N) == argumento::nenhum)
    void create(core::result::stack::item&, core::result::code<processar_nota_result_category, N>) const
    {
    }

private:
    processar_nota_result_category() = default;

    struct codigo {
        char const* palavras;  // null: the code exists but has no words
        argumento valor;
    };

    // By code number; index 0 is no code.
    static constexpr codigo codigos[ultimo_codigo + 1] = {
        {nullptr, argumento::nenhum},  // 0
        {"O CNPJ do produtor rural está inválido", argumento::texto},  // 1
        {"O CPF do produtor rural está inválido", argumento::texto},  // 2
        {"Nenhum documento informado para o produtor rural", argumento::nenhum},  // 3
        {"O CNPJ do emitente está inválido", argumento::texto},  // 4
        {"Nenhum documento informado para o emitente", argumento::nenhum},  // 5
        {"O CNPJ do destinatario está inválido", argumento::texto},  // 6
        {"O CPF do destinatario está inválido", argumento::texto},  // 7
        {"A identificação de estrangeiro está inválida", argumento::texto},  // 8
        {"Nenhum documento informado para o destinatario", argumento::nenhum},  // 9
        {"O CPF informado para entrega está inválido", argumento::texto},  // 10
        {"O CNPJ informado para entrega está inválido", argumento::texto},  // 11
        {"Nenhum documento informado para entrega", argumento::nenhum},  // 12
        {"O CNPJ do transportador está inválido", argumento::texto},  // 13
        {"O CPF do transportados está inválido", argumento::texto},  // 14
        {"Nenhum documento informado para o transportados", argumento::nenhum},  // 15
        {"O ambiente de emissão inválido", argumento::numero},  // 16
        {"A indicação de consumidor final está inválida", argumento::numero},  // 17
        {"A indicação de presença do consumidor está inválida", argumento::numero},  // 18
        {"O modelo da nota referenciada de produtor está inválido", argumento::numero},  // 19
        {"O modelo do cupom fiscal está inválido", argumento::numero},  // 20
        {"O código do regime tributário está inválido", argumento::numero},  // 21
        {"Tipo de operação da nota inválido", argumento::numero},  // 22
        {"O destino de operação da nota está inválido", argumento::numero},  // 23
        {"O indicador da IE do destinatário está inválido", argumento::numero},  // 24
        {"O indicador no item referente a composição total está inválida", argumento::numero},  // 25
        {"O tipo da via de transporte está inválida", argumento::numero},  // 26
        {"O tipo de intermediação do transporte está inválido", argumento::numero},  // 27
        {"A origem da mercadoria está inválida", argumento::numero},  // 28
        {"A modalidade da base de cálculo do ICMS está inválida", argumento::numero},  // 29
        {"A modalidade da base de cálculo por ST do ICMS está inválida", argumento::numero},  // 30
        {"A situação de operação do simples nacional está inválida", argumento::numero},  // 31
        {"O código de tributação do ICMS está inválido", argumento::numero},  // 32
        {"O código de tributação do PIS está inválido", argumento::numero},  // 33
        {"O código do PIS não tributado está inválido", argumento::numero},  // 34
        {"O código de outras operações do PIS está inválido", argumento::numero},  // 35
        {"O código de tributação COFINS está inválido", argumento::numero},  // 36
        {"O código do COFINS não tributado está inválido", argumento::numero},  // 37
        {"O código de outras opraçãoes de COFINS está inválido", argumento::numero},  // 38
        {"O indicador da forma de pagamento está inválido", argumento::numero},  // 39
        {"O indicador do tipo de pagamento está inválido", argumento::numero},  // 40
        {"O tipo de integração do pagamento está inválido", argumento::numero},  // 41
        {"A bandeira do cartão usado na transação está inválido", argumento::numero},  // 42
        {"O código de tributação do IPI está inválido", argumento::numero},  // 43
        {"A modalidade do frete está inválida", argumento::numero},  // 44
        {"O tipo de emissão está inválido", argumento::numero},  // 45
        {"O motivo do ICMS desonerado está invaĺido", argumento::numero},  // 46
        {"A base de cálculo do ICMS está inválida", argumento::texto},  // 47
        {"A base de cálculo do PIS está inválida", argumento::texto},  // 48
        {"A base de cálculo do COFINS está inválida", argumento::texto},  // 49
        {"A base de cálculo do IPI está inválida", argumento::texto},  // 50
        {"A aliquota do ICMS está inválida", argumento::texto},  // 51
        {"A aliquota do PIS está inválida", argumento::texto},  // 52
        {"A aliquota do COFINS está inválida", argumento::texto},  // 53
        {"A aliquota do IPI está inválida", argumento::texto},  // 54
        {"O valor do ICMS está inválido", argumento::texto},  // 55
        {"A aliquota de crédito do ICMS está inválida", argumento::texto},  // 56
        {"O valor do crédito do ICMS está inválida", argumento::texto},  // 57
        {"A chave de acesso da nota fiscal está inválida", argumento::texto},  // 58
        {"O CEP do emitente está inválido", argumento::texto},  // 59
        {"O telefone do destinatario está inválido", argumento::texto},  // 60
        {"A quantidade tributável está inválida", argumento::texto},  // 61
        {"O percentual de redução da base de cálculo do ICMS está inválido", argumento::texto},  // 62
        {"A unidade tributável está inválida", argumento::texto},  // 63
        {"A finalidade de emissão está inválida", argumento::numero},  // 64
        {"O grupo referente a tributação é inválido", argumento::nenhum},  // 65
        {"Documento inválido para fornecer acesso ao xml da nota", argumento::nenhum},  // 66
        {"O CNPJ da nota referenciada é inválido", argumento::texto},  // 67
        {"A série da nota referenciada é inválida", argumento::texto},  // 68
        {"A série da nota referenciada de produtor é inválida", argumento::texto},  // 69
        {"O código de IBGE está inválido", argumento::texto},  // 70
        {"O modelo de emissão está inválido", argumento::texto},  // 71
        {"A série é inválida", argumento::texto},  // 72
        {"O telefone do emitente está inválido", argumento::texto},  // 73
        {"O CNPJ do importador está inválido", argumento::texto},  // 74
        {"O CNPJ do produtor está inválido", argumento::texto},  // 75
        {"A classe enquadramento do IPI está inválida", argumento::texto},  // 76
        {"O indicador da origem do processo está inválido", argumento::numero},  // 77
        {"O indicador de intermediador/marketplace está inválido", argumento::numero},  // 78
        {nullptr, argumento::nenhum},  // 79
        {nullptr, argumento::nenhum},  // 80
        {"O tipo de arma está inválido", argumento::numero},  // 81
    };
};

// A required base of calculation is missing: code 47, with the sentence that
// names the tag. The stack holds this one item afterwards.
void obrigatorio_base(core::result::stack& stack, std::string const& mensagem);

// A required tax value is missing: code 55, as obrigatorio_base.
void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem);

}  // namespace velk::erp::inline v4::tarn::nfe

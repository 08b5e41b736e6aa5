#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

class processar_nota_result_category;

// A code of processar_nota_result_category: its detail, if any, is stored as
// "value".
template <int N, class... Detalhe>
    requires(sizeof...(Detalhe) <= 1)
struct recusa : core::result::row<processar_nota_result_category, N, Detalhe...> {
    using base = core::result::row<processar_nota_result_category, N, Detalhe...>;
    constexpr explicit recusa(char const* palavras)
        requires(sizeof...(Detalhe) == 0)
        : base(palavras)
    {
    }
    constexpr explicit recusa(char const* palavras)
        requires(sizeof...(Detalhe) == 1)
        : base(palavras, "value")
    {
    }
};

// Refusals of the values of a fiscal note while its document is generated
// ("tarn-nfe-nota-fiscal"), in every layout and from every source. The words
// of a code name the kind of value refused; the detail travels in the item's
// argument "value": the text refused (texto), the raw number of an
// enumeration beyond its range (numero), or a sentence that names the missing
// tag (texto). Codes 79 and 80 have no words.
class VELK_EXPORT processar_nota_result_category final : public core::result::table_category {
public:
    using texto = core::result::text;
    using numero = core::result::number<unsigned int>;

    static constexpr int ultimo_codigo = 81;

    static processar_nota_result_category const& instance();

    // Number, name, kind of "value", words.
    static constexpr recusa<1, texto> cnpj_produtor_rural_invalido{"O CNPJ do produtor rural está inválido"};
    static constexpr recusa<2, texto> cpf_produtor_rural_invalido{"O CPF do produtor rural está inválido"};
    static constexpr recusa<3> sem_documento_produtor_rural{"Nenhum documento informado para o produtor rural"};
    static constexpr recusa<4, texto> cnpj_emitente_invalido{"O CNPJ do emitente está inválido"};
    static constexpr recusa<5> sem_documento_emitente{"Nenhum documento informado para o emitente"};
    static constexpr recusa<6, texto> cnpj_destinatario_invalido{"O CNPJ do destinatario está inválido"};
    static constexpr recusa<7, texto> cpf_destinatario_invalido{"O CPF do destinatario está inválido"};
    static constexpr recusa<8, texto> id_estrangeiro_invalido{"A identificação de estrangeiro está inválida"};
    static constexpr recusa<9> sem_documento_destinatario{"Nenhum documento informado para o destinatario"};
    static constexpr recusa<10, texto> cpf_entrega_invalido{"O CPF informado para entrega está inválido"};
    static constexpr recusa<11, texto> cnpj_entrega_invalido{"O CNPJ informado para entrega está inválido"};
    static constexpr recusa<12> sem_documento_entrega{"Nenhum documento informado para entrega"};
    static constexpr recusa<13, texto> cnpj_transportador_invalido{"O CNPJ do transportador está inválido"};
    static constexpr recusa<14, texto> cpf_transportador_invalido{"O CPF do transportados está inválido"};
    static constexpr recusa<15> sem_documento_transportador{"Nenhum documento informado para o transportados"};
    static constexpr recusa<16, numero> ambiente_invalido{"O ambiente de emissão inválido"};
    static constexpr recusa<17, numero> consumidor_final_invalido{"A indicação de consumidor final está inválida"};
    static constexpr recusa<18, numero> presenca_invalida{"A indicação de presença do consumidor está inválida"};
    static constexpr recusa<19, numero> modelo_nf_produtor_invalido{
        "O modelo da nota referenciada de produtor está inválido"};
    static constexpr recusa<20, numero> modelo_cupom_invalido{"O modelo do cupom fiscal está inválido"};
    static constexpr recusa<21, numero> regime_tributario_invalido{"O código do regime tributário está inválido"};
    static constexpr recusa<22, numero> tipo_operacao_invalido{"Tipo de operação da nota inválido"};
    static constexpr recusa<23, numero> destino_operacao_invalido{"O destino de operação da nota está inválido"};
    static constexpr recusa<24, numero> indicador_ie_invalido{"O indicador da IE do destinatário está inválido"};
    static constexpr recusa<25, numero> indicador_total_invalido{
        "O indicador no item referente a composição total está inválida"};
    static constexpr recusa<26, numero> via_transporte_invalida{"O tipo da via de transporte está inválida"};
    static constexpr recusa<27, numero> intermediacao_invalida{"O tipo de intermediação do transporte está inválido"};
    static constexpr recusa<28, numero> origem_mercadoria_invalida{"A origem da mercadoria está inválida"};
    static constexpr recusa<29, numero> modalidade_bc_icms_invalida{
        "A modalidade da base de cálculo do ICMS está inválida"};
    static constexpr recusa<30, numero> modalidade_bc_st_invalida{
        "A modalidade da base de cálculo por ST do ICMS está inválida"};
    static constexpr recusa<31, numero> csosn_invalido{"A situação de operação do simples nacional está inválida"};
    static constexpr recusa<32, numero> cst_icms_invalido{"O código de tributação do ICMS está inválido"};
    static constexpr recusa<33, numero> cst_pis_invalido{"O código de tributação do PIS está inválido"};
    static constexpr recusa<34, numero> cst_pis_nao_tributado_invalido{"O código do PIS não tributado está inválido"};
    static constexpr recusa<35, numero> cst_pis_outras_invalido{"O código de outras operações do PIS está inválido"};
    static constexpr recusa<36, numero> cst_cofins_invalido{"O código de tributação COFINS está inválido"};
    static constexpr recusa<37, numero> cst_cofins_nao_tributado_invalido{
        "O código do COFINS não tributado está inválido"};
    static constexpr recusa<38, numero> cst_cofins_outras_invalido{
        "O código de outras opraçãoes de COFINS está inválido"};
    static constexpr recusa<39, numero> forma_pagamento_invalida{"O indicador da forma de pagamento está inválido"};
    static constexpr recusa<40, numero> tipo_pagamento_invalido{"O indicador do tipo de pagamento está inválido"};
    static constexpr recusa<41, numero> tipo_integracao_invalido{"O tipo de integração do pagamento está inválido"};
    static constexpr recusa<42, numero> bandeira_cartao_invalida{
        "A bandeira do cartão usado na transação está inválido"};
    static constexpr recusa<43, numero> cst_ipi_invalido{"O código de tributação do IPI está inválido"};
    static constexpr recusa<44, numero> modalidade_frete_invalida{"A modalidade do frete está inválida"};
    static constexpr recusa<45, numero> tipo_emissao_invalido{"O tipo de emissão está inválido"};
    static constexpr recusa<46, numero> motivo_desoneracao_invalido{"O motivo do ICMS desonerado está invaĺido"};
    static constexpr recusa<47, texto> base_icms_invalida{"A base de cálculo do ICMS está inválida"};
    static constexpr recusa<48, texto> base_pis_invalida{"A base de cálculo do PIS está inválida"};
    static constexpr recusa<49, texto> base_cofins_invalida{"A base de cálculo do COFINS está inválida"};
    static constexpr recusa<50, texto> base_ipi_invalida{"A base de cálculo do IPI está inválida"};
    static constexpr recusa<51, texto> aliquota_icms_invalida{"A aliquota do ICMS está inválida"};
    static constexpr recusa<52, texto> aliquota_pis_invalida{"A aliquota do PIS está inválida"};
    static constexpr recusa<53, texto> aliquota_cofins_invalida{"A aliquota do COFINS está inválida"};
    static constexpr recusa<54, texto> aliquota_ipi_invalida{"A aliquota do IPI está inválida"};
    static constexpr recusa<55, texto> valor_icms_invalido{"O valor do ICMS está inválido"};
    static constexpr recusa<56, texto> aliquota_credito_icms_invalida{"A aliquota de crédito do ICMS está inválida"};
    static constexpr recusa<57, texto> valor_credito_icms_invalido{"O valor do crédito do ICMS está inválida"};
    static constexpr recusa<58, texto> chave_acesso_invalida{"A chave de acesso da nota fiscal está inválida"};
    static constexpr recusa<59, texto> cep_emitente_invalido{"O CEP do emitente está inválido"};
    static constexpr recusa<60, texto> telefone_destinatario_invalido{"O telefone do destinatario está inválido"};
    static constexpr recusa<61, texto> quantidade_tributavel_invalida{"A quantidade tributável está inválida"};
    static constexpr recusa<62, texto> reducao_bc_icms_invalida{
        "O percentual de redução da base de cálculo do ICMS está inválido"};
    static constexpr recusa<63, texto> unidade_tributavel_invalida{"A unidade tributável está inválida"};
    static constexpr recusa<64, numero> finalidade_emissao_invalida{"A finalidade de emissão está inválida"};
    static constexpr recusa<65> grupo_tributacao_invalido{"O grupo referente a tributação é inválido"};
    static constexpr recusa<66> documento_acesso_xml_invalido{"Documento inválido para fornecer acesso ao xml da nota"};
    static constexpr recusa<67, texto> cnpj_nf_referenciada_invalido{"O CNPJ da nota referenciada é inválido"};
    static constexpr recusa<68, texto> serie_nf_referenciada_invalida{"A série da nota referenciada é inválida"};
    static constexpr recusa<69, texto> serie_nf_produtor_invalida{
        "A série da nota referenciada de produtor é inválida"};
    static constexpr recusa<70, texto> codigo_ibge_invalido{"O código de IBGE está inválido"};
    static constexpr recusa<71, texto> modelo_invalido{"O modelo de emissão está inválido"};
    static constexpr recusa<72, texto> serie_invalida{"A série é inválida"};
    static constexpr recusa<73, texto> telefone_emitente_invalido{"O telefone do emitente está inválido"};
    static constexpr recusa<74, texto> cnpj_importador_invalido{"O CNPJ do importador está inválido"};
    static constexpr recusa<75, texto> cnpj_produtor_invalido{"O CNPJ do produtor está inválido"};
    static constexpr recusa<76, texto> enquadramento_ipi_invalido{"A classe enquadramento do IPI está inválida"};
    static constexpr recusa<77, numero> origem_processo_invalida{"O indicador da origem do processo está inválido"};
    static constexpr recusa<78, numero> intermediador_invalido{
        "O indicador de intermediador/marketplace está inválido"};
    static constexpr recusa<79> sem_tributacao_icms{nullptr};
    static constexpr recusa<80> issqn_nao_suportado{nullptr};
    static constexpr recusa<81, numero> tipo_arma_invalido{"O tipo de arma está inválido"};

private:
    processar_nota_result_category();
};

// A required base of calculation is missing: code 47, with the sentence that
// names the tag, as the only item of the stack.
VELK_EXPORT void obrigatorio_base(core::result::stack& stack, std::string const& mensagem);

// A required tax value is missing: code 55, as obrigatorio_base.
VELK_EXPORT void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem);

}  // namespace velk::erp::inline v4::tarn::nfe

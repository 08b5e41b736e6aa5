#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <velk/core/result/report.hpp>

namespace velk::erp::inline v4::tarn::nfe {

namespace {

using categoria = processar_nota_result_category;

constexpr auto palavras = core::result::words_by_number(
    categoria::cnpj_produtor_rural_invalido, categoria::cpf_produtor_rural_invalido,
    categoria::sem_documento_produtor_rural, categoria::cnpj_emitente_invalido, categoria::sem_documento_emitente,
    categoria::cnpj_destinatario_invalido, categoria::cpf_destinatario_invalido, categoria::id_estrangeiro_invalido,
    categoria::sem_documento_destinatario, categoria::cpf_entrega_invalido, categoria::cnpj_entrega_invalido,
    categoria::sem_documento_entrega, categoria::cnpj_transportador_invalido, categoria::cpf_transportador_invalido,
    categoria::sem_documento_transportador, categoria::ambiente_invalido, categoria::consumidor_final_invalido,
    categoria::presenca_invalida, categoria::modelo_nf_produtor_invalido, categoria::modelo_cupom_invalido,
    categoria::regime_tributario_invalido, categoria::tipo_operacao_invalido, categoria::destino_operacao_invalido,
    categoria::indicador_ie_invalido, categoria::indicador_total_invalido, categoria::via_transporte_invalida,
    categoria::intermediacao_invalida, categoria::origem_mercadoria_invalida, categoria::modalidade_bc_icms_invalida,
    categoria::modalidade_bc_st_invalida, categoria::csosn_invalido, categoria::cst_icms_invalido,
    categoria::cst_pis_invalido, categoria::cst_pis_nao_tributado_invalido, categoria::cst_pis_outras_invalido,
    categoria::cst_cofins_invalido, categoria::cst_cofins_nao_tributado_invalido, categoria::cst_cofins_outras_invalido,
    categoria::forma_pagamento_invalida, categoria::tipo_pagamento_invalido, categoria::tipo_integracao_invalido,
    categoria::bandeira_cartao_invalida, categoria::cst_ipi_invalido, categoria::modalidade_frete_invalida,
    categoria::tipo_emissao_invalido, categoria::motivo_desoneracao_invalido, categoria::base_icms_invalida,
    categoria::base_pis_invalida, categoria::base_cofins_invalida, categoria::base_ipi_invalida,
    categoria::aliquota_icms_invalida, categoria::aliquota_pis_invalida, categoria::aliquota_cofins_invalida,
    categoria::aliquota_ipi_invalida, categoria::valor_icms_invalido, categoria::aliquota_credito_icms_invalida,
    categoria::valor_credito_icms_invalido, categoria::chave_acesso_invalida, categoria::cep_emitente_invalido,
    categoria::telefone_destinatario_invalido, categoria::quantidade_tributavel_invalida,
    categoria::reducao_bc_icms_invalida, categoria::unidade_tributavel_invalida, categoria::finalidade_emissao_invalida,
    categoria::grupo_tributacao_invalido, categoria::documento_acesso_xml_invalido,
    categoria::cnpj_nf_referenciada_invalido, categoria::serie_nf_referenciada_invalida,
    categoria::serie_nf_produtor_invalida, categoria::codigo_ibge_invalido, categoria::modelo_invalido,
    categoria::serie_invalida, categoria::telefone_emitente_invalido, categoria::cnpj_importador_invalido,
    categoria::cnpj_produtor_invalido, categoria::enquadramento_ipi_invalido, categoria::origem_processo_invalida,
    categoria::intermediador_invalido, categoria::sem_tributacao_icms, categoria::issqn_nao_suportado,
    categoria::tipo_arma_invalido);

static_assert(palavras.size() == categoria::ultimo_codigo);

}  // namespace

processar_nota_result_category::processar_nota_result_category() : table_category("tarn-nfe-nota-fiscal", palavras) {}

processar_nota_result_category const& processar_nota_result_category::instance()
{
    static processar_nota_result_category const category;
    return category;
}

void obrigatorio_base(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<categoria::base_icms_invalida>(stack, mensagem);
}

void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<categoria::valor_icms_invalido>(stack, mensagem);
}

}  // namespace velk::erp::inline v4::tarn::nfe

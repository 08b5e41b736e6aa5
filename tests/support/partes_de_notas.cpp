#include <support/partes_de_notas.hpp>

#include <support/notas_fiscais.hpp>

#include <cstdio>

namespace velk::test {

using namespace erp::fiscal;

char digito_chave(std::string_view primeiros_43)
{
    // Modulo 11 with weights 2 to 9 from the right; remainders 0 and 1 give 0.
    unsigned soma = 0;
    unsigned peso = 2;
    for (auto posicao = primeiros_43.rbegin(); posicao != primeiros_43.rend(); ++posicao) {
        soma += static_cast<unsigned>(*posicao - '0') * peso;
        peso = peso == 9 ? 2 : peso + 1;
    }
    unsigned const resto = soma % 11;
    return static_cast<char>('0' + (resto < 2 ? 0 : 11 - resto));
}

std::string chave_acesso(unsigned uf, unsigned ano_mes, std::string const& cnpj, unsigned modelo, unsigned serie,
                         unsigned numero, unsigned codigo, unsigned tp_emis)
{
    char base[44];
    std::snprintf(base, sizeof base, "%02u%04u%.14s%02u%03u%09u%1u%08u", uf, ano_mes, cnpj.c_str(), modelo, serie,
                  numero, tp_emis, codigo);
    return std::string(base) + digito_chave(base);
}

nota_fiscal renumbered(nota_fiscal nota, unsigned number, unsigned code)
{
    if (code == 0) {
        code = nota.get_codigo_nf();
    }
    std::string const old_key = nota.get_chave_44_digitos();
    char middle[19];
    std::snprintf(middle, sizeof middle, "%09u%.1s%08u", number, old_key.c_str() + 34, code);
    std::string const key = old_key.substr(0, 25) + middle;
    nota.set_numero(number).set_codigo_nf(code).set_chave_44_digitos(key + digito_chave(key));
    return nota;
}

endereco local(char const* logradouro, char const* numero, char const* bairro, std::uint32_t municipio,
               char const* nome_municipio, char const* uf, std::uint32_t cep)
{
    return endereco()
        .set_logradouro(logradouro)
        .set_numero_endereco(numero)
        .set_bairro(bairro)
        .set_ibge_municipio(municipio)
        .set_nome_municipio(nome_municipio)
        .set_uf(uf)
        .set_cep(cep)
        .set_ibge_pais(1058)
        .set_pais("Brasil");
}

emitente empresa(char const* cnpj, char const* razao_social, char const* fantasia, endereco const& sede,
                 char const* telefone, char const* ie, regime_tributario regime)
{
    return emitente()
        .set_cnpj(cnpj)
        .set_razao_social(razao_social)
        .set_nome_fantasia(fantasia)
        .set_endereco(sede)
        .set_telefone(telefone)
        .set_ie(ie)
        .set_regime_fiscal(regime);
}

destinatario contribuinte(char const* cnpj, char const* razao_social, endereco const& sede, char const* ie)
{
    return destinatario()
        .set_cnpj(cnpj)
        .set_razao_social(razao_social)
        .set_endereco(sede)
        .set_indicador_de_ie(indicador_ie_destinatario::contribuinte_icms)
        .set_ie(ie);
}

produto item(char const* codigo, char const* gtin, char const* descricao, std::uint32_t ncm, std::uint16_t cfop,
             char const* unidade, char const* quantidade, char const* preco, char const* total)
{
    return produto()
        .set_codigo_produto(codigo)
        .set_codigo_de_barras(gtin)
        .set_descricao(descricao)
        .set_ncm(ncm)
        .set_cfop(cfop)
        .set_unidade_comercial(unidade)
        .set_quantidade_comercial(valor(quantidade))
        .set_valor_unitario_comercial(valor(preco))
        .set_valor_total_bruto(valor(total))
        .set_codigo_de_barras_tributavel(gtin)
        .set_unidade_tributavel(unidade)
        .set_quantidade_tributavel(valor(quantidade))
        .set_valor_unitario_tributavel(valor(preco))
        .set_indicador_item_compoe_valor_total(indicador_total::compoe);
}

tributacao_pis_cofins pis_cofins_aliquota(char const* base, char const* pis, char const* aliquota_pis,
                                          char const* cofins, char const* aliquota_cofins)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_aliquota()
                                      .set_cst_pis(cst_pis_cofins_aliquota::cst_01)
                                      .set_valor_bc_pis(valor(base))
                                      .set_percentual_aliquota_pis(valor(aliquota_pis))
                                      .set_valor_pis(valor(pis)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_aliquota()
                                         .set_cst_cofins(cst_pis_cofins_aliquota::cst_01)
                                         .set_valor_bc_cofins(valor(base))
                                         .set_percentual_aliquota_cofins(valor(aliquota_cofins))
                                         .set_valor_cofins(valor(cofins)));
}

tributacao_pis_cofins pis_cofins_nao_tributado(cst_pis_cofins_nao_tributado cst)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_nt().set_cst_pis(cst))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_nt().set_cst_cofins(cst));
}

tributacao_pis_cofins pis_cofins_outras(cst_pis_cofins_outras_operacoes cst, char const* base, char const* pis,
                                        char const* aliquota_pis, char const* cofins, char const* aliquota_cofins)
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_outros()
                                      .set_cst_pis(cst)
                                      .set_valor_bc_pis(valor(base))
                                      .set_percentual_aliquota_pis(valor(aliquota_pis))
                                      .set_valor_pis(valor(pis)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_outros()
                                         .set_cst_cofins(cst)
                                         .set_valor_bc_cofins(valor(base))
                                         .set_percentual_aliquota_cofins(valor(aliquota_cofins))
                                         .set_valor_cofins(valor(cofins)));
}

tributacao_pis_cofins pis_cofins_simples()
{
    return pis_cofins_outras(cst_pis_cofins_outras_operacoes::cst_99, "0.00", "0.00", "0.00", "0.00", "0.00");
}

grupo_tributacao_icms_00 icms_00(char const* base, char const* aliquota, char const* icms, origem_mercadoria origem)
{
    return grupo_tributacao_icms_00()
        .set_origem_mercadoria(origem)
        .set_cst(cst_icms::cst_00)
        .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
        .set_valor_bc_icms(valor(base))
        .set_aliquota_icms(valor(aliquota))
        .set_valor_icms(valor(icms));
}

informacoes_responsavel_tecnico responsavel_tecnico()
{
    return informacoes_responsavel_tecnico()
        .set_cnpj("19374562000123")
        .set_nome_pessoa_contatada("Marina Okamoto")
        .set_email("fiscal@velkerp.com.br")
        .set_telefone("1140028922");
}

detalhes_pagamento pagamento(meio_pagamento meio, char const* quantia)
{
    return detalhes_pagamento().set_meio_pagamento(meio).set_valor_pagamento(valor(quantia));
}

detalhes_pagamento cartao(meio_pagamento meio, char const* quantia, tipo_integracao_pagamento integracao,
                          bandeira_cartao bandeira, char const* autorizacao, char const* cnpj)
{
    transacao_tef tef =
        transacao_tef().set_tipo_integracao(integracao).set_bandeira(bandeira).set_numero_autorizacao(autorizacao);
    if (cnpj != nullptr) {
        tef.set_cnpj(cnpj);
    }
    return pagamento(meio, quantia)
        .set_indicador_forma_pagamento(indicador_forma_pagamento::a_vista)
        .set_transacao_tef(tef);
}

informacoes_pagamento pago_com(std::vector<detalhes_pagamento> pagamentos, core::optional<char const*> troco)
{
    informacoes_pagamento informacoes;
    informacoes.set_detalhes_pagamento(std::move(pagamentos));
    if (troco) {
        informacoes.set_valor_total_troco(valor(*troco));
    }
    return informacoes;
}

cobranca fatura(char const* numero, char const* total, std::vector<duplicata> parcelas)
{
    return cobranca()
        .set_numero_fatura(numero)
        .set_valor_original_fatura(valor(total))
        .set_valor_desconto(valor("0.00"))
        .set_valor_liquido(valor(total))
        .set_duplicatas(std::move(parcelas));
}

duplicata parcela(char const* numero, core::date vencimento, char const* quantia)
{
    return duplicata().set_numero_duplicata(numero).set_data_vencimento(vencimento).set_valor_duplicata(valor(quantia));
}

nota_fiscal nota(identificacao const& id, emitente const& emitente)
{
    bool const nfce = id.modelo == 65;
    return nota_fiscal()
        .set_chave_44_digitos(chave_acesso(id.uf, static_cast<unsigned>(id.ano % 100) * 100 + id.mes,
                                           *emitente.get_cnpj(), id.modelo, 1, id.numero, id.codigo))
        .set_codigo_nf(id.codigo)
        .set_natureza_operacao(id.natureza)
        .set_modelo_emissao(std::to_string(id.modelo))
        .set_serie("1")
        .set_numero(id.numero)
        .set_data_emissao(horario_brasilia(id.ano, id.mes, id.dia, id.hora, id.minuto, 0))
        .set_tipo_operacao(tipo_operacao::saida)
        .set_indicador_operacao(destino_operacao::interna)
        .set_ibge_municipio_emissao(id.municipio)
        .set_tipo_emissao(tipo_emissao::normal)
        .set_indicador_ambiente(indicador_ambiente::homologacao)
        .set_indicador_finalidade_emissao(finalidade_emissao::normal)
        .set_operacao_consumidor_final(nfce ? consumidor_final::sim : consumidor_final::nao)
        .set_indicador_presenca(nfce ? indicador_presenca::presencial : indicador_presenca::nao_presencial_outros)
        .set_indicador_intermediador(indicador_intermediador::sem_intermediador)
        .set_emitente(emitente)
        .set_informacoes_transporte(informacoes_transporte().set_modalidade_frete(modalidade_frete::sem_transporte))
        .set_informacoes_responsavel_tecnico(responsavel_tecnico());
}

}  // namespace velk::test

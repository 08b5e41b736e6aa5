#include "demo_notas_nfce.hpp"

#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>

#include <string>

namespace velk::demo {

namespace {

using namespace erp::fiscal;

core::decimal valor(long long centavos)
{
    return core::decimal(centavos, -2);
}

core::decimal quantidade(long long milesimos)
{
    return core::decimal(milesimos, -3);
}

core::datetime horario_brasilia(int ano, unsigned mes, unsigned dia, int hora, unsigned minuto)
{
    return core::datetime(core::date(dia, mes, ano), core::time(hora, minuto, 0, 0), -180);
}

// PIS and COFINS of a company of the Simples Nacional: paid in the monthly
// collection, so written as other operations with zero values.
tributacao_pis_cofins pis_cofins_simples_nacional()
{
    return tributacao_pis_cofins()
        .set_grupo_tributacao_pis(grupo_tributacao_pis_outros()
                                      .set_cst_pis(cst_pis_cofins_outras_operacoes::cst_99)
                                      .set_valor_bc_pis(valor(0))
                                      .set_percentual_aliquota_pis(valor(0))
                                      .set_valor_pis(valor(0)))
        .set_grupo_tributacao_cofins(grupo_tributacao_cofins_outros()
                                         .set_cst_cofins(cst_pis_cofins_outras_operacoes::cst_99)
                                         .set_valor_bc_cofins(valor(0))
                                         .set_percentual_aliquota_cofins(valor(0))
                                         .set_valor_cofins(valor(0)));
}

produto item(std::string codigo, std::string descricao, std::uint32_t ncm, std::string unidade,
             core::decimal quantidade_vendida, core::decimal preco, core::decimal total, core::decimal tributos)
{
    return produto()
        .set_codigo_produto(std::move(codigo))
        .set_codigo_de_barras("SEM GTIN")
        .set_descricao(std::move(descricao))
        .set_ncm(ncm)
        .set_cfop(5102)
        .set_unidade_comercial(unidade)
        .set_quantidade_comercial(quantidade_vendida)
        .set_valor_unitario_comercial(preco)
        .set_valor_total_bruto(total)
        .set_codigo_de_barras_tributavel("SEM GTIN")
        .set_unidade_tributavel(std::move(unidade))
        .set_quantidade_tributavel(quantidade_vendida)
        .set_valor_unitario_tributavel(preco)
        .set_indicador_item_compoe_valor_total(indicador_total::compoe)
        .set_valor_total_tributos(tributos)
        .set_tributacao(grupo_tributacao_icms_102()
                            .set_origem_mercadoria(origem_mercadoria::nacional)
                            .set_csosn(csosn::csosn_102))
        .set_tributacao_pis_cofins(pis_cofins_simples_nacional());
}

// A shop of the Simples Nacional in the centre of its town.
struct loja_demo {
    char const* cnpj;
    char const* razao_social;
    char const* ie;
    char const* logradouro;
    char const* numero;
    std::uint32_t municipio;
    char const* nome_municipio;
    char const* uf;
    std::uint32_t cep;
};

emitente loja(loja_demo const& dados)
{
    return emitente()
        .set_cnpj(std::string(dados.cnpj))
        .set_razao_social(dados.razao_social)
        .set_endereco(endereco()
                          .set_logradouro(dados.logradouro)
                          .set_numero_endereco(dados.numero)
                          .set_bairro("CENTRO")
                          .set_ibge_municipio(dados.municipio)
                          .set_nome_municipio(dados.nome_municipio)
                          .set_uf(dados.uf)
                          .set_cep(dados.cep)
                          .set_ibge_pais(1058)
                          .set_pais("BRASIL"))
        .set_ie(dados.ie)
        .set_regime_fiscal(regime_tributario::simples_nacional);
}

// What both sales share: a consumer sale in person, in homologation.
nota_fiscal venda_ao_consumidor(std::string chave, std::uint32_t codigo, std::uint32_t numero,
                                core::datetime emissao, std::uint32_t municipio)
{
    return nota_fiscal()
        .set_chave_44_digitos(std::move(chave))
        .set_codigo_nf(codigo)
        .set_natureza_operacao("VENDA")
        .set_modelo_emissao("65")
        .set_serie("1")
        .set_numero(numero)
        .set_data_emissao(emissao)
        .set_tipo_operacao(tipo_operacao::saida)
        .set_indicador_operacao(destino_operacao::interna)
        .set_ibge_municipio_emissao(municipio)
        .set_indicador_ambiente(indicador_ambiente::homologacao)
        .set_indicador_finalidade_emissao(finalidade_emissao::normal)
        .set_operacao_consumidor_final(consumidor_final::sim)
        .set_indicador_presenca(indicador_presenca::presencial)
        .set_indicador_intermediador(indicador_intermediador::sem_intermediador)
        .set_informacoes_transporte(informacoes_transporte().set_modalidade_frete(modalidade_frete::sem_transporte));
}

nota_fiscal com_total(nota_fiscal nota, core::decimal produtos, core::decimal tributos)
{
    return nota.set_total_nfe(total_nfe().set_total_icms(total_nfe_icms()
                                                             .set_valor_total_dos_produtos_da_nota(produtos)
                                                             .set_total_da_nota(produtos)
                                                             .set_total_dos_tributos_do_item(tributos)));
}

}  // namespace

nota_fiscal nota_nfce_online()
{
    // 2 x 18.50 + 1 x 6.40 = 43.40
    nota_fiscal nota =
        venda_ao_consumidor("35240612345678000195650010000001011100001013", 10000101, 101,
                            horario_brasilia(2024, 6, 3, 10, 15), 3550308)
            .set_tipo_emissao(tipo_emissao::normal)
            .set_emitente(loja({"12345678000195", "EMPRESA DEMONSTRACAO LTDA", "111222333444", "RUA DAS AMOSTRAS", "100",
                                3550308, "SAO PAULO", "SP", 1001000}))
            .set_destinatario(destinatario()
                                  .set_cpf("12345678909")
                                  .set_indicador_de_ie(indicador_ie_destinatario::nao_contribuinte))
            .set_produtos({item("0001", "CAFE TORRADO 500 G", 9012100, "UN", quantidade(2000), valor(1850),
                                valor(3700), valor(733)),
                           item("0002", "BISCOITO DE POLVILHO 100 G", 19059090, "UN", quantidade(1000), valor(640),
                                valor(640), valor(127))})
            .set_informacoes_pagamento(informacoes_pagamento().set_detalhes_pagamento(
                {detalhes_pagamento().set_meio_pagamento(meio_pagamento::cartao_debito).set_valor_pagamento(
                    valor(4340))}));
    return com_total(std::move(nota), valor(4340), valor(860));
}

nota_fiscal nota_nfce_contingencia()
{
    // 0.450 kg x 21.90 (9.855, billed 9.86) + 2 x 4.50 = 18.86, paid with 20.00
    nota_fiscal nota =
        venda_ao_consumidor("41240611222333000181650010000001029100001020", 10000102, 102,
                            horario_brasilia(2024, 6, 7, 7, 42), 4106902)
            .set_tipo_emissao(tipo_emissao::contingencia_offline_nfce)
            .set_data_contingencia(horario_brasilia(2024, 6, 7, 7, 30))
            .set_justificativa_entrada_contingencia("SEM CONEXAO COM A SEFAZ AUTORIZADORA DO PARANA")
            .set_emitente(loja({"11222333000181", "PANIFICADORA DEMONSTRACAO LTDA", "9012345678", "RUA XV DE NOVEMBRO",
                                "700", 4106902, "CURITIBA", "PR", 80020310}))
            .set_produtos({item("0101", "PAO DE QUEIJO", 19059090, "KG", quantidade(450), valor(2190), valor(986),
                                valor(163)),
                           item("0102", "CAFE EXPRESSO", 21011110, "UN", quantidade(2000), valor(450), valor(900),
                                valor(149))})
            .set_informacoes_pagamento(
                informacoes_pagamento()
                    .set_detalhes_pagamento({detalhes_pagamento()
                                                 .set_meio_pagamento(meio_pagamento::dinheiro)
                                                 .set_valor_pagamento(valor(2000))})
                    .set_valor_total_troco(valor(114)));
    return com_total(std::move(nota), valor(1886), valor(312));
}

}  // namespace velk::demo

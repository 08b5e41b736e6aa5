// Document generation of layout 4.00 from the fiscal model: the builder fills
// the tree and the writer makes the XML (gerar), each of them apart, and the
// whole of documento_fiscal::from_nota_fiscal, which also reads the document
// back (documento). A point-of-sale NFC-e of 5 items and a wholesale NF-e of
// 100 items.
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace velk::erp::fiscal;
namespace layout = velk::erp::tarn::nfe::layout_4_00;
using velk::core::decimal;

decimal numero(std::string const& texto)
{
    decimal resultado;
    if (!decimal::parse(texto, resultado)) {
        std::abort();
    }
    return resultado;
}

// Cents as a decimal text: 1234 gives "12.34".
decimal centavos(long valor)
{
    char texto[32];
    std::snprintf(texto, sizeof texto, "%ld.%02ld", valor / 100, valor % 100);
    return numero(texto);
}

// Item n of a sale: goods at 18% ICMS in turns with goods under substitution
// charged before; PIS and COFINS of the real-profit regime.
produto item(int n, long preco_centavos, int quantidade)
{
    long const total = preco_centavos * quantidade;
    bool const substituicao = n % 3 == 0;
    std::string const codigo = "P" + std::to_string(1000 + n);
    tributacao_produto icms = grupo_tributacao_icms_00()
                                  .set_cst(cst_icms::cst_00)
                                  .set_modalidade_bc_icms(modalidade_bc_icms::valor_operacao)
                                  .set_valor_bc_icms(centavos(total))
                                  .set_aliquota_icms(numero("18.00"))
                                  .set_valor_icms(centavos(total * 18 / 100));
    if (substituicao) {
        icms = grupo_tributacao_icms_60().set_cst(cst_icms::cst_60);
    }
    return produto()
        .set_codigo_produto(codigo)
        .set_codigo_de_barras("SEM GTIN")
        .set_descricao("PRODUTO DE TESTE DE DESEMPENHO " + codigo)
        .set_ncm(substituicao ? 22021000 : 85161000)
        .set_cfop(substituicao ? 5405 : 5102)
        .set_unidade_comercial("UN")
        .set_quantidade_comercial(numero(std::to_string(quantidade)))
        .set_valor_unitario_comercial(centavos(preco_centavos))
        .set_valor_total_bruto(centavos(total))
        .set_codigo_de_barras_tributavel("SEM GTIN")
        .set_unidade_tributavel("UN")
        .set_quantidade_tributavel(numero(std::to_string(quantidade)))
        .set_valor_unitario_tributavel(centavos(preco_centavos))
        .set_indicador_item_compoe_valor_total(indicador_total::compoe)
        .set_valor_total_tributos(centavos(total * 30 / 100))
        .set_tributacao(std::move(icms))
        .set_tributacao_pis_cofins(
            tributacao_pis_cofins()
                .set_grupo_tributacao_pis(grupo_tributacao_pis_aliquota()
                                              .set_cst_pis(cst_pis_cofins_aliquota::cst_01)
                                              .set_valor_bc_pis(centavos(total))
                                              .set_percentual_aliquota_pis(numero("1.65"))
                                              .set_valor_pis(centavos(total * 165 / 10000)))
                .set_grupo_tributacao_cofins(grupo_tributacao_cofins_aliquota()
                                                 .set_cst_cofins(cst_pis_cofins_aliquota::cst_01)
                                                 .set_valor_bc_cofins(centavos(total))
                                                 .set_percentual_aliquota_cofins(numero("7.60"))
                                                 .set_valor_cofins(centavos(total * 760 / 10000))));
}

nota_fiscal nota(int itens, char const* modelo)
{
    std::vector<produto> produtos;
    long soma = 0;
    for (int n = 1; n <= itens; ++n) {
        long const preco = 199 + 37 * n;
        int const quantidade = 1 + n % 4;
        soma += preco * quantidade;
        produtos.push_back(item(n, preco, quantidade));
    }
    bool const nfce = std::string(modelo) == "65";
    nota_fiscal resultado;
    resultado
        .set_chave_44_digitos(nfce ? "35240912345678000195650010000000011102938476"
                                   : "35240912345678000195550010000000021564738294")
        .set_codigo_nf(nfce ? 10293847 : 56473829)
        .set_natureza_operacao("VENDA")
        .set_modelo_emissao(modelo)
        .set_serie("1")
        .set_numero(nfce ? 1 : 2)
        .set_data_emissao(velk::core::datetime(velk::core::date(16, 9, 2024), velk::core::time(10, 12, 0, 0), -180))
        .set_tipo_operacao(tipo_operacao::saida)
        .set_indicador_operacao(destino_operacao::interna)
        .set_ibge_municipio_emissao(3550308)
        .set_tipo_emissao(tipo_emissao::normal)
        .set_indicador_ambiente(indicador_ambiente::homologacao)
        .set_indicador_finalidade_emissao(finalidade_emissao::normal)
        .set_operacao_consumidor_final(nfce ? consumidor_final::sim : consumidor_final::nao)
        .set_indicador_presenca(nfce ? indicador_presenca::presencial : indicador_presenca::nao_presencial_outros)
        .set_emitente(emitente()
                          .set_cnpj("12345678000195")
                          .set_razao_social("EMPRESA DEMONSTRACAO LTDA")
                          .set_endereco(endereco()
                                            .set_logradouro("Rua dos Pinheiros")
                                            .set_numero_endereco("870")
                                            .set_bairro("Pinheiros")
                                            .set_ibge_municipio(3550308)
                                            .set_nome_municipio("São Paulo")
                                            .set_uf("SP")
                                            .set_cep(5422001))
                          .set_ie("135792465809")
                          .set_regime_fiscal(regime_tributario::regime_normal))
        .set_produtos(std::move(produtos))
        .set_total_nfe(total_nfe().set_total_icms(
            total_nfe_icms().set_valor_total_dos_produtos_da_nota(centavos(soma)).set_total_da_nota(centavos(soma))))
        .set_informacoes_transporte(informacoes_transporte().set_modalidade_frete(modalidade_frete::sem_transporte))
        .set_informacoes_pagamento(informacoes_pagamento().set_detalhes_pagamento(
            {detalhes_pagamento().set_meio_pagamento(meio_pagamento::dinheiro).set_valor_pagamento(centavos(soma))}));
    if (!nfce) {
        resultado.set_destinatario(destinatario()
                                       .set_cnpj("66554433000105")
                                       .set_razao_social("COMERCIO DE UTILIDADES CAMPINAS LTDA")
                                       .set_indicador_de_ie(indicador_ie_destinatario::contribuinte_isento));
    }
    return resultado;
}

void gerar(benchmark::State& state, int itens, char const* modelo)
{
    nota_fiscal const entrada = nota(itens, modelo);
    for (auto _ : state) {
        velk::core::result::stack stack;
        layout::layout_4_00 const arvore = layout::montar_layout_4_00(entrada, stack);
        velk::xml::document documento = layout::escrever_layout_4_00(arvore, stack);
        if (stack.has_failed()) {
            state.SkipWithError(stack.to_string().c_str());
            break;
        }
        benchmark::DoNotOptimize(documento);
    }
    state.SetItemsProcessed(state.iterations() * itens);
}

// The whole of documento_fiscal::from_nota_fiscal: the document is also read
// back into its fields.
void documento(benchmark::State& state, int itens, char const* modelo)
{
    using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
    nota_fiscal const entrada = nota(itens, modelo);
    for (auto _ : state) {
        velk::core::result::stack stack;
        documento_fiscal gerado =
            documento_fiscal::from_nota_fiscal(entrada, velk::erp::tarn::nfe::versao::versao_4_00, stack);
        if (stack.has_failed()) {
            state.SkipWithError(stack.to_string().c_str());
            break;
        }
        benchmark::DoNotOptimize(gerado);
    }
}

void montar(benchmark::State& state, int itens, char const* modelo)
{
    nota_fiscal const entrada = nota(itens, modelo);
    for (auto _ : state) {
        velk::core::result::stack stack;
        layout::layout_4_00 arvore = layout::montar_layout_4_00(entrada, stack);
        benchmark::DoNotOptimize(arvore);
    }
}

void escrever(benchmark::State& state, int itens, char const* modelo)
{
    velk::core::result::stack stack;
    layout::layout_4_00 const arvore = layout::montar_layout_4_00(nota(itens, modelo), stack);
    for (auto _ : state) {
        velk::xml::document documento = layout::escrever_layout_4_00(arvore, stack);
        benchmark::DoNotOptimize(documento);
    }
}

BENCHMARK_CAPTURE(gerar, nfce_5_itens, 5, "65")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(gerar, nfe_100_itens, 100, "55")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(documento, nfce_5_itens, 5, "65")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(documento, nfe_100_itens, 100, "55")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(montar, nfce_5_itens, 5, "65")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(escrever, nfce_5_itens, 5, "65")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(montar, nfe_100_itens, 100, "55")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(escrever, nfe_100_itens, 100, "55")->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();

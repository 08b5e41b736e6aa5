// The notes of the test corpus are what a real issuer sends: these checks keep
// them so as they change: check digits, the parts of the key, and totals that
// add up.

#include <support/corpus_notas.hpp>
#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>
#include <velk/erp/cnpj.hpp>
#include <velk/erp/cpf.hpp>
#include <velk/erp/estado.hpp>

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace {

using namespace velk::erp::fiscal;
using velk::core::decimal;

bool cnpj_valido(std::string const& texto)
{
    return texto.size() == 14 && velk::erp::cnpj::from_text(texto).has_value();
}

bool cpf_valido(std::string const& texto)
{
    return texto.size() == 11 && velk::erp::cpf::from_text(texto).has_value();
}

bool chave_valida(std::string const& chave)
{
    return chave.size() == 44 && chave.back() == velk::test::digito_chave(std::string_view(chave).substr(0, 43));
}

bool gtin_valido(std::string const& gtin)
{
    if (gtin == "SEM GTIN") {
        return true;
    }
    int soma = 0;
    for (std::size_t posicao = 0; posicao + 1 < gtin.size(); ++posicao) {
        soma += (gtin[posicao] - '0') * ((gtin.size() - 1 - posicao) % 2 == 1 ? 3 : 1);
    }
    return (10 - soma % 10) % 10 == gtin.back() - '0';
}

decimal ou_zero(velk::core::optional<decimal> const& valor)
{
    return valor.value_or(decimal());
}

void verificar_documentos(nota_fiscal const& nota)
{
    EXPECT_TRUE(cnpj_valido(nota.get_emitente().get_cnpj().value()));
    if (auto const destinatario = nota.get_destinatario()) {
        EXPECT_TRUE(cnpj_valido(destinatario->get_cnpj().value_or("")) ||
                    cpf_valido(destinatario->get_cpf().value_or("")) ||
                    destinatario->get_indicador_estrangeiro().has_value());
    }
    if (auto const entrega = nota.get_local_entrega()) {
        EXPECT_TRUE(cnpj_valido(entrega->get_cnpj().value_or("")));
    }
    for (autorizacao_acesso_xml const& autorizacao : nota.get_autorizacoes_acesso_xml()) {
        EXPECT_TRUE(cnpj_valido(autorizacao.get_cnpj().value_or("")) || cpf_valido(autorizacao.get_cpf().value_or("")));
    }
    for (nf_referenciada const& referencia : nota.get_nf_referenciadas()) {
        EXPECT_TRUE(cnpj_valido(referencia.get_cnpj()));
    }
    for (nfe_referenciada const& referencia : nota.get_nfe_referenciadas()) {
        EXPECT_TRUE(chave_valida(referencia.get_chave_nfe()));
    }
    if (auto const responsavel = nota.get_informacoes_responsavel_tecnico()) {
        EXPECT_TRUE(cnpj_valido(responsavel->get_cnpj()));
    }
    if (auto const intermediador = nota.get_informacoes_intermediador()) {
        EXPECT_TRUE(velk::erp::cnpj::check_digits_match(intermediador->get_cnpj()));
    }
    if (auto const transportador = nota.get_informacoes_transporte().get_transportador();
        transportador && transportador->get_documento()) {
        velk::core::visit(
            [](auto const& documento) {
                EXPECT_TRUE(std::decay_t<decltype(documento)>::check_digits_match(documento.to_number()));
            },
            *transportador->get_documento());
    }
    for (detalhes_pagamento const& pagamento : nota.get_informacoes_pagamento().get_detalhes_pagamento()) {
        if (auto const tef = pagamento.get_transacao_tef(); tef && tef->get_cnpj()) {
            EXPECT_TRUE(cnpj_valido(*tef->get_cnpj()));
        }
    }
}

// Goods add up to vProd, services to vServ, and the note to what was paid.
void verificar_totais(nota_fiscal const& nota)
{
    decimal soma_produtos;
    decimal soma_servicos;
    for (produto const& item : nota.get_produtos()) {
        EXPECT_TRUE(gtin_valido(item.get_codigo_de_barras())) << item.get_codigo_de_barras();
        bool const servico = std::holds_alternative<issqn>(item.get_tributacao().base());
        (servico ? soma_servicos : soma_produtos) =
            (servico ? soma_servicos : soma_produtos) + item.get_valor_total_bruto();
    }
    total_nfe const total = nota.get_total_nfe();
    total_nfe_icms const icms = total.get_total_icms();
    EXPECT_EQ(soma_produtos, icms.get_valor_total_dos_produtos_da_nota());
    decimal const servicos =
        total.get_total_issqn() ? ou_zero(total.get_total_issqn()->get_valor_servico()) : decimal();
    EXPECT_EQ(soma_servicos, servicos);
    // vNF = vProd - vDesc + vST + vFCPST + vFrete + vSeg + vOutro + vII + vIPI + vIPIDevol + vServ
    EXPECT_EQ(icms.get_total_da_nota() + icms.get_valor_total_do_desconto_da_nota(),
              icms.get_valor_total_dos_produtos_da_nota() + icms.get_total_retido() + icms.get_total_fcp_retido() +
                  icms.get_total_frete() + icms.get_total_seguro() + icms.get_total_despesas_acessorias() +
                  icms.get_total_imposto_de_importacao() + icms.get_total_ipi() + icms.get_total_ipi_devolvido() +
                  servicos);

    // A note with no payment at all is one "without payment".
    decimal pago;
    bool sem_pagamento = nota.get_informacoes_pagamento().get_detalhes_pagamento().empty();
    for (detalhes_pagamento const& pagamento : nota.get_informacoes_pagamento().get_detalhes_pagamento()) {
        pago = pago + pagamento.get_valor_pagamento();
        sem_pagamento = sem_pagamento || pagamento.get_meio_pagamento() == meio_pagamento::sem_pagamento;
    }
    decimal const troco = ou_zero(nota.get_informacoes_pagamento().get_valor_total_troco());
    EXPECT_EQ(pago, sem_pagamento ? decimal() : icms.get_total_da_nota() + troco);

    if (auto const cobranca = nota.get_cobranca()) {
        decimal parcelas;
        for (duplicata const& parcela : cobranca->get_duplicatas()) {
            parcelas = parcelas + parcela.get_valor_duplicata();
        }
        EXPECT_EQ(parcelas, ou_zero(cobranca->get_valor_liquido()));
    }
}

class corpus_de_notas : public testing::TestWithParam<velk::test::nota_do_corpus> {};

// tpEmis of each type of issue of the model: 1 to 7, and 9 for the NFC-e offline.
constexpr unsigned tp_emis[] = {1, 2, 3, 4, 5, 6, 7, 9};

TEST_P(corpus_de_notas, is_what_a_real_issuer_sends)
{
    nota_fiscal const nota = GetParam().criar();
    velk::erp::estado uf{};
    ASSERT_TRUE(velk::erp::estado_from_text(nota.get_emitente().get_endereco().get_uf(), uf));
    // The key holds what the note holds elsewhere, and its check digit.
    auto const emissao = nota.get_data_emissao().get_date();
    EXPECT_EQ(nota.get_chave_44_digitos(),
              velk::test::chave_acesso(static_cast<unsigned>(velk::erp::get_codigo_ibge(uf)),
                                       emissao.get_year() % 100 * 100 + emissao.get_month(),
                                       nota.get_emitente().get_cnpj().value(),
                                       static_cast<unsigned>(std::stoul(nota.get_modelo_emissao())),
                                       static_cast<unsigned>(std::stoul(nota.get_serie())), nota.get_numero(),
                                       nota.get_codigo_nf(), tp_emis[static_cast<unsigned>(nota.get_tipo_emissao())]));
    verificar_documentos(nota);
    verificar_totais(nota);
}

std::string nome_da_nota(testing::TestParamInfo<velk::test::nota_do_corpus> const& info)
{
    return info.param.nome;
}

INSTANTIATE_TEST_SUITE_P(notas, corpus_de_notas, testing::ValuesIn(velk::test::corpus_notas()), nome_da_nota);

TEST(corpus_de_notas, covers_five_states_both_models_and_every_icms_class)
{
    std::set<std::string> estados;
    std::set<std::string> modelos;
    std::set<std::size_t> classes;
    for (auto const& entrada : velk::test::corpus_notas()) {
        nota_fiscal const nota = entrada.criar();
        estados.insert(nota.get_emitente().get_endereco().get_uf());
        modelos.insert(nota.get_modelo_emissao());
        for (produto const& item : nota.get_produtos()) {
            if (auto const icms = item.get_grupo_tributacao_icms()) {
                classes.insert(icms->index());
            }
        }
    }
    EXPECT_EQ(estados, (std::set<std::string>{"PR", "RJ", "RS", "SC", "SP"}));
    EXPECT_EQ(modelos, (std::set<std::string>{"55", "65"}));
    EXPECT_EQ(classes.size(), std::variant_size_v<std::remove_cvref_t<decltype(grupo_tributacao_icms().base())>>);
}

}  // namespace

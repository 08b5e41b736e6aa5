// The notes of the test corpus are what a real issuer sends: these checks keep
// them so as they change.

#include <support/notas_fiscais.hpp>
#include <velk/erp/cnpj.hpp>
#include <velk/erp/cpf.hpp>

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
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

// Modulo 11 over the first 43 digits, weights 2 to 9 from the right.
bool chave_valida(std::string const& chave)
{
    if (chave.size() != 44) {
        return false;
    }
    int soma = 0;
    int peso = 2;
    for (int posicao = 42; posicao >= 0; --posicao) {
        soma += (chave[static_cast<std::size_t>(posicao)] - '0') * peso;
        peso = peso == 9 ? 2 : peso + 1;
    }
    int const resto = soma % 11;
    int const digito = resto < 2 ? 0 : 11 - resto;
    return chave.back() - '0' == digito;
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

// The parts of the key that the note also holds elsewhere.
std::string chave_esperada(nota_fiscal const& nota)
{
    char texto[64];
    auto const emissao = nota.get_data_emissao().get_date();
    std::snprintf(texto, sizeof texto, "%02u%02u%s%s%03u%09u%u%08u", emissao.get_year() % 100,
                  emissao.get_month(), nota.get_emitente().get_cnpj().value().c_str(),
                  nota.get_modelo_emissao().c_str(), static_cast<unsigned>(std::stoul(nota.get_serie())),
                  nota.get_numero(), static_cast<unsigned>(nota.get_tipo_emissao()) + 1, nota.get_codigo_nf());
    return texto;
}

void verificar(nota_fiscal const& nota)
{
    std::string const chave = nota.get_chave_44_digitos();
    EXPECT_TRUE(chave_valida(chave)) << chave;
    EXPECT_EQ(chave.substr(0, 2), "35") << "issued in São Paulo";
    EXPECT_EQ(chave.substr(2, 41), chave_esperada(nota));

    EXPECT_TRUE(cnpj_valido(nota.get_emitente().get_cnpj().value()));
    if (auto const destinatario = nota.get_destinatario()) {
        EXPECT_TRUE(cnpj_valido(destinatario->get_cnpj().value_or("")) ||
                    cpf_valido(destinatario->get_cpf().value_or("")));
    }
    if (auto const entrega = nota.get_local_entrega()) {
        EXPECT_TRUE(cnpj_valido(entrega->get_cnpj().value_or("")));
    }
    for (autorizacao_acesso_xml const& autorizacao : nota.get_autorizacoes_acesso_xml()) {
        EXPECT_TRUE(cnpj_valido(autorizacao.get_cnpj().value_or("")) ||
                    cpf_valido(autorizacao.get_cpf().value_or("")));
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

    decimal soma_produtos;
    for (produto const& item : nota.get_produtos()) {
        EXPECT_TRUE(gtin_valido(item.get_codigo_de_barras())) << item.get_codigo_de_barras();
        soma_produtos = soma_produtos + item.get_valor_total_bruto();
    }
    total_nfe_icms const totais = nota.get_total_nfe().get_total_icms();
    EXPECT_EQ(soma_produtos, totais.get_valor_total_dos_produtos_da_nota());
    EXPECT_EQ(totais.get_total_da_nota(), totais.get_valor_total_dos_produtos_da_nota()) << "no freight nor discount";

    decimal pago;
    for (detalhes_pagamento const& pagamento : nota.get_informacoes_pagamento().get_detalhes_pagamento()) {
        pago = pago + pagamento.get_valor_pagamento();
    }
    decimal const troco = nota.get_informacoes_pagamento().get_valor_total_troco().value_or(decimal());
    EXPECT_EQ(pago, totais.get_total_da_nota() + troco);
}

TEST(notas_de_teste, the_nfce_is_consistent)
{
    verificar(velk::test::nota_nfce_simples());
}

TEST(notas_de_teste, the_nfe_is_consistent)
{
    nota_fiscal const nota = velk::test::nota_nfe_completa();
    verificar(nota);
    auto const transportador = nota.get_informacoes_transporte().get_transportador();
    ASSERT_TRUE(transportador && transportador->get_documento());
    EXPECT_TRUE(velk::erp::cnpj::check_digits_match(
        std::get<velk::erp::cnpj>(transportador->get_documento()->base()).to_number()));
}

}  // namespace

#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <gtest/gtest.h>

#include <variant>

namespace {

using namespace velk::erp::fiscal;

TEST(modelo, setters_chain_on_the_same_object_and_copies_are_independent)
{
    produto original;
    produto& mesmo = original.set_descricao("CAFE").set_ncm(9012100).set_cest(301100);
    EXPECT_EQ(&mesmo, &original);

    nota_fiscal nota;
    nota.set_produtos({original});
    produto copia = nota.get_produtos().at(0);
    copia.set_descricao("CHA").set_cest({});

    EXPECT_EQ(nota.get_produtos().at(0).get_descricao(), "CAFE");
    EXPECT_EQ(nota.get_produtos().at(0).get_cest(), 301100u);
    EXPECT_FALSE(copia.get_cest().has_value());
}

TEST(modelo, an_enumeration_holds_a_value_beyond_its_enumerators)
{
    nota_fiscal nota;
    nota.set_indicador_presenca(static_cast<indicador_presenca>(42));
    EXPECT_EQ(static_cast<unsigned int>(nota.get_indicador_presenca()), 42u);
    EXPECT_EQ(static_cast<unsigned int>(meio_pagamento::outros), 12u);
    EXPECT_EQ(static_cast<unsigned int>(indicador_origem_processo::outros), 9u);
}

TEST(modelo, the_icms_group_of_an_item_is_read_from_its_tax)
{
    produto mercadoria;
    mercadoria.set_tributacao(grupo_tributacao_icms_60().set_cst(cst_icms::cst_60));
    auto const icms = mercadoria.get_grupo_tributacao_icms();
    ASSERT_TRUE(icms.has_value());
    ASSERT_TRUE(std::holds_alternative<grupo_tributacao_icms_60>(icms->base()));

    produto servico;
    servico.set_tributacao(issqn().set_item_lista_servicos("14.01"));
    EXPECT_FALSE(servico.get_grupo_tributacao_icms().has_value());
}

}  // namespace

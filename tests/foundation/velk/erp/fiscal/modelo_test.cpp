#include <velk/erp/fiscal/nota_fiscal.hpp>

#include <gtest/gtest.h>

#include <variant>

namespace {

using namespace velk::erp::fiscal;

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

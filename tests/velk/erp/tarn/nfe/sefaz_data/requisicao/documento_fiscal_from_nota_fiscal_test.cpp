#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <support/notas_fiscais.hpp>

#include <gtest/gtest.h>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using nfe::sefaz_data::requisicao::documento_fiscal;

TEST(documento_fiscal_from_nota_fiscal, a_note_becomes_a_document_read_back_from_its_xml)
{
    velk::core::result::stack stack;
    auto const nota = velk::test::nota_nfce_simples();
    documento_fiscal const documento = documento_fiscal::from_nota_fiscal(nota, nfe::versao::versao_4_00, stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    velk::core::result::stack ignored;
    EXPECT_EQ(velk::core::make_string(documento.get_chave_acesso(), ignored), nota.get_chave_44_digitos());
    EXPECT_EQ(documento.get_modelo(), velk::erp::tarn::modelo::nfce);
    EXPECT_EQ(documento.get_versao(), nfe::versao::versao_4_00);
    EXPECT_EQ(documento.get_numero_nota_fiscal(), nota.get_numero());
    EXPECT_EQ(documento.get_xml().get_name(), "NFe");
    EXPECT_FALSE(documento.get_digest_value().empty());
}

TEST(documento_fiscal_from_nota_fiscal, layouts_other_than_4_00_and_3_10_are_code_6_and_builder_refusals_stay_on_the_stack)
{
    // 3.10 is the older layout the library still writes; there is no 2.00.
    velk::core::result::stack older;
    EXPECT_EQ(documento_fiscal::from_nota_fiscal(velk::test::nota_nfce_simples(), nfe::versao::versao_3_10, older)
                  .get_versao(),
              nfe::versao::versao_3_10);
    EXPECT_FALSE(older.has_failed()) << older.to_string();
    for (nfe::versao const other : {nfe::versao::versao_2_00, static_cast<nfe::versao>(7)}) {
        velk::core::result::stack stack;
        documento_fiscal::from_nota_fiscal(velk::test::nota_nfce_simples(), other, stack);
        ASSERT_EQ(stack.size(), 1u);
        EXPECT_TRUE(stack.get_category() == nfe::sefaz_data::result_category::instance());
        EXPECT_EQ(stack.get_value(), 6);
    }

    auto nota = velk::test::nota_nfce_simples();
    nota.set_chave_44_digitos("123");
    velk::core::result::stack stack;
    documento_fiscal const documento = documento_fiscal::from_nota_fiscal(nota, nfe::versao::versao_4_00, stack);
    ASSERT_TRUE(stack.has_failed());
    EXPECT_TRUE(stack.get_category() == nfe::processar_nota_result_category::instance());
    EXPECT_EQ(stack.get_value(), 58);
    EXPECT_EQ(documento.get_xml().get_name(), "") << "a default object after a refusal";
}

}  // namespace

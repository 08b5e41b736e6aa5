// The notes of the corpus as documents of layout 3.10: signed, the official
// schema of 3.10 accepts them and an independent verifier confirms them.

#include "../documento_verificado_teste.hpp"

#include <support/corpus_notas.hpp>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::versao;
using velk::erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal;
using velk::test::nota_do_corpus;

// The notes the older layout cannot carry: the tax passed on to the state of
// destination with CST 60 came after it.
bool so_no_4_00(nota_do_corpus const& nota)
{
    return nota.nome == "nfe_rj_repasse";
}

class corpus_3_10 : public testing::TestWithParam<nota_do_corpus> {};

TEST_P(corpus_3_10, signed_document_is_valid_for_the_schema_and_the_verifier)
{
    if (so_no_4_00(GetParam())) {
        GTEST_SKIP() << "refused in 3.10";
    }
    stack report;
    documento_fiscal documento = documento_fiscal::from_nota_fiscal(GetParam().criar(), versao::versao_3_10, report);
    ASSERT_FALSE(report.has_failed()) << report.to_string();
    EXPECT_EQ(documento.get_versao(), versao::versao_3_10);
    velk::test::assinado_e_verificado(documento, "nfe_v3.10.xsd");
}

std::string nome_da_nota(testing::TestParamInfo<nota_do_corpus> const& info)
{
    return info.param.nome;
}

INSTANTIATE_TEST_SUITE_P(notas, corpus_3_10, testing::ValuesIn(velk::test::corpus_notas()), nome_da_nota);

}  // namespace

namespace velk::test {

void PrintTo(nota_do_corpus const& nota, std::ostream* saida);

}  // namespace velk::test

// JSON that is no note: each kind of bad text gets its code on the stack and
// a cleared message, never a crash; the words of the category; and a note
// written as JSON reads back the same.

#include "notas_json_teste.hpp"

#include <support/palavras_categoria.hpp>
#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json_result_category.hpp>

#include <google/protobuf/util/message_differencer.h>
#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::protobuf::ler_nota_json;
using velk::test::NotaFiscal;

struct texto_ruim {
    char const* caso;
    std::function<std::string()> texto;
    int codigo;
    char const* motivo;  // a part of protobuf's reason, or of the size
};

void PrintTo(texto_ruim const& caso, std::ostream* saida)
{
    *saida << caso.caso;
}

std::string aninhado(int niveis)
{
    std::string texto = R"({"produtos":[)";
    for (int i = 0; i < niveis; ++i) {
        texto += R"({"tributos_devolvidos":)";
    }
    texto += "{}";
    texto.append(static_cast<std::size_t>(niveis), '}');
    return texto + "]}";
}

std::vector<texto_ruim> const textos = {
    {"vazio", [] { return std::string(); }, 1, ""},
    {"mal_formado", [] { return std::string(R"({"numero": 12,)"); }, 1, ""},
    {"nao_e_objeto", [] { return std::string("[1, 2, 3]"); }, 1, ""},
    {"campo_desconhecido", [] { return std::string(R"({"numero_da_nota": 12})"); }, 1, "numero_da_nota"},
    {"tipo_errado", [] { return std::string(R"({"numero": "doze"})"); }, 1, ""},
    {"objeto_no_lugar_de_texto", [] { return std::string(R"({"serie": {"x": 1}})"); }, 1, ""},
    {"enumeracao_desconhecida", [] { return std::string(R"({"tipo_operacao": "Venda"})"); }, 1, "Venda"},
    // Names are exact: the case of a letter counts.
    {"enumeracao_em_minusculas", [] { return std::string(R"({"tipo_operacao": "saida"})"); }, 1, "saida"},
    {"numero_alem_de_32_bits", [] { return std::string(R"({"numero": 4294967296})"); }, 1, ""},
    {"numero_negativo_sem_sinal", [] { return std::string(R"({"codigo_nf": -1})"); }, 1, ""},
    {"decimal_alem_de_64_bits",
     [] { return std::string(R"({"produtos":[{"valor_total_bruto":{"numero":"18446744073709551616"}}]})"); }, 1, ""},
    {"numero_fracionario", [] { return std::string(R"({"numero": 1.5})"); }, 1, ""},
    {"utf8_invalido", [] { return std::string("{\"natureza_operacao\": \"VENDA \xC3\x28\"}"); }, 1, ""},
    {"aninhado_demais", [] { return aninhado(100000); }, 1, ""},
    {"texto_de_50_mb",
     [] { return R"({"natureza_operacao": ")" + std::string(50u << 20, 'A') + R"("})"; }, 2, "52428825"},
};

class json_que_nao_e_nota : public testing::TestWithParam<texto_ruim> {};

TEST_P(json_que_nao_e_nota, is_refused_on_the_stack)
{
    texto_ruim const& caso = GetParam();
    NotaFiscal nota;
    nota.set_numero(7);
    stack report;
    EXPECT_FALSE(ler_nota_json(caso.texto(), nota, report));
    EXPECT_EQ(nota.ByteSizeLong(), 0u) << "a refused text leaves the message cleared";
    ASSERT_EQ(report.size(), 1u) << report.to_string();
    auto const& topo = report.top();
    EXPECT_TRUE(topo.get_category() == velk::erp::tarn::nfe::protobuf::nota_json_result_category::instance());
    EXPECT_EQ(topo.get_value(), caso.codigo);
    ASSERT_EQ(topo.get_arguments().size(), 1u);
    EXPECT_NE(topo.get_arguments()[0].second.find(caso.motivo), std::string::npos) << topo.get_arguments()[0].second;
}

INSTANTIATE_TEST_SUITE_P(textos, json_que_nao_e_nota, testing::ValuesIn(textos),
                         [](testing::TestParamInfo<texto_ruim> const& info) { return std::string(info.param.caso); });

TEST(nota_json, words_of_every_code)
{
    velk::test::conferir_palavras(velk::erp::tarn::nfe::protobuf::nota_json_result_category::instance(),
                                  "tarn-nfe-nota-json",
                                  {
                                      {1, "O texto não é uma nota fiscal em JSON"},
                                      {2, "O texto da nota fiscal excede o tamanho admitido"},
                                      {3, "A nota fiscal não pôde ser escrita em JSON"},
                                  });
}

// A text exactly at the limit is parsed; one byte more is not.
TEST(nota_json, the_limit_is_the_size_of_the_text)
{
    std::string texto = R"({"natureza_operacao": ")";
    std::string const fim = R"("})";
    texto.append(velk::erp::tarn::nfe::protobuf::tamanho_maximo_nota_json - texto.size() - fim.size(), 'A');
    texto += fim;
    NotaFiscal nota;
    stack report;
    EXPECT_TRUE(ler_nota_json(texto, nota, report)) << report.to_string();
    texto.insert(texto.size() - fim.size(), "A");
    EXPECT_FALSE(ler_nota_json(texto, nota, report));
}

// Field names in lowerCamelCase read as those of the .proto files do, and an
// enumeration by its number as by its name.
TEST(nota_json, names_in_either_case_and_enumerations_by_number)
{
    NotaFiscal nota;
    stack report;
    ASSERT_TRUE(ler_nota_json(R"({"naturezaOperacao": "VENDA", "tipo_operacao": 1, "indicadorAmbiente": "Homologacao"})",
                              nota, report))
        << report.to_string();
    EXPECT_EQ(nota.natureza_operacao(), "VENDA");
    EXPECT_EQ(nota.tipo_operacao(), NotaFiscal::Saida);
    EXPECT_EQ(nota.indicador_ambiente(), NotaFiscal::Homologacao);
}

// An empty note reads, and its document is refused at its first value: the
// model, which is no number.
TEST(nota_json, an_empty_note_reads_and_is_refused_by_the_generation)
{
    NotaFiscal nota;
    stack report;
    ASSERT_TRUE(ler_nota_json("{}", nota, report));
    velk::erp::tarn::nfe::protobuf::generate_document_4_00(nota, report);
    ASSERT_TRUE(report.has_failed());
    EXPECT_EQ(report.top().get_value(), 71);
}

TEST(nota_json, every_note_of_the_corpus_written_as_json_reads_back_the_same)
{
    for (auto const& entrada : std::filesystem::directory_iterator(velk::test::pasta_notas_json())) {
        NotaFiscal const nota = velk::test::nota_json(entrada.path().stem().string());
        stack report;
        std::string const texto = velk::erp::tarn::nfe::protobuf::escrever_nota_json(nota, report);
        ASSERT_FALSE(report.has_failed()) << report.to_string();
        NotaFiscal lida;
        ASSERT_TRUE(ler_nota_json(texto, lida, report)) << report.to_string();
        EXPECT_TRUE(google::protobuf::util::MessageDifferencer::Equals(nota, lida)) << entrada.path();
    }
}

}  // namespace

// Our reader of a note's JSON against protobuf's own: for every text, the
// same message (byte for byte once serialized) or a refusal by both. The
// texts: every note of the corpus, a table of the corners of the mapping and
// of protobuf's leniencies, and the corpus notes damaged at random.

#include "notas_json_teste.hpp"

#include <velk/erp/tarn/nfe/protobuf/detail/leitor_json.hpp>
#include <velk/erp/tarn/nfe/protobuf/nota_json_result_category.hpp>

#include <google/protobuf/descriptor.pb.h>
#include <google/protobuf/dynamic_message.h>
#include <google/protobuf/util/json_util.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::erp::tarn::nfe::protobuf::ler_nota_json;
using velk::test::NotaFiscal;

// Empty when both agree; otherwise what each gave.
std::string diferenca(std::string const& texto)
{
    NotaFiscal oraculo;
    bool const aceito = google::protobuf::util::JsonStringToMessage(texto, &oraculo).ok();
    NotaFiscal nosso;
    stack report;
    bool const lido = ler_nota_json(texto, nosso, report);
    if (aceito == lido && (!lido || oraculo.SerializeAsString() == nosso.SerializeAsString())) {
        if (!lido) {
            auto const& topo = report.top();
            if (!(topo.get_category() == velk::erp::tarn::nfe::protobuf::nota_json_result_category::instance()) ||
                topo.get_value() != 1 || topo.get_arguments().empty() || topo.get_arguments()[0].second.empty()) {
                return "refused without code 1 and a reason: " + report.to_string();
            }
        }
        return std::string();
    }
    return "protobuf: " + (aceito ? oraculo.ShortDebugString() : std::string("refused")) +
           "\nours: " + (lido ? nosso.ShortDebugString() : report.to_string());
}

std::string produto(std::string const& dentro)
{
    return R"({"produtos": [{)" + dentro + "}]}";
}

// The text with a run of spaces before its last byte: room after its keys
// for the reader's comparison of a whole block, which it makes only then.
std::string com_folga(std::string texto)
{
    return texto.insert(texto.size() - 1, 40, ' ');
}

std::string endereco(std::string const& dentro)
{
    return R"({"emitente": {"endereco": {)" + dentro + "}}}";
}

// Each line: a text both readers must agree on (accepting or refusing).
std::vector<std::string> const cantos = {
    // Forms of a uint32.
    R"({"numero": 5})", R"({"numero": "5"})", R"({"numero": "+5"})", R"({"numero": "05"})", R"({"numero": 05})",
    R"({"numero": 5.0})", R"({"numero": 5e0})", R"({"numero": 0.5e1})", R"({"numero": 1.})", R"({"numero": "5.0"})",
    R"({"numero": "5e0"})", R"({"numero": -0})", R"({"numero": "-0"})", R"({"numero": -0.0})", R"({"numero": 01.5})",
    R"({"numero": " 5"})", R"({"numero": "5 "})", R"({"numero": ""})", R"({"numero": "+"})", R"({"numero": true})",
    R"({"numero": [5]})", R"({"numero": []})", R"({"numero": {}})", R"({"numero": 4294967295})",
    R"({"numero": 4294967296})", R"({"numero": "4294967296"})", R"({"numero": 4294967295.0})", R"({"numero": -1})",
    R"({"numero": -1.0})", R"({"numero": 1e-1})", R"({"numero": 0e5})", R"({"numero": 00.0})", R"({"numero": 1E+0})",
    R"({"numero": 1.0e})", R"({"numero": 1..0})", R"({"numero": 1e5e5})", R"({"numero": -})", R"({"numero": --1})",
    R"({"numero": 1-})", R"({"numero": +1})", R"({"numero": .5})", R"({"numero": 0x10})", R"({"numero": Infinity})",
    R"({"numero": 123456789012345678901234567890})", R"({"numero": 123456789012345678901234567890e-20})",
    R"({"numero": -9223372036854775809})", R"({"numero": -9223372036854775808})", R"({"numero": "\u0035"})",
    // An int32.
    R"({"data_emissao": {"offset": -180}})", R"({"data_emissao": {"offset": "-180"}})",
    R"({"data_emissao": {"offset": -2147483648}})", R"({"data_emissao": {"offset": -2147483649}})",
    R"({"data_emissao": {"offset": 2147483647}})", R"({"data_emissao": {"offset": 2147483648}})",
    R"({"data_emissao": {"offset": -2.147483648e9}})", R"({"data_emissao": {"offset": "-2147483649"}})",
    R"({"data_emissao": {"offset": 1e400}})", R"({"data_emissao": {"offset": -1e-400}})",
    R"({"data_emissao": {"offset": 1e-400}})", R"({"data_emissao": {"offset": 1.25e1}})",
    R"({"data_emissao": {"offset": -.5}})", R"({"data_emissao": {"offset": -5.}})",
    R"({"data_emissao": {"offset": -05}})", R"({"data_emissao": {"offset": "NaN"}})",
    R"({"data_emissao": {"offset": "--1"}})",
    // A uint64: the whole range, exactly, and a double only when whole.
    produto(R"("valor_total_bruto": {"numero": "18446744073709551615"})"),
    produto(R"("valor_total_bruto": {"numero": 18446744073709551615})"),
    produto(R"("valor_total_bruto": {"numero": 18446744073709551616})"),
    produto(R"("valor_total_bruto": {"numero": "18446744073709551616"})"),
    produto(R"("valor_total_bruto": {"numero": 1e19})"),
    produto(R"("valor_total_bruto": {"numero": 1.8446744073709552e19})"),
    produto(R"("valor_total_bruto": {"numero": 1.8446744073709550e19})"),
    produto(R"("valor_total_bruto": {"numero": 9007199254740993})"),
    produto(R"("valor_total_bruto": {"numero": 9007199254740993.0})"),
    produto(R"("valor_total_bruto": {"numero": "1e3"})"), produto(R"("valor_total_bruto": {"numero": -1})"),
    produto(R"("valor_total_bruto": {"numero": "-1"})"),
    // Enumerations by name and by number, declared or not.
    R"({"tipo_operacao": 1})", R"({"tipo_operacao": "1"})", R"({"tipo_operacao": "+1"})", R"({"tipo_operacao": 99})",
    R"({"tipo_operacao": "99"})", R"({"tipo_operacao": 1.0})", R"({"tipo_operacao": 1.5})",
    R"({"tipo_operacao": -1})", R"({"tipo_operacao": 2147483648})", R"({"tipo_operacao": -2147483648})",
    R"({"tipo_operacao": "Saida"})", R"({"tipo_operacao": "saida"})", R"({"tipo_operacao": "Saida "})",
    R"({"tipo_operacao": ""})", R"({"tipo_operacao": true})", R"({"tipo_operacao": {}})",
    R"({"tipo_operacao": "1.0"})",
    // Strings and their escapes.
    R"({"serie": 5})", R"({"serie": true})", R"({"serie": "a\u0000b"})", R"({"serie": "\ud83d\ude00"})",
    R"({"serie": "\uD83D\uDE00x"})", R"({"serie": "\ud83d"})", R"({"serie": "\ude00"})", R"({"serie": "\uD83Dx"})",
    R"({"serie": "\uD83D\u0041"})", R"({"serie": "\uD83D\uD83D"})", R"({"serie": "\ud83d\u00"})",
    R"({"serie": "\ud83d\n"})", R"({"serie": "\ud800\udc00"})", R"({"serie": "\udbff\udfff"})",
    R"({"serie": "\uFFFF\uFFFE"})", R"({"serie": "\u12"})", R"({"serie": "\u12G4"})", R"({"serie": "\u"})",
    R"({"serie": "\v\'\"\\\/\b\f\n\r\t"})", R"({"serie": "\x\0\U0041\ \é"})", "{\"serie\": \"tab\traw\\\tx\"}",
    "{\"serie\": \"a\rb\x01\"}", R"({"serie": 'a"b'})", R"({"serie": 'a\'b'})", R"({"serie": "a'b"})",
    R"({"serie": "\"})", R"({"serie": "abc)", R"({"serie": "abc")", R"({"serie": tru})", R"({"serie": nulls})",
    R"({"serie": "\u00e9\/"})",
    // UTF-8 as it comes: well formed, overlong, surrogates, beyond U+10FFFF,
    // cut short, a lone continuation byte; in a value, a key, an enumeration.
    "{\"serie\": \"a\xC3\xA9\"}", "{\"serie\": \"a\xC0\x80\"}", "{\"serie\": \"a\xED\xA0\x80\"}",
    "{\"serie\": \"a\xF4\x90\x80\x80\"}", "{\"serie\": \"a\xF4\x8F\xBF\xBF\"}", "{\"serie\": \"a\xE2\x82\"}",
    "{\"serie\": \"a\x80\"}", "{\"serie\": \"a\xFF\"}", "{\"serie\": \"\xE0\x80\x80\"}",
    "{\"serie\": \"\xF0\x80\x80\x80\"}", "{\"serie\": \"\xEE\x80\x80\xEF\xBB\xBF\"}", "{\"serie\": \"\\\xFF\"}",
    "{\"ser\xFFie\": \"a\"}", "{\"tipo_operacao\": \"Saida\xFF\"}", "{\"emitente\": {\"cnpj\": \"\xFF\"}}",
    "\xEF\xBB\xBF{}",
    // Nulls: nothing set, nothing cleared.
    R"({"numero": null})", R"({"numero": 5, "numero": null})", R"({"serie": null})", R"({"tipo_operacao": null})",
    R"({"emitente": null})", R"({"emitente": {"cnpj": "1"}, "emitente": null})", R"({"produtos": null})",
    R"({"produtos": [null]})", R"({"produtos": [{}, null]})", endereco(R"("cep": null)"),
    // Wrappers: the bare value, or an object of one "value".
    R"({"emitente": {"cnpj": "1"}})", R"({"emitente": {"cnpj": ""}})", R"({"emitente": {"cnpj": {"value": "1"}}})",
    R"({"emitente": {"cnpj": {"value": ""}}})", R"({"emitente": {"cnpj": {"value": null}}})",
    R"({"emitente": {"cnpj": {}}})", R"({"emitente": {"cnpj": {"value": "1", "value": "2"}}})",
    R"({"emitente": {"cnpj": {"valor": "1"}}})", R"({"emitente": {"cnpj": ["1"]}})", R"({"emitente": {"cnpj": 5}})",
    R"({"emitente": {"cnpj": "1", "cnpj": {}}})", R"({"emitente": {"cnpj": {"value": "1"}, "cnpj": null}})",
    R"({"emitente": {"cnpj": "1"}, "emitente": {"cnpj": ""}})", endereco(R"("cep": 5)"), endereco(R"("cep": "07")"),
    endereco(R"("cep": 0)"), endereco(R"("cep": -5)"), endereco(R"("cep": 1e3)"), endereco(R"("cep": 5.5)"),
    endereco(R"("cep": true)"), endereco(R"("cep": {"value": "7"})"),
    // Messages and repeated fields: merged, appended, flattened.
    R"({"emitente": {}})", R"({"emitente": []})", R"({"emitente": 5})", R"({"emitente": "x"})",
    R"({"emitente": {"cnpj": "1"}, "emitente": {"razao_social": "x"}})", R"({"produtos": {}})",
    R"({"produtos": {"ncm": 3}})", R"({"produtos": []})", R"({"produtos": [[]]})", R"({"produtos": [[{}]]})",
    R"({"produtos": [{}, [{}]]})", R"({"produtos": [[{"ncm": 1}], [{"ncm": 2}]]})",
    R"({"produtos": [{"ncm": 1}], "produtos": [{"ncm": 2}]})", R"({"produtos": [{"ncm": 1}, 5]})",
    R"({"produtos": ["x"]})", R"({"produtos": [true]})", R"({"produtos": 5})", R"({"produtos": [{},]})",
    R"({"produtos": [[],]})", R"({"produtos": [[,]]})", R"({"produtos": [,{}]})", R"({"produtos": [{},,]})",
    R"({"produtos": [ , ]})", R"({"produtos": [{}}})", R"({"produtos": [{]})", R"({"produtos": [})",
    R"({"produtos": [[[{}],]]})", R"({"produtos": [{}] "x"})",
    // Oneofs: one member per object, null taking none.
    R"({"indicador_intermediador": 0})", R"({"indicador_intermediador": 0, "indicador_intermediador": 1})",
    R"({"indicador_intermediador": null, "indicador_intermediador": 1})",
    R"({"indicador_intermediador": 1, "indicador_intermediador": null})",
    produto(R"("grupo_icms_00": {}, "grupo_icms_10": {})"), produto(R"("grupo_icms_00": {}, "grupoIcms00": {})"),
    produto(R"("grupo_icms_00": null, "grupo_icms_10": {})"),
    R"({"produtos": [{"grupo_icms_00": {}}, {"grupo_icms_10": {}}]})",
    // Keys: either name, escaped, quoted either way, bare, duplicated.
    R"({"codigoNf": 5})", R"({"codigo_nf": 5, "codigoNf": 6})", R"({"CodigoNf": 5})", R"({"n\u0075mero": 5})",
    R"({"": 5})", R"({'numero': 5})", R"({numero: 5})", R"({numero :1, serie:"a"})", R"({true: 1})",
    R"({nullx: 1})", R"({$x: 1})", R"({1numero: 1})", R"({"numero" 5})", R"({:1})", R"({"serie"})",
    R"({"serie":})", R"({"serie": "a": "b"})", R"({"numero": 5 "serie": "a"})", R"({"numero": 5, "numero": 7})",
    R"({"numero": 1, "numero": "x"})", R"({"numero_da_nota": 12})",
    // Keys against the names expected next: out of order, cut short, run on,
    // closed by the other quote, at the end of the text.
    R"({"serie": "1", "modelo_emissao": "65"})", R"({"modelo_emissao": "65", "seri": "1"})",
    R"({"modelo_emissao": "65", "seriex": "1"})", R"({"modelo_emissao": "65", "serie': "1"})",
    R"({"modelo_emissao": "65", 'serie': "1"})", R"({"modelo_emissao": "65", "serie)",
    R"({"modelo_emissao": "65", "se\u0072ie": "1"})",
    com_folga(R"({"serie": "1", "modelo_emissao": "65"})"), com_folga(R"({"modelo_emissao": "65", "seri": "1"})"),
    com_folga(R"({"modelo_emissao": "65", "seriex": "1"})"), com_folga(R"({"modelo_emissao": "65", "serie': "1"})"),
    com_folga(R"({"modelo_emissao": "65", 'serie': "1"})"), com_folga(R"({"modelo_emissao": "65", "serie" : "1"})"),
    com_folga(R"({"modelo_emissao": "65", "serie":"1"})"), com_folga(R"({"modelo_emissao":"65","serie":  "1"})"),
    com_folga(produto(R"("grupo_icms_00": {}, "grupo_icms_10": {})")),
    com_folga(produto(R"("grupo_icms_00": {}, "tributacao_pis_cofins": {}, "grupo_icms_10": {})")),
    com_folga(R"({"emitente": {"cnpj": "1"}, "operacao_para_consumidor_final": "Sim", "numero": 1})"),
    // The text around the note.
    "", " ", "{", "{}", " {} ", "{ }", "null", "[]", "[1, 2]", "5", "\"x\"", "{}x", "{} {}", "{}}", R"({"numero": 1]})",
    "{\"numero\": 1}\v\f\r\n\t ", "\v{\"numero\": 1}", std::string("{\"numero\": 1}\0", 14), "{\r\"numero\"\t:\n1 , }",
    R"({"numero": 5,})", R"({,})", R"({"numero": 5,,})", R"({"numero": 1} //)", R"({"numero": truex})",
};

class leitor_json_diferencial : public testing::TestWithParam<std::string> {};

TEST_P(leitor_json_diferencial, gives_what_protobuf_gives)
{
    EXPECT_EQ(diferenca(GetParam()), "") << GetParam();
}

INSTANTIATE_TEST_SUITE_P(cantos, leitor_json_diferencial, testing::ValuesIn(cantos));

std::vector<std::string> notas_do_corpus()
{
    std::vector<std::string> textos;
    for (auto const& entrada : std::filesystem::directory_iterator(velk::test::pasta_notas_json())) {
        textos.push_back(velk::test::read_text(entrada.path()));
    }
    return textos;
}

TEST(leitor_json, every_note_of_the_corpus_reads_as_protobuf_reads_it)
{
    auto const textos = notas_do_corpus();
    ASSERT_GE(textos.size(), 10u);
    for (auto const& texto : textos) {
        NotaFiscal nota;
        stack report;
        ASSERT_TRUE(ler_nota_json(texto, nota, report)) << report.to_string();
        EXPECT_EQ(diferenca(texto), "") << texto.substr(0, 200);
    }
}

// Every kind of field the binary form knows, most of which no note has, on a
// message of no generated class: each value alone and in a list, against
// protobuf's reader. The field numbers take tags of one to three bytes.
TEST(leitor_json, every_kind_of_field_reads_as_protobuf_reads_it)
{
    using campo = google::protobuf::FieldDescriptorProto;
    google::protobuf::FileDescriptorProto arquivo;
    arquivo.set_name("tipos.proto");
    arquivo.set_package("teste");
    arquivo.set_syntax("proto3");
    auto& tipos = *arquivo.add_message_type();
    tipos.set_name("Tipos");
    std::vector<std::pair<std::string, campo::Type>> const feitios = {
        {"d", campo::TYPE_DOUBLE},     {"f", campo::TYPE_FLOAT},      {"i64", campo::TYPE_INT64},
        {"u64", campo::TYPE_UINT64},   {"i32", campo::TYPE_INT32},    {"x64", campo::TYPE_FIXED64},
        {"x32", campo::TYPE_FIXED32},  {"b", campo::TYPE_BOOL},       {"s", campo::TYPE_STRING},
        {"y", campo::TYPE_BYTES},      {"u32", campo::TYPE_UINT32},   {"sx32", campo::TYPE_SFIXED32},
        {"sx64", campo::TYPE_SFIXED64}, {"z32", campo::TYPE_SINT32},  {"z64", campo::TYPE_SINT64},
    };
    int numero = 1;
    for (auto const& [nome, feitio] : feitios) {
        for (bool const repetido : {false, true}) {
            auto& novo = *tipos.add_field();
            novo.set_name(repetido ? "r" + nome : nome);
            novo.set_number(numero);
            numero += 600;
            novo.set_type(feitio);
            novo.set_label(repetido ? campo::LABEL_REPEATED : campo::LABEL_OPTIONAL);
        }
    }
    google::protobuf::DescriptorPool conjunto;
    auto const* const lido = conjunto.BuildFile(arquivo);
    ASSERT_NE(lido, nullptr);
    google::protobuf::Descriptor const& descritor = *lido->message_type(0);
    velk::erp::tarn::nfe::protobuf::detail::leitor_json const leitor(descritor);
    google::protobuf::DynamicMessageFactory fabrica;
    google::protobuf::Message const& prototipo = *fabrica.GetPrototype(&descritor);

    std::vector<std::string> const valores = {
        "0", "1", "-1", "2147483647", "-2147483648", "4294967295", "\"-9223372036854775808\"",
        "\"18446744073709551615\"", "1.5", "-0.0", "1e300", "3.4e38", "\"NaN\"", "\"-Infinity\"", "true",
        "\"true\"", "\"aGVsbG8=\"", "\"h\u00e9llo\"", "\"AQID\"", "\"QQ\"", "\"QR\"", "\"QUI\"", "\"QUJ\"",
        "\"QQ==\"", "\"QQ=\"", "\"Q\"", "\"Q===\"", "\"QUI=\"", "\"QUJD\"", "\"_-8\"", "\"+/8\"", "\"QQ==QQ==\"", "\"QUJD====\"", "\"QUJD=\"", "\"QQ===\"", "\"QUI==\"", "\"=\"", "\"====\"", "\"\""};
    int aceitos = 0;
    for (int i = 0; i < descritor.field_count(); ++i) {
        std::string const nome(descritor.field(i)->name());
        for (auto const& valor : valores) {
            for (std::string const& texto : {"{\"" + nome + "\": " + valor + "}",
                                             "{\"" + nome + "\": [" + valor + ", " + valor + "]}"}) {
                std::unique_ptr<google::protobuf::Message> oraculo(prototipo.New());
                std::unique_ptr<google::protobuf::Message> nosso(prototipo.New());
                bool const aceito = google::protobuf::util::JsonStringToMessage(texto, oraculo.get()).ok();
                std::string motivo;
                EXPECT_EQ(leitor.ler(texto, *nosso, motivo), aceito) << texto << " " << motivo;
                EXPECT_EQ(nosso->SerializeAsString(), oraculo->SerializeAsString()) << texto;
                aceitos += aceito ? 1 : 0;
            }
        }
    }
    EXPECT_GT(aceitos, 100);
}

// Messages whose length takes more bytes than most: a wrapper's value past
// 127 bytes, messages past 2^14 and 2^21 bytes, nested.
TEST(leitor_json, long_messages_read_as_protobuf_reads_them)
{
    // A decimal's few numbers take less than 128 bytes, unless repeated.
    std::string decimal;
    for (int i = 0; i < 20; ++i) {
        decimal += R"("numero": "-)" + std::to_string(i) + R"(", "casas_decimais": 2, )";
    }
    decimal += R"("numero": "7")";
    for (auto const& texto : {R"({"emitente": {"cnpj": ")" + std::string(200, '1') + R"("}})",
                              produto(R"("valor_total_bruto": {)" + decimal + "}"),
                              produto(R"("descricao": ")" + std::string(20000, 'x') + R"(", "ncm": 5)"),
                              endereco(R"("logadouro": ")" + std::string((1 << 21) + 5, 'y') + R"(", "cep": 7)")}) {
        EXPECT_EQ(diferenca(texto).substr(0, 300), "") << texto.substr(0, 60);
    }
}

// A message built from the descriptor alone, of no generated class, is
// filled as the generated one is, and refused with the same reason.
TEST(leitor_json, a_message_of_no_generated_class_reads_as_the_generated_one)
{
    velk::erp::tarn::nfe::protobuf::detail::leitor_json const leitor(*NotaFiscal::descriptor());
    google::protobuf::DynamicMessageFactory fabrica;
    auto textos = notas_do_corpus();
    textos.push_back(produto(R"("valor_total_bruto": {"numero": "x"})"));
    for (auto const& texto : textos) {
        std::unique_ptr<google::protobuf::Message> dinamica(fabrica.GetPrototype(NotaFiscal::descriptor())->New());
        NotaFiscal gerada;
        std::string motivo_dinamica;
        std::string motivo_gerada;
        EXPECT_EQ(leitor.ler(texto, *dinamica, motivo_dinamica), leitor.ler(texto, gerada, motivo_gerada));
        EXPECT_EQ(motivo_dinamica, motivo_gerada);
        EXPECT_EQ(dinamica->SerializeAsString(), gerada.SerializeAsString()) << texto.substr(0, 200);
    }
}

// Nesting: arrays within a repeated field, at any depth, and objects nested
// past any note.
TEST(leitor_json, nesting_is_judged_as_protobuf_judges_it)
{
    for (int niveis : {1, 2, 99, 100, 101, 5000}) {
        std::string const colchetes =
            R"({"produtos":)" + std::string(niveis, '[') + "{}" + std::string(niveis, ']') + "}";
        EXPECT_EQ(diferenca(colchetes), "") << niveis;
        std::string objetos = R"({"produtos": [)";
        for (int i = 0; i < niveis; ++i) {
            objetos += R"({"tributos_devolvidos": )";
        }
        objetos += "{}" + std::string(niveis, '}') + "]}";
        EXPECT_EQ(diferenca(objetos), "") << niveis;
    }
}

// The inputs the fuzzer of this reader keeps, odd ones above all.
TEST(leitor_json, the_fuzzers_inputs_read_as_protobuf_reads_them)
{
    auto const pasta = velk::test::pasta_notas_json().parent_path() / "../../../../../../fuzz/corpus/nota_json";
    int lidos = 0;
    for (auto const& entrada : std::filesystem::directory_iterator(pasta)) {
        std::string const texto = velk::test::read_text(entrada.path());
        ASSERT_EQ(diferenca(texto), "") << entrada.path();
        ++lidos;
    }
    EXPECT_GT(lidos, 100);
}

// Each note of the corpus laid out otherwise than by protobuf's printer:
// without whitespace, indented by four spaces or by tabs, with Windows line
// ends, with its gaps varied from line to line. The gaps and the spaces after
// the colons are what the reader expects ahead of time.
TEST(leitor_json, notes_laid_out_otherwise_read_as_protobuf_reads_them)
{
    auto const refeito = [](std::string const& texto, auto const& lacuna) {
        std::string saida;
        for (std::size_t i = 0; i < texto.size(); ++i) {
            if (texto[i] != '\n') {
                saida += texto[i];
                continue;
            }
            std::size_t fim = i + 1;
            while (fim < texto.size() && texto[fim] == ' ') {
                ++fim;
            }
            saida += lacuna(fim - i - 1, i);
            i = fim - 1;
        }
        return saida;
    };
    for (auto const& original : notas_do_corpus()) {
        for (std::string const& texto : {
                 refeito(original, [](std::size_t, std::size_t) { return std::string(); }),
                 refeito(original, [](std::size_t n, std::size_t) { return "\n" + std::string(2 * n, ' '); }),
                 refeito(original, [](std::size_t n, std::size_t) { return "\n" + std::string(n / 2, '\t'); }),
                 refeito(original, [](std::size_t n, std::size_t) { return "\r\n" + std::string(n, ' '); }),
                 refeito(original, [](std::size_t n, std::size_t i) { return "\n" + std::string(n + i % 3, ' '); }),
                 refeito(original, [](std::size_t n, std::size_t i) { return (i % 2 ? "\n " : "\n\t") + std::string(n, ' '); }),
             }) {
            ASSERT_EQ(diferenca(texto), "") << texto;
        }
    }
}

// Each note of the corpus damaged where it hurts: a byte dropped, doubled or
// replaced by one of JSON's punctuation, a quote or a digit, or a stretch of
// it cut out. A fixed seed keeps the run the same every time.
TEST(leitor_json, damaged_notes_are_judged_as_protobuf_judges_them)
{
    std::mt19937 sorte(20240917);
    std::string const trocas = "{}[],:\"'\\0123456789-+.eE ntfu\x80\xC3";
    int aceitos = 0;
    int recusados = 0;
    for (auto const& original : notas_do_corpus()) {
        for (int vez = 0; vez < 300; ++vez) {
            std::string texto = original;
            std::uniform_int_distribution<std::size_t> posicao(0, texto.size() - 1);
            std::size_t const onde = posicao(sorte);
            switch (vez % 4) {
            case 0: texto.erase(onde, 1); break;
            case 1: texto.insert(onde, 1, texto[onde]); break;
            case 2: texto[onde] = trocas[sorte() % trocas.size()]; break;
            default: texto.erase(onde, 1 + sorte() % 40); break;
            }
            std::string const diferente = diferenca(texto);
            ASSERT_EQ(diferente, "") << texto;
            NotaFiscal nota;
            (google::protobuf::util::JsonStringToMessage(texto, &nota).ok() ? aceitos : recusados) += 1;
        }
    }
    // The damage must reach both sides of the line to prove anything.
    EXPECT_GT(aceitos, 100);
    EXPECT_GT(recusados, 100);
}

}  // namespace

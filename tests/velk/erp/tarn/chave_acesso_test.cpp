#include <velk/erp/tarn/chave_acesso.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using velk::core::converter_status;
using velk::erp::tarn::chave_acesso;

converter_status read(chave_acesso& key, std::string const& text)
{
    return velk::core::value_converter<chave_acesso>::make_value(key, text.data(), text.size());
}

std::string write(chave_acesso const& key)
{
    velk::core::result::stack stack;
    return velk::core::make_string(key, stack);
}

TEST(chave_acesso, reads_the_fields_and_writes_them_back_unchanged)
{
    // An NFC-e of SP in offline contingency, with a check digit nobody verifies.
    std::string const text = "35240311222333000181650010000012349876543217";
    chave_acesso key;
    ASSERT_EQ(read(key, text), converter_status::done);
    EXPECT_EQ(key.get_estado(), velk::erp::estado::sp);
    EXPECT_EQ(key.get_ano_emissao(), 24);
    EXPECT_EQ(key.get_mes_emissao(), 3);
    EXPECT_EQ(key.get_cnpj(), "11222333000181");
    EXPECT_EQ(key.get_modelo_chave(), velk::erp::tarn::modelo::nfce);
    EXPECT_EQ(key.get_serie(), 1u);
    EXPECT_EQ(key.get_numero_nfe(), 1234u);
    EXPECT_EQ(key.get_tipo_emissao(), velk::erp::fiscal::tipo_emissao::contingencia_offline_nfce);
    EXPECT_EQ(key.get_codigo_numerico(), 87654321u);
    EXPECT_EQ(key.get_digito_verificador(), 7);
    EXPECT_EQ(write(key), text);

    chave_acesso const copy = key;
    EXPECT_EQ(write(copy), text);
}

TEST(chave_acesso, refuses_texts_that_are_no_key)
{
    std::string const good = "35240311222333000181550010000012341876543210";
    struct row {
        std::string text;
        char const* why;
    };
    for (row const& r : {row{good.substr(0, 43), "43 digits"}, row{good + "1", "45 digits"},
                         row{"99" + good.substr(2), "no state 99"}, row{good.substr(0, 20) + "57" + good.substr(22), "model 57"},
                         row{good.substr(0, 34) + "8" + good.substr(35), "emission type digit 8"},
                         row{good.substr(0, 10) + "a" + good.substr(11), "a letter"}}) {
        chave_acesso key;
        EXPECT_EQ(read(key, r.text), converter_status::invalid_value) << r.why;
    }
    // The month is not checked.
    chave_acesso key;
    EXPECT_EQ(read(key, good.substr(0, 4) + "13" + good.substr(6)), converter_status::done);
}

TEST(chave_acesso, writing_needs_44_bytes_and_fields_within_their_digits)
{
    chave_acesso::data fields;
    fields.estado = velk::erp::estado::rs;
    fields.ano_emissao = 25;
    fields.mes_emissao = 1;
    fields.cnpj = "11222333000181";
    fields.serie = 1;
    fields.numero_nfe = 42;
    fields.codigo_numerico = 7;
    fields.digito_verificador = 5;
    chave_acesso const key(std::move(fields));
    EXPECT_EQ(write(key), "43250111222333000181550010000000421000000075");

    char buffer[44];
    unsigned long size = 43;
    EXPECT_EQ(velk::core::chars_converter<chave_acesso>::make_chars(buffer, size, key),
              converter_status::buffer_too_small);
    EXPECT_EQ(size, 44u);

    // A field wider than its digits has no text: the key never grows past 44.
    struct wide_case {
        char const* why;
        void (*widen)(chave_acesso::data&);
    };
    wide_case const cases[] = {
        {"series 1000", [](chave_acesso::data& d) { d.serie = 1000; }},
        {"check digit 10", [](chave_acesso::data& d) { d.digito_verificador = 10; }},
        {"check digit 11", [](chave_acesso::data& d) { d.digito_verificador = 11; }},
        {"check digit 65535", [](chave_acesso::data& d) { d.digito_verificador = 65535; }},
    };
    for (wide_case const& current : cases) {
        chave_acesso::data wide;
        wide.cnpj = "11222333000181";
        current.widen(wide);
        char room[64];
        size = sizeof room;
        EXPECT_EQ(velk::core::chars_converter<chave_acesso>::make_chars(room, size, chave_acesso(std::move(wide))),
                  converter_status::invalid_value)
            << current.why;
    }
}

}  // namespace

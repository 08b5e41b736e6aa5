#include <velk/erp/tarn/ambiente.hpp>
#include <velk/erp/tarn/modelo.hpp>
#include <velk/erp/tarn/nfe/detail/tipo_evento.hpp>
#include <velk/erp/tarn/nfe/servidor_emissao.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>
#include <velk/erp/tarn/nfe/versao_qrcode.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

namespace {

using velk::core::chars_converter;
using velk::core::converter_status;
using velk::core::value_converter;
namespace tarn = velk::erp::tarn;

template <class T>
std::pair<converter_status, std::string> write(T value, unsigned long room)
{
    char buffer[64] = {};
    unsigned long size = room;
    converter_status const status = chars_converter<T>::make_chars(buffer, size, value);
    return {status, status == converter_status::done ? std::string(buffer, size) : std::to_string(size)};
}

template <class T>
converter_status read(T& value, std::string const& text)
{
    return value_converter<T>::make_value(value, text.data(), text.size());
}

TEST(enumeracoes, texts_written_with_enough_room)
{
    EXPECT_EQ(write(tarn::ambiente::homologacao, 64).second, "homologação");
    EXPECT_EQ(write(tarn::ambiente::producao, 64).second, "produção");
    EXPECT_EQ(write(tarn::modelo::nfe, 64).second, "NFe");
    EXPECT_EQ(write(tarn::modelo::nfce, 64).second, "NFCe");
    EXPECT_EQ(write(tarn::nfe::versao::versao_3_10, 64).second, "3.10");
    EXPECT_EQ(write(tarn::nfe::versao::versao_4_00, 64).second, "4.00");
    EXPECT_EQ(write(tarn::nfe::versao::versao_2_00, 64).second, "2.00");
    EXPECT_EQ(write(tarn::nfe::servidor_emissao::contingencia_rs, 64).second, "contingencia-rs");
    EXPECT_EQ(write(tarn::nfe::servidor_emissao::ambiente_nacional, 64).second, "ambiente nacional");
    // The QR code version writes its terminator and counts it.
    EXPECT_EQ(write(tarn::nfe::versao_qrcode::versao_200, 64).second, std::string("200\0", 4));
    EXPECT_EQ(tarn::get_codigo_ambiente(tarn::ambiente::homologacao), 2);
    EXPECT_EQ(tarn::get_codigo_ambiente(tarn::ambiente::producao), 1);
    EXPECT_EQ(tarn::get_codigo_ambiente(static_cast<tarn::ambiente>(2)), 0);
    EXPECT_EQ(tarn::get_codigo_modelo(tarn::modelo::nfce), 65);
    EXPECT_EQ(tarn::get_codigo_modelo(static_cast<tarn::modelo>(9)), 0);
}

TEST(enumeracoes, room_and_value_are_checked_in_each_type_own_order)
{
    struct row {
        std::pair<converter_status, std::string> result;
        converter_status status;
        char const* size_or_text;
    };
    for (row const& r : {
             // ambiente: the value first, then the room of its own text.
             row{write(static_cast<tarn::ambiente>(2), 0), converter_status::invalid_value, ""},
             row{write(tarn::ambiente::homologacao, 12), converter_status::buffer_too_small, "13"},
             row{write(tarn::ambiente::producao, 9), converter_status::buffer_too_small, "10"},
             // modelo asks for 4 bytes for every value, "NFe" included.
             row{write(tarn::modelo::nfe, 3), converter_status::buffer_too_small, "4"},
             row{write(static_cast<tarn::modelo>(2), 3), converter_status::buffer_too_small, "4"},
             row{write(static_cast<tarn::modelo>(2), 4), converter_status::invalid_value, ""},
             row{write(static_cast<tarn::nfe::versao>(3), 3), converter_status::buffer_too_small, "4"},
             row{write(static_cast<tarn::nfe::versao>(3), 4), converter_status::invalid_value, ""},
             // versao_qrcode asks for the 4 bytes it writes, terminator included.
             row{write(tarn::nfe::versao_qrcode::versao_100, 3), converter_status::buffer_too_small, "4"},
             row{write(static_cast<tarn::nfe::versao_qrcode>(2), 4), converter_status::invalid_value, ""},
             row{write(tarn::nfe::servidor_emissao::normal, 17), converter_status::buffer_too_small, "18"},
             row{write(tarn::nfe::detail::tipo_evento::cancelamento, 5), converter_status::buffer_too_small, "6"},
             row{write(static_cast<tarn::nfe::detail::tipo_evento>(8), 6), converter_status::invalid_value, ""},
         }) {
        EXPECT_EQ(r.result.first, r.status);
        if (r.status == converter_status::buffer_too_small) {
            EXPECT_EQ(r.result.second, r.size_or_text);
        }
    }
}

// A buffer of exactly the three digits, on the heap, where a byte written past
// it is caught by the address sanitizer: nothing is written into it.
TEST(enumeracoes, the_qrcode_version_writes_nothing_into_three_bytes)
{
    auto const buffer = std::make_unique<char[]>(3);
    std::fill_n(buffer.get(), 3, 'x');
    unsigned long size = 3;
    EXPECT_EQ(chars_converter<tarn::nfe::versao_qrcode>::make_chars(buffer.get(), size,
                                                                    tarn::nfe::versao_qrcode::versao_100),
              converter_status::buffer_too_small);
    EXPECT_EQ(size, 4u);
    EXPECT_EQ(std::string(buffer.get(), 3), "xxx");
}

TEST(enumeracoes, reading_accepts_only_the_listed_texts_and_keeps_the_target_otherwise)
{
    tarn::ambiente ambiente = tarn::ambiente::producao;
    EXPECT_EQ(read(ambiente, "2"), converter_status::done);
    EXPECT_EQ(ambiente, tarn::ambiente::homologacao);
    EXPECT_EQ(read(ambiente, "produção"), converter_status::done);
    EXPECT_EQ(ambiente, tarn::ambiente::producao);
    for (char const* bad : {"0", "3", "producao", "Produção", ""}) {
        EXPECT_EQ(read(ambiente, bad), converter_status::invalid_value) << bad;
        EXPECT_EQ(ambiente, tarn::ambiente::producao);
    }

    tarn::modelo modelo = tarn::modelo::nfe;
    EXPECT_EQ(read(modelo, "nfc"), converter_status::done);
    EXPECT_EQ(modelo, tarn::modelo::nfce);
    EXPECT_EQ(read(modelo, "55"), converter_status::done);
    EXPECT_EQ(modelo, tarn::modelo::nfe);
    // What make_chars writes does not read back.
    for (char const* bad : {"nfce", "NFe", "NFCe", "57", "5"}) {
        EXPECT_EQ(read(modelo, bad), converter_status::invalid_value) << bad;
    }

    tarn::nfe::versao versao = tarn::nfe::versao::versao_3_10;
    EXPECT_EQ(read(versao, "4.00"), converter_status::done);
    EXPECT_EQ(versao, tarn::nfe::versao::versao_4_00);
    for (char const* bad : {"4.0", "4.000", "1.00"}) {
        EXPECT_EQ(read(versao, bad), converter_status::invalid_value) << bad;
    }

    tarn::nfe::versao_qrcode qrcode = tarn::nfe::versao_qrcode::versao_100;
    EXPECT_EQ(read(qrcode, "200"), converter_status::done);
    EXPECT_EQ(qrcode, tarn::nfe::versao_qrcode::versao_200);
    EXPECT_EQ(read(qrcode, std::string("100\0", 4)), converter_status::invalid_value);

    tarn::nfe::detail::tipo_evento evento = tarn::nfe::detail::tipo_evento::cancelamento;
    EXPECT_EQ(read(evento, "110113"), converter_status::invalid_value);
    EXPECT_EQ(evento, tarn::nfe::detail::tipo_evento::cancelamento);
}

TEST(enumeracoes, each_event_type_writes_and_reads_its_own_code)
{
    using tarn::nfe::detail::tipo_evento;
    struct row {
        tipo_evento type;
        char const* code;
    };
    for (row const& r : {row{tipo_evento::cancelamento, "110111"}, row{tipo_evento::cancelamento_por_substituicao, "110112"},
                         row{tipo_evento::carta_correcao, "110110"}, row{tipo_evento::epec, "110140"},
                         row{tipo_evento::confirmacao_operacao, "210200"}, row{tipo_evento::ciencia_operacao, "210210"},
                         row{tipo_evento::desconhecimento_operacao, "210220"},
                         row{tipo_evento::operacao_nao_realizada, "210240"}}) {
        EXPECT_EQ(write(r.type, 6), std::make_pair(converter_status::done, std::string(r.code)));
        // Read into a target holding another type, so a code read as the
        // wrong type or not at all shows.
        tipo_evento read_back = r.type == tipo_evento::cancelamento ? tipo_evento::epec : tipo_evento::cancelamento;
        EXPECT_EQ(read(read_back, r.code), converter_status::done) << r.code;
        EXPECT_EQ(read_back, r.type) << r.code;
    }
}

}  // namespace

#pragma once

// What the tests of the events share: keys from text, the moment of the
// events, and one signed event of each kind the library writes.

#include <velk/core/converter.hpp>
#include <velk/core/datetime.hpp>
#include <velk/core/decimal.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace velk::test {

inline constexpr char id_infevento[] = "http://www.portalfiscal.inf.br/nfe:infEvento";

// An NF-e of São Paulo, an NFC-e of the same issuer issued normally, and one
// issued in offline contingency (emission type 9) that replaces it.
inline constexpr char chave_nfe_sp[] = "35150300822602000124550010009923461099234656";
inline constexpr char chave_nfce_sp[] = "35240305730928000145650010000001421071400478";
inline constexpr char chave_nfce_offline[] = "35240305730928000145650010000001439071400479";

inline erp::tarn::chave_acesso chave_de_texto(std::string const& text)
{
    erp::tarn::chave_acesso value;
    EXPECT_EQ(core::value_converter<erp::tarn::chave_acesso>::make_value(value, text.data(), text.size()),
              core::converter_status::done)
        << text;
    return value;
}

// 2024-02-01T14:07:05-03:00
inline core::datetime momento_evento()
{
    return core::datetime(core::date(1, 2, 2024), core::time(14, 7, 5, 0), -180);
}

// One event of each kind, built and not signed, with the schema of its batch
// and that of its detEvento.
struct evento_de_exemplo {
    char const* name;
    char const* batch_schema;
    char const* payload_schema;
    std::function<erp::tarn::nfe::sefaz_data::requisicao::evento(core::result::stack&)> make;
};

inline std::vector<evento_de_exemplo> eventos_de_exemplo()
{
    using namespace erp::tarn::nfe::sefaz_data::requisicao;
    using erp::tarn::ambiente;
    using manifestacao = manifestacao_destinatario::tipo_manifestacao;
    auto const manifestacao_de = [](manifestacao tipo, std::string const& justificativa) {
        return [tipo, justificativa](core::result::stack& s) {
            return evento::from_data(manifestacao_destinatario::from_data(tipo, justificativa, s),
                                     chave_de_texto(chave_nfe_sp), ambiente::homologacao, momento_evento(), s);
        };
    };
    std::string const justificativa = "Mercadoria devolvida pelo transportador";
    return {
        {"cancelamento", "envEventoCancNFe_v1.00.xsd", "e110111_v1.00.xsd",
         [](core::result::stack& s) {
             return evento::from_data(cancelamento::from_data("Preenchimento incorreto dos dados", 135150001686732, s),
                                      chave_de_texto(chave_nfe_sp), ambiente::homologacao, momento_evento(), s);
         }},
        {"cancelamento por substituicao", "envEventoCancSubst_v1.00.xsd", "e110112_v1.00.xsd",
         [](core::result::stack& s) {
             return evento::from_data(cancelamento::from_data("Venda registrada em contingencia", 135240000000017, 35,
                                                              "velk-erp 4.0", chave_de_texto(chave_nfce_offline), s),
                                      chave_de_texto(chave_nfce_sp), ambiente::producao, momento_evento(), s);
         }},
        {"carta de correcao", "envCCe_v1.00.xsd", "e110110_v1.00.xsd",
         [](core::result::stack& s) {
             return evento::from_data(carta_correcao::from_data("Endereco de entrega: Rua das Flores, 100", s),
                                      chave_de_texto(chave_nfe_sp), ambiente::homologacao, momento_evento(), 2, s);
         }},
        {"EPEC", "envEPEC_v1.00.xsd", "e110140_v1.00.xsd",
         [](core::result::stack& s) {
             auto const dest = epec_nfe::destinatario::from_data(
                 erp::estado::rj, epec_nfe::destinatario::cnpj{"11222333000181"}, "",
                 {core::decimal(150000, -2), core::decimal(2700, -1), core::decimal(0, 0)}, s);
             return evento::from_data(
                 epec_nfe::from_data(erp::estado::sp, momento_evento(), 1, "111222333444", dest, s),
                 chave_de_texto(chave_nfe_sp), ambiente::homologacao, momento_evento(), s);
         }},
        {"confirmacao da operacao", "envConfRecebto_v1.00.xsd", "e210200_v1.00.xsd",
         manifestacao_de(manifestacao::confirmacao_operacao, "")},
        {"ciencia da operacao", "envConfRecebto_v1.00.xsd", "e210210_v1.00.xsd",
         manifestacao_de(manifestacao::ciencia_operacao, justificativa)},
        {"desconhecimento da operacao", "envConfRecebto_v1.00.xsd", "e210220_v1.00.xsd",
         manifestacao_de(manifestacao::desconhecimento_operacao, justificativa)},
        {"operacao nao realizada", "envConfRecebto_v1.00.xsd", "e210240_v1.00.xsd",
         manifestacao_de(manifestacao::operacao_nao_realizada, justificativa)},
    };
}

}  // namespace velk::test

#include "event_requests.hpp"

#include "authority_fixture.hpp"

#include <velk/core/converter.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>

#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <map>

namespace velk::test {

namespace {

namespace requisicao = erp::tarn::nfe::sefaz_data::requisicao;
using erp::tarn::ambiente;
using manifestacao = requisicao::manifestacao_destinatario::tipo_manifestacao;

erp::tarn::chave_acesso key_from(std::string const& text)
{
    erp::tarn::chave_acesso key;
    core::result::stack stack;
    core::read_value(key, text, stack);
    EXPECT_FALSE(stack.has_failed()) << text << ": " << stack.to_string();
    return key;
}

core::datetime moment()
{
    return core::datetime(core::date(3, 6, 2024), core::time(9, 30, 0, 0), -180);
}

template <class Payload, class... Extra>
std::string signed_event(Payload const& payload, std::string const& key, core::result::stack& stack, Extra... extra)
{
    requisicao::evento made =
        requisicao::evento::from_data(payload, key_from(key), ambiente::homologacao, moment(), extra..., stack);
    made.assinar(taxpayer_pkcs12(), stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return element_text(made.get_xml());
}

}  // namespace

std::string cancellation(std::string const& key, std::string const& protocol, std::string const& substitute)
{
    core::result::stack stack;
    char const reason[] = "Preenchimento incorreto dos dados";
    unsigned long long const number = std::stoull(protocol);
    return signed_event(substitute.empty() ? requisicao::cancelamento::from_data(reason, number, stack)
                                           : requisicao::cancelamento::from_data(reason, number, 35, "velk-erp 4.0",
                                                                                 key_from(substitute), stack),
                        key, stack);
}

std::string correction(std::string const& key, unsigned sequence)
{
    core::result::stack stack;
    auto const letter = requisicao::carta_correcao::from_data("Endereco de entrega: Rua das Flores, 100", stack);
    return signed_event(letter, key, stack, sequence);
}

std::string epec(std::string const& key)
{
    core::result::stack stack;
    auto const recipient = requisicao::epec_nfe::destinatario::from_data(
        erp::estado::rj, requisicao::epec_nfe::destinatario::cnpj{"11222333000181"}, "",
        {core::decimal(150000, -2), core::decimal(2700, -1), core::decimal(0, 0)}, stack);
    return signed_event(requisicao::epec_nfe::from_data(erp::estado::sp, moment(), 1, "111222333444", recipient, stack),
                        key, stack);
}

std::string manifestation(std::string const& key, std::string const& type)
{
    static std::map<std::string, manifestacao> const types = {
        {"210200", manifestacao::confirmacao_operacao},
        {"210210", manifestacao::ciencia_operacao},
        {"210220", manifestacao::desconhecimento_operacao},
        {"210240", manifestacao::operacao_nao_realizada},
    };
    core::result::stack stack;
    return signed_event(requisicao::manifestacao_destinatario::from_data(
                            types.at(type), "Mercadoria devolvida pelo transportador", stack),
                        key, stack);
}

std::string event_batch(std::vector<std::string> const& events)
{
    std::string text = "<envEvento versao=\"1.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><idLote>1</idLote>";
    for (std::string const& event : events) {
        text += event;
    }
    return text + "</envEvento>";
}

std::string event_changed(std::string const& event, std::string const& from, std::string const& to)
{
    std::string text = replaced(event, from, to);
    std::size_t const signature = text.find("<Signature");
    text.erase(signature, text.find("</Signature>") + 12 - signature);
    std::size_t const id = text.find("Id=\"") + 4;
    return signed_element(parse_element(text), text.substr(id, text.find('"', id) - id));
}

}  // namespace velk::test

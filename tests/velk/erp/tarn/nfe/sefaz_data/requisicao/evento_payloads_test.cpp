#include "evento_teste.hpp"

#include <support/xml_text.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/cancelamento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/carta_correcao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/epec_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/manifestacao_destinatario.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::tarn::nfe::sefaz_data::requisicao;
using velk::core::result::stack;
using arguments = std::vector<std::pair<std::string, std::string>>;
using manifestacao = manifestacao_destinatario::tipo_manifestacao;
using destinatario = epec_nfe::destinatario;

std::string det_evento(std::string const& children)
{
    return "<detEvento versao=\"1.00\">" + children + "</detEvento>";
}

std::string const substitution_children =
    "<descEvento>Cancelamento por substituicao</descEvento><cOrgaoAutor>35</cOrgaoAutor><tpAutor>1</tpAutor>"
    "<verAplic>pdv 2.1</verAplic><nProt>135240000000017</nProt><xJust>Venda registrada em contingencia</xJust>"
    "<chNFeRef>" + std::string(velk::test::chave_nfce_offline) + "</chNFeRef>";

TEST(cancelamento, both_kinds_are_written_and_read_back)
{
    stack s;
    auto const ordinary = cancelamento::from_data("Desistencia do comprador", 135150001686732, s);
    auto const substitute = velk::test::chave_de_texto(velk::test::chave_nfce_offline);
    auto const substitution =
        cancelamento::from_data("Venda registrada em contingencia", 135240000000017, 35, "pdv 2.1", substitute, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::element_text(ordinary.get_xml()),
              det_evento("<descEvento>Cancelamento</descEvento><nProt>135150001686732</nProt>"
                         "<xJust>Desistencia do comprador</xJust>"));
    EXPECT_EQ(velk::test::element_text(substitution.get_xml()), det_evento(substitution_children));
    EXPECT_EQ(ordinary.get_tipo_cancelamento(), tipo_cancelamento::normal);
    EXPECT_FALSE(ordinary.get_chave_acesso_substituta().has_value());
    EXPECT_EQ(substitution.get_tipo_cancelamento(), tipo_cancelamento::substituicao);

    auto const read = cancelamento::from_xml(velk::test::parse_element(det_evento(substitution_children)),
                                             tipo_cancelamento::substituicao, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(read.get_protocolo_autorizacao(), 135240000000017u);
    EXPECT_EQ(read.get_justificativa(), "Venda registrada em contingencia");
    EXPECT_EQ(read.get_codigo_orgao_autor().value(), 35);
    EXPECT_EQ(read.get_versao_aplicativo().value(), "pdv 2.1");
    EXPECT_EQ(read.get_chave_acesso_substituta().value().get_numero_nfe(), 143u);

    // The kind comes from the caller: read as ordinary, only nProt and xJust.
    auto const as_ordinary = cancelamento::from_xml(velk::test::parse_element(det_evento(substitution_children)),
                                                    tipo_cancelamento::normal, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(as_ordinary.get_protocolo_autorizacao(), 135240000000017u);
    EXPECT_FALSE(as_ordinary.get_codigo_orgao_autor().has_value());
    EXPECT_FALSE(as_ordinary.get_chave_acesso_substituta().has_value());
    EXPECT_EQ(velk::test::element_text(as_ordinary.get_xml()), det_evento(substitution_children))
        << "the element is kept whole";
}

struct refusal {
    std::string xml;
    int code;
    arguments expected;
};

void expect_refusal(refusal const& each, stack const& s, velk::xml::element const& left)
{
    SCOPED_TRACE(each.xml);
    ASSERT_TRUE(s.has_failed());
    EXPECT_EQ(s.get_category(), velk::erp::tarn::nfe::sefaz_data::result_category::instance());
    EXPECT_EQ(s.get_value(), each.code) << s.to_string();
    EXPECT_EQ(s.top().get_arguments(), each.expected);
    EXPECT_EQ(s.size(), each.code == 2 ? 2u : 1u) << "a bad value over the converter's failure";
    EXPECT_EQ(left.get_name(), "") << "a default object";
}

TEST(cancelamento, what_from_xml_refuses)
{
    auto const without = [](std::string const& tag) {
        std::string children = substitution_children;
        std::size_t const begin = children.find("<" + tag + ">");
        return det_evento(children.erase(begin, children.find("</" + tag + ">") + tag.size() + 3 - begin));
    };
    refusal const rows[] = {
        {"<evento/>", 1, {{"element-name", "detEvento"}}},
        {without("tpAutor"), 1, {{"element-name", "detEvento/tpAutor"}}},
        {without("nProt"), 1, {{"element-name", "detEvento/nProt"}}},
        {without("xJust"), 1, {{"element-name", "detEvento/xJust"}}},
        {det_evento("<cOrgaoAutor>SP</cOrgaoAutor><tpAutor/><verAplic/><chNFeRef/>"), 2,
         {{"element-name", "detEvento/cOrgaoAutor"}, {"element-value", "SP"}}},
        {det_evento("<cOrgaoAutor>35</cOrgaoAutor><tpAutor/><verAplic/><chNFeRef>123</chNFeRef>"), 2,
         {{"element-name", "detEvento/chNFeRef"}, {"element-value", "123"}}},
    };
    for (refusal const& each : rows) {
        stack s;
        auto const read =
            cancelamento::from_xml(velk::test::parse_element(each.xml), tipo_cancelamento::substituicao, s);
        expect_refusal(each, s, read.get_xml());
    }
    stack s;
    auto const without_substitute =
        cancelamento::from_xml(velk::test::parse_element(without("chNFeRef")), tipo_cancelamento::substituicao, s);
    EXPECT_FALSE(s.has_failed()) << "left to the service: " << s.to_string();
    EXPECT_FALSE(without_substitute.get_chave_acesso_substituta().has_value());
    cancelamento::from_xml(velk::test::parse_element(det_evento("<nProt>1.5</nProt><xJust/>")),
                           tipo_cancelamento::normal, s);
    EXPECT_EQ(s.top().get_arguments(), (arguments{{"element-name", "detEvento/nProt"}, {"element-value", "1.5"}}));
    s.reset();
    cancelamento::from_xml(velk::xml::document(), tipo_cancelamento::normal, s);
    EXPECT_EQ(s.get_value(), 5);
}

TEST(carta_correcao, writes_the_conditions_of_use_and_reads_the_correction)
{
    stack s;
    auto const empty = carta_correcao::from_data("", s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::child_element_names(empty.get_xml()),
              (std::vector<std::string>{"descEvento", "xCorrecao", "xCondUso"}));
    EXPECT_EQ(empty.get_xml().find_child("xCorrecao")->get_contents(), "");
    EXPECT_EQ(empty.get_xml().find_child("descEvento")->get_contents(), "Carta de Correcao");

    auto const read = carta_correcao::from_xml(
        velk::test::parse_element(det_evento("<descEvento>Carta de Correção</descEvento><xCorrecao>Peso bruto 12 kg"
                                             "</xCorrecao>")),
        s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(read.get_correcao(), "Peso bruto 12 kg");

    refusal const missing{det_evento("<descEvento>Carta de Correcao</descEvento>"), 1,
                          {{"element-name", "detEvento/xCorrecao"}}};
    auto const refused = carta_correcao::from_xml(velk::test::parse_element(missing.xml), s);
    expect_refusal(missing, s, refused.get_xml());
}

TEST(manifestacao_destinatario, justification_goes_out_only_where_the_type_takes_one)
{
    struct row {
        manifestacao tipo;
        char const* justificativa;
        std::string expected;
    } const rows[] = {
        {manifestacao::confirmacao_operacao, "", "<descEvento>Confirmacao da Operacao</descEvento>"},
        {manifestacao::ciencia_operacao, "Ciente da venda em 01/02", "<descEvento>Ciencia da Operacao</descEvento>"},
        {manifestacao::desconhecimento_operacao, "", "<descEvento>Desconhecimento da Operacao</descEvento>"},
        {manifestacao::desconhecimento_operacao, "Nenhum pedido com este fornecedor",
         "<descEvento>Desconhecimento da Operacao</descEvento><xJust>Nenhum pedido com este fornecedor</xJust>"},
        {manifestacao::operacao_nao_realizada, "Mercadoria recusada na entrega",
         "<descEvento>Operacao nao Realizada</descEvento><xJust>Mercadoria recusada na entrega</xJust>"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.expected);
        stack s;
        auto const made = manifestacao_destinatario::from_data(each.tipo, each.justificativa, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(velk::test::element_text(made.get_xml()), det_evento(each.expected));
        EXPECT_EQ(made.get_tipo_manifestacao(), each.tipo);
        EXPECT_FALSE(made.get_justificativa().has_value()) << "from_data does not keep it";

        auto const read = manifestacao_destinatario::from_xml(made.get_xml(), each.tipo, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(read.get_justificativa().has_value(), each.expected.find("xJust") != std::string::npos);
        EXPECT_EQ(velk::test::element_text(read.get_xml()), det_evento(each.expected));
    }
    stack s;
    auto const read = manifestacao_destinatario::from_xml(
        velk::test::parse_element(det_evento("<descEvento>Operacao nao Realizada</descEvento><xJust>Recusada</xJust>")),
        manifestacao::operacao_nao_realizada, s);
    EXPECT_EQ(read.get_justificativa().value(), "Recusada");
}

TEST(epec_nfe, writes_the_summary_and_reads_it_without_the_recipient)
{
    stack s;
    auto const dest = destinatario::from_data(velk::erp::estado::rj, destinatario::cpf{"12345678909"}, "",
                                              {velk::core::decimal(1999, -2), velk::core::decimal(0, 0),
                                               velk::core::decimal(12345, -3)},
                                              s);
    auto const made = epec_nfe::from_data(velk::erp::estado::sp, velk::test::momento_evento(), 0, "", dest, s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::element_text(made.get_xml()),
              det_evento("<descEvento>EPEC</descEvento><cOrgaoAutor>35</cOrgaoAutor><tpAutor>1</tpAutor>"
                         "<verAplic>4.0.0</verAplic><dhEmi>2024-02-01T14:07:05-03:00</dhEmi><tpNF>0</tpNF><IE></IE>"
                         "<dest><UF>RJ</UF><CPF>12345678909</CPF><vNF>19.99</vNF><vICMS>0.00</vICMS>"
                         "<vST>12.35</vST></dest>"));

    auto const read = epec_nfe::from_xml(made.get_xml(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(read.get_estado(), velk::erp::estado::sp);
    EXPECT_EQ(read.get_dh_emissao(), velk::test::momento_evento());
    EXPECT_EQ(read.get_ie(), "");
    EXPECT_EQ(read.get_destinatario().get_xml().get_name(), "") << "dest is not read";

    std::string const made_text = velk::test::element_text(made.get_xml());
    std::string const without_dest = made_text.substr(0, made_text.find("<dest>"));
    epec_nfe::from_xml(velk::test::parse_element(without_dest + "</detEvento>"), s);
    EXPECT_FALSE(s.has_failed()) << "no dest is no failure";

    stack failed;
    epec_nfe::from_data(static_cast<velk::erp::estado>(40), velk::test::momento_evento(), 1, "", dest, failed);
    ASSERT_EQ(failed.size(), 2u) << failed.to_string();
    EXPECT_EQ(failed.begin()->get_category(), velk::core::converter_result_category::instance());
    EXPECT_EQ(failed.top().get_arguments(), (arguments{{"request-name", "epec_nfe"}, {"field-name", "estado"}}));
}

TEST(epec_nfe_destinatario, identification_and_totals_read_back)
{
    struct row {
        std::string xml;
        std::size_t alternative;
        std::string documento;
    } const rows[] = {
        {"<dest><UF>SP</UF><CNPJ>11222333000181</CNPJ><CPF>12345678909</CPF><IE>123</IE><vNF>10</vNF></dest>", 1,
         "12345678909"},
        {"<dest><UF>35</UF><CPF>12345678909</CPF><CNPJ>11222333000181</CNPJ></dest>", 1, "12345678909"},
        {"<dest><UF>SP</UF><CNPJ>11222333000181</CNPJ></dest>", 0, "11222333000181"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.xml);
        stack s;
        auto const read = destinatario::from_xml(velk::test::parse_element(each.xml), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(read.get_estado(), velk::erp::estado::sp);
        ASSERT_EQ(read.get_identificacao().index(), each.alternative);
        std::string const documento =
            velk::core::visit([](auto const& id) { return id.valor; }, read.get_identificacao());
        EXPECT_EQ(documento, each.documento);
    }

    stack s;
    auto const full = destinatario::from_xml(
        velk::test::parse_element("<dest><UF>SP</UF><idEstrangeiro>AB12345</idEstrangeiro><IE>9</IE><vNF>10.50</vNF>"
                                  "<vICMS>1.89</vICMS><vST>0</vST></dest>"),
        s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(full.get_ie(), "9");
    EXPECT_EQ(full.get_totais().valor_nf, velk::core::decimal(1050, -2));
    EXPECT_EQ(full.get_totais().valor_icms, velk::core::decimal(189, -2));

    refusal const rows_refused[] = {
        {"<dest><CPF>1</CPF></dest>", 1, {{"element-name", "dest/UF"}}},
        {"<dest><UF>EX</UF><idEstrangeiro>AB12345</idEstrangeiro></dest>", 2,
         {{"element-name", "dest/UF"}, {"element-value", "EX"}}},
        {"<dest><UF>SP</UF><IE>1</IE></dest>", 1, {{"element-name", "dest/(CPF|CNPJ|idEstrangeiro)"}}},
        {"<dest><UF>SP</UF><CPF>1</CPF><vNF>10,50</vNF></dest>", 2,
         {{"element-name", "dest/vNF"}, {"element-value", "10,50"}}},
    };
    for (refusal const& each : rows_refused) {
        stack failed;
        auto const read = destinatario::from_xml(velk::test::parse_element(each.xml), failed);
        expect_refusal(each, failed, read.get_xml());
    }

    auto const made =
        destinatario::from_data(velk::erp::estado::sp, destinatario::id_estrangeiro{"AB12345"}, "ISENTO", {}, s);
    EXPECT_EQ(velk::test::element_text(made.get_xml()),
              "<dest><UF>SP</UF><idEstrangeiro>AB12345</idEstrangeiro><IE>ISENTO</IE>"
              "<vNF>0.00</vNF><vICMS>0.00</vICMS><vST>0.00</vST></dest>");
}

}  // namespace

// The answers of the authorities read into their objects: real answers kept
// from several states, then each refusal of the reading.
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta_gtin.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>

#include <support/files.hpp>
#include <support/report.hpp>
#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace {

namespace resposta = velk::erp::tarn::nfe::sefaz_data::resposta;
using velk::core::result::stack;
using velk::test::report_line;

template <class T>
std::string text(T const& value)
{
    stack ignored;
    return velk::core::make_string(value, ignored);
}

template <class T>
std::string text(velk::core::optional<T> const& value)
{
    return value ? text(*value) : "-";
}

// The values of each object in one line, in the order of its fields.
std::string values(resposta::protocolo_nfe const& p)
{
    std::string line = text(p.get_codigo_status()) + " " + p.get_motivo() + " | " + p.get_versao_aplicativo() + " " +
                       text(p.get_data_recebimento()) + " " + text(p.get_chave_acesso()) + " " +
                       text(p.get_numero_protocolo());
    if (auto const mensagem = p.get_mensagem_sefaz()) {
        line += " msg " + text(mensagem->get_codigo()) + " " + mensagem->get_mensagem();
    }
    return line;
}

std::string values(resposta::lote_autorizacao const& l)
{
    std::string line = text(l.get_codigo_status()) + " " + l.get_motivo() + " | " + l.get_versao_aplicativo() + " " +
                       text(l.get_data_recebimento()) + " recibo " + text(l.get_numero_recibo());
    for (auto const& protocolo : l.get_protocolos()) {
        line += " [" + values(protocolo) + "]";
    }
    return line;
}

std::string values(resposta::inutilizacao const& i)
{
    return text(i.get_codigo_status()) + " " + i.get_motivo() + " | " + text(i.get_versao()) + " " +
           text(velk::erp::tarn::get_codigo_ambiente(i.get_ambiente())) + " " +
           text(velk::erp::get_codigo_ibge(i.get_estado())) + " " + i.get_versao_aplicativo() + " " +
           text(i.get_ano()) + " " + text(i.get_cnpj()) + " " +
           (i.get_modelo() ? text(velk::erp::tarn::get_codigo_modelo(*i.get_modelo())) : "-") + " " +
           text(i.get_serie()) + " " + text(i.get_numero_inicial()) + "-" + text(i.get_numero_final()) + " " +
           text(i.get_data_recebimento()) + " " + text(i.get_protocolo());
}

std::string values(resposta::consulta const& c)
{
    return text(c.get_codigo_status()) + " " + c.get_motivo() + " | '" + c.get_versao_aplicativo() + "' " +
           text(c.get_data_recebimento()) + " " + text(c.get_chave_acesso()) + " " +
           (c.get_protocolo_nfe() ? "[" + values(*c.get_protocolo_nfe()) + "]" : "-");
}

std::string values(resposta::consulta_gtin const& g)
{
    std::string line = text(g.get_codigo_status()) + " " + g.get_motivo() + " | " + g.get_versao_aplicativo() + " " +
                       text(g.get_data_recebimento()) + " " + g.get_gtin().value_or("-") + " " +
                       text(g.get_tipo_gtin()) + " " + g.get_desc_produto().value_or("-") + " " + text(g.get_ncm()) +
                       " cest";
    for (unsigned int cest : g.get_cest()) {
        line += " " + text(cest);
    }
    return line;
}

// Reads the element with the class's from_xml; its values, or the report.
template <class Resposta>
std::string read(velk::xml::element const& root)
{
    stack s;
    Resposta const lido = Resposta::from_xml(root, s);
    return s.has_failed() ? report_line(s) : values(lido);
}

struct real_answer {
    char const* file;       // under samples/
    char const* element;    // what is read, found in the file
    std::function<std::string(velk::xml::element const&)> reader;
    std::string expected;
};

TEST(respostas, real_answers_read_into_their_objects)
{
    std::string const sp_protocol = "100 Autorizado o uso da NF-e | SP_NFE_PL_008i2 2017-03-16T15:50:02-03:00 "
                                    "35170358716523000119550010000000301000000300 135170001136476";
    real_answer const answers[] = {
        {"soap/exemplo_retorno_sucesso_envia_lote.xml", "retEnviNFe", read<resposta::lote_autorizacao>,
         "104 Lote processado | RSnfce202110201401 2021-11-11T19:02:28-03:00 recibo - [100 Autorizado o uso da NF-e | "
         "RSnfce202110201401 2021-11-11T19:02:28-03:00 43211105730928000145650010000002401717268120 "
         "143210000624926]"},
        {"messages/retEnviNFe.xml", "retEnviNFe", read<resposta::lote_autorizacao>,
         "104 Lote processado | RSnfce202111190951 2022-01-06T17:07:34-03:00 recibo - [100 Autorizado o uso da NF-e | "
         "RSnfce202111190951 2022-01-06T17:07:34-03:00 43211105730928000145650010000002401717268120 "
         "143220000009921]"},
        // The receipt that a receipt query echoes stands outside infRec, and
        // is not read.
        {"soap/2017reconsrec.xml", "retConsReciNFe", read<resposta::lote_autorizacao>,
         "104 Lote processado | SP_NFE_PL_008i2 2017-03-16T17:32:47-03:00 recibo - [" + sp_protocol + "]"},
        {"messages/2017protocoled.xml", "protNFe", read<resposta::protocolo_nfe>, sp_protocol},
        {"messages/nfe_layout4_com_prot.xml", "protNFe", read<resposta::protocolo_nfe>,
         "100 Autorizado o uso da NF-e | RS201809141107 2018-09-25T16:21:05-03:00 "
         "43180906929383000163550010000000261000010301 143180006932433"},
        {"messages/42220575277525000178550030000292481295366801-procNFe.xml", "protNFe",
         read<resposta::protocolo_nfe>,
         "100 Autorizado o uso da NF-e | SVRS202204131008 2022-05-27T13:53:15-03:00 "
         "42220575277525000178550030000292481295366801 342220106391922"},
        // An older answer writes dhRecbto without offset.
        {"soap/res_inut.xml", "retInutNFe", read<resposta::inutilizacao>,
         "102 Inutilização de número homologado | 3.10 2 35 SP_NFE_PL_006q 17 58716523000119 55 2 234-235 "
         "2013-12-01T15:01:03+00:00 135130006498891"},
        {"soap/response_inut_cnpj.xml", "retInutNFe", read<resposta::inutilizacao>,
         "102 Inutilização de número homologado | 4.00 2 52 GO4.0 25 0 55 3 53-53 2025-02-10T14:31:01-03:00 "
         "152250025831513"},
    };
    for (real_answer const& each : answers) {
        SCOPED_TRACE(each.file);
        velk::xml::document const document =
            velk::test::parse_or_fail(velk::test::read_text(velk::test::sample(each.file)));
        velk::xml::element const* root = velk::test::first_element_named(*document.get_root_element(), each.element);
        ASSERT_NE(root, nullptr);
        EXPECT_EQ(each.reader(*root), each.expected);
    }
}

// Answers as the layouts' schemas shape them, each changed in one place.
struct changed_answer {
    char const* name;
    std::string xml;
    std::string expected;  // the values read, or the report
};

void check(std::function<std::string(velk::xml::element const&)> const& reader,
           std::vector<changed_answer> const& rows)
{
    for (changed_answer const& each : rows) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(reader(velk::test::parse_element(each.xml)), each.expected);
    }
}

constexpr char key[] = "35240527164983000158650010000482131619382745";

std::string prot(std::string const& versao, std::string const& inside)
{
    return "<protNFe versao=\"" + versao + "\"><infProt><tpAmb>2</tpAmb><verAplic>SP_NFE_PL009_V4</verAplic><chNFe>" +
           key + "</chNFe><dhRecbto>2024-05-14T18:43:02-03:00</dhRecbto>" + inside + "</infProt></protNFe>";
}

TEST(respostas, a_protocol_with_its_message_and_its_refusals)
{
    std::string const authorized = "<nProt>135240001234567</nProt><cStat>100</cStat>"
                                   "<xMotivo>Autorizado o uso da NF-e</xMotivo>";
    std::string const base = std::string("100 Autorizado o uso da NF-e | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 ") +
                             key + " 135240001234567";
    check(read<resposta::protocolo_nfe>,
          {
              {"authorized", prot("4.00", authorized), base},
              {"rejected, without protocol number",
               prot("4.00", "<cStat>204</cStat><xMotivo>Rejeicao: Duplicidade de NF-e</xMotivo>"),
               std::string("204 Rejeicao: Duplicidade de NF-e | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 ") + key +
                   " -"},
              {"message with its code", prot("4.00", authorized + "<cMsg>12</cMsg><xMsg>Emita com cuidado</xMsg>"),
               base + " msg 12 Emita com cuidado"},
              {"message without code", prot("4.00", authorized + "<xMsg>Aviso</xMsg>"), base + " msg - Aviso"},
              {"code without message", prot("4.00", authorized + "<cMsg>12</cMsg>"),
               "erp-tarn-sefaz-data 1 element-name=protNFe/infProt/xMsg"},
              {"code that is no number", prot("4.00", authorized + "<cMsg>x</cMsg><xMsg>Aviso</xMsg>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=protNFe/infProt/cMsg element-value=x"},
              {"layout 2.00 is not read", prot("2.00", authorized),
               "0  |   12000000000000000000550000000000001000000000 -"},
              {"no version", "<protNFe><infProt/></protNFe>", "erp-tarn-sefaz-data 4 attribute-name=protNFe/versao"},
              {"unknown version", prot("9.99", authorized), "core-converter 2"},
              {"protocol number that is no number",
               prot("4.00", "<nProt>A1</nProt><cStat>100</cStat><xMotivo>x</xMotivo>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=protNFe/infProt/nProt element-value=A1"},
          });
}

TEST(respostas, batch_answers_of_both_kinds_and_their_refusals)
{
    std::string const head = "<tpAmb>2</tpAmb><verAplic>SP_NFE_PL009_V4</verAplic>";
    auto const batch = [&head](std::string const& root, std::string const& inside) {
        return "<" + root + " versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\">" + head + inside + "</" +
               root + ">";
    };
    std::string const received = "<cStat>103</cStat><xMotivo>Lote recebido com sucesso</xMotivo><cUF>35</cUF>"
                                 "<dhRecbto>2024-05-14T18:43:02-03:00</dhRecbto>";
    std::string const processed = "<cStat>104</cStat><xMotivo>Lote processado</xMotivo><cUF>35</cUF>"
                                  "<dhRecbto>2024-05-14T18:43:02-03:00</dhRecbto>";
    std::string const protocol = prot("4.00", "<nProt>135240001234567</nProt><cStat>100</cStat><xMotivo>ok</xMotivo>");
    std::string const p = std::string("[100 ok | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 ") + key +
                          " 135240001234567]";
    check(read<resposta::lote_autorizacao>,
          {
              {"asynchronous: the receipt",
               batch("retEnviNFe", received + "<infRec><nRec>351000000012345</nRec><tMed>1</tMed></infRec>"),
               "103 Lote recebido com sucesso | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 recibo 351000000012345"},
              {"neither receipt nor protocol", batch("retEnviNFe", processed),
               "104 Lote processado | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 recibo -"},
              {"two protocols", batch("retConsReciNFe", processed + protocol + protocol),
               "104 Lote processado | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 recibo - " + p + " " + p},
              {"another root", batch("retConsSitNFe", processed), "erp-tarn-sefaz-data 1 element-name=retEnviNFe"},
              {"no time of receipt",
               batch("retConsReciNFe", "<cStat>105</cStat><xMotivo>Lote em processamento</xMotivo>"),
               "erp-tarn-sefaz-data 1 element-name=retConsReciNFe/dhRecbto"},
              {"receipt that is no number", batch("retEnviNFe", received + "<infRec><nRec>35A</nRec></infRec>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=retEnviNFeinfRec/nRec element-value=35A"},
              {"a protocol that does not read", batch("retEnviNFe", processed + protocol + "<protNFe/>"),
               "erp-tarn-sefaz-data 4 attribute-name=protNFe/versao"},
          });

    // A protocol that does not read ends the list: the element's form keeps
    // the ones before it, the document's form gives nothing.
    velk::xml::element const partly =
        velk::test::parse_element(batch("retEnviNFe", processed + protocol + "<protNFe/>"));
    stack s;
    EXPECT_EQ(resposta::lote_autorizacao::from_xml(partly, s).get_protocolos().size(), 1u);
    EXPECT_EQ(resposta::lote_autorizacao::from_xml(velk::test::document_of(partly), s).get_codigo_status(), 0u);
    EXPECT_EQ(resposta::lote_autorizacao::from_xml(velk::xml::document(), s).get_xml().get_name(), "");
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 5");
}

TEST(respostas, query_by_key_answers_and_their_refusals)
{
    auto const answer = [](std::string const& inside) {
        return "<retConsSitNFe versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\"><tpAmb>2</tpAmb>"
               "<verAplic>SP_NFE_PL009_V4</verAplic>" +
               inside + "</retConsSitNFe>";
    };
    std::string const found = std::string("<cStat>100</cStat><xMotivo>Autorizado o uso da NF-e</xMotivo><cUF>35</cUF>"
                                          "<dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto><chNFe>") +
                              key + "</chNFe>";
    std::string const protocol = prot("4.00", "<nProt>135240001234567</nProt><cStat>100</cStat><xMotivo>ok</xMotivo>");
    check(read<resposta::consulta>,
          {
              {"authorized, with its protocol; verAplic is never read", answer(found + protocol),
               std::string("100 Autorizado o uso da NF-e | '' 2024-05-15T09:00:00-03:00 ") + key +
                   " [100 ok | SP_NFE_PL009_V4 2024-05-14T18:43:02-03:00 " + key + " 135240001234567]"},
              {"unknown to the authority",
               answer("<cStat>217</cStat><xMotivo>Rejeicao: NF-e nao consta na base de dados da SEFAZ</xMotivo>"
                      "<cUF>35</cUF><dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto>"),
               "217 Rejeicao: NF-e nao consta na base de dados da SEFAZ | '' 2024-05-15T09:00:00-03:00 - -"},
              {"another root", "<retConsReciNFe/>", "erp-tarn-sefaz-data 1 element-name=retConsSitNFe"},
              {"key of 43 digits",
               answer("<cStat>217</cStat><xMotivo>x</xMotivo><dhRecbto>2024-05-15T09:00:00-03:00</dhRecbto><chNFe>" +
                      std::string(key).substr(1) + "</chNFe>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=retConsSitNFe/chNFe element-value=" +
                   std::string(key).substr(1)},
              {"protocol without status", answer(found + prot("4.00", "<xMotivo>?</xMotivo>")),
               "erp-tarn-sefaz-data 1 element-name=protNFe/infProt/cStat"},
          });
}

TEST(respostas, catalogue_answers_and_their_refusals)
{
    std::string const answer = "<retConsGTIN versao=\"1.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\">"
                               "<verAplic>SVRS202401</verAplic><cStat>9490</cStat><xMotivo>Consulta realizada com "
                               "sucesso</xMotivo><dhResp>2024-05-15T09:00:00-03:00</dhResp><GTIN>7894567002217</GTIN>"
                               "<tpGTIN>13</tpGTIN><xProd>REFRIGERANTE COLA PET 2L</xProd><NCM>22021000</NCM>"
                               "<CEST>0301100</CEST></retConsGTIN>";
    std::string const wrapped = "<nfeResultMsg xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/ccgConsGtin\">";
    check(read<resposta::consulta_gtin>,
          {
              {"found; a CEST inside retConsGTIN is not collected", wrapped + answer + "</nfeResultMsg>",
               "9490 Consulta realizada com sucesso | SVRS202401 2024-05-15T09:00:00-03:00 7894567002217 13 "
               "REFRIGERANTE COLA PET 2L 22021000 cest"},
              {"CEST beside retConsGTIN is",
               wrapped + answer + "<CEST>0301100</CEST><CEST>0301200</CEST></nfeResultMsg>",
               "9490 Consulta realizada com sucesso | SVRS202401 2024-05-15T09:00:00-03:00 7894567002217 13 "
               "REFRIGERANTE COLA PET 2L 22021000 cest 301100 301200"},
              {"not found",
               wrapped + "<retConsGTIN versao=\"1.00\"><verAplic>SVRS202401</verAplic><cStat>9494</cStat>"
                         "<xMotivo>GTIN nao encontrado</xMotivo><dhResp>2024-05-15T09:00:00-03:00</dhResp>"
                         "</retConsGTIN></nfeResultMsg>",
               "9494 GTIN nao encontrado | SVRS202401 2024-05-15T09:00:00-03:00 - - - - cest"},
              {"another root", answer, "erp-tarn-sefaz-data 1 element-name=nfeResultMsg"},
              {"first child of another name", wrapped + "<retConsSitNFe/>" + answer + "</nfeResultMsg>",
               "erp-tarn-sefaz-data 1 element-name=nfeResultMsg/retConsGTIN"},
              {"first child no element", wrapped + " " + answer + "</nfeResultMsg>",
               "erp-tarn-sefaz-data 1 element-name=nfeResultMsg/retConsGTIN"},
              {"CEST that is no number", wrapped + answer + "<CEST>03011OO</CEST></nfeResultMsg>",
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=nfeResultMsg/retConsGTIN/CEST "
               "element-value=03011OO"},
          });

    // Another root leaves no tree; the frame's own keeps it.
    stack s;
    EXPECT_EQ(resposta::consulta_gtin::from_xml(velk::test::parse_element(answer), s).get_xml().get_name(), "");
    s.reset();
    EXPECT_EQ(resposta::consulta_gtin::from_xml(velk::test::parse_element(wrapped + "</nfeResultMsg>"), s)
                  .get_xml()
                  .get_name(),
              "nfeResultMsg");
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 1 element-name=nfeResultMsg/retConsGTIN");
}

TEST(respostas, disablement_answers_and_their_refusals)
{
    auto const answer = [](std::string const& versao, std::string const& inside) {
        return "<retInutNFe" + versao + " xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infInut>" + inside +
               "</infInut></retInutNFe>";
    };
    std::string const rejected = "<tpAmb>2</tpAmb><cStat>563</cStat><xMotivo>Rejeicao: Ja existe pedido de "
                                 "Inutilizacao com a mesma faixa de inutilizacao</xMotivo><cUF>35</cUF>";
    std::string const v4 = " versao=\"4.00\"";
    check(read<resposta::inutilizacao>,
          {
              {"a rejection echoes nothing", answer(v4, rejected),
               "563 Rejeicao: Ja existe pedido de Inutilizacao com a mesma faixa de inutilizacao | 4.00 2 35  - - - - "
               "--- - -"},
              {"layout 2.00 is read too", answer(" versao=\"2.00\"", rejected),
               "563 Rejeicao: Ja existe pedido de Inutilizacao com a mesma faixa de inutilizacao | 2.00 2 35  - - - - "
               "--- - -"},
              {"no version", answer("", rejected), "erp-tarn-sefaz-data 4 attribute-name=retInutNFe/versao"},
              {"no state", answer(v4, "<tpAmb>2</tpAmb><cStat>563</cStat><xMotivo>x</xMotivo>"),
               "erp-tarn-sefaz-data 1 element-name=retInutNFe/infInut/cUF"},
              {"no environment", answer(v4, "<cStat>563</cStat><xMotivo>x</xMotivo><cUF>35</cUF>"),
               "erp-tarn-sefaz-data 1 element-name=retInutNFe/infInut/tpAmb"},
              {"environment that is none", answer(v4, "<tpAmb>3</tpAmb><cStat>563</cStat><xMotivo>x</xMotivo>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=retInutNFe/infInut/tpAMb element-value=3"},
              {"year that is no number", answer(v4, rejected + "<ano>2A</ano>"),
               "core-converter 2 / erp-tarn-sefaz-data 2 element-name=infInut/ano element-value=2A"},
          });
}

}  // namespace

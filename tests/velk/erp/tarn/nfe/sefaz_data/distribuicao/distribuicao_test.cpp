#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/autorizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/distribuicao/inutilizacao.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/consulta.hpp>

#include "distribuicao_teste.hpp"

#include "../../documentos_teste.hpp"
#include "../requisicao/evento_teste.hpp"
#include "../resposta/evento_respostas_teste.hpp"

#include <support/files.hpp>
#include <support/report.hpp>
#include <support/schema.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::tarn::nfe::sefaz_data;
using velk::core::result::stack;
using velk::test::canonical_of;
using velk::test::child_element_names;
using velk::test::parse_element;
using velk::test::report_line;
using velk::test::saved_text;

constexpr char id_infnfe[] = "http://www.portalfiscal.inf.br/nfe:infNFe";
constexpr char id_infinut[] = "http://www.portalfiscal.inf.br/nfe:infInut";

std::vector<std::string> schema_problems(char const* xsd, std::string const& text)
{
    return velk::test::validate_against_schema(velk::test::schema_dir() / xsd, velk::core::byte_array(text));
}

bool verifies(std::string const& text, char const* id_element)
{
    auto const verified =
        velk::test::xmlsec_verify(text, id_element, velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
    return verified.success;
}

template <class T>
std::string text_of(T const& value)
{
    stack s;
    return velk::core::make_string(value, s);
}

// The signed request, archived, saved and read again as a stored file is:
// its signed element has the same canonical form, passes xmlsec1, and the
// archive its schema. Gives the saved archive.
std::string check_archive(velk::xml::element const& requisicao, velk::xml::element const& archive,
                          char const* signed_name, char const* id_element, std::vector<char const*> const& schemas)
{
    std::string const text = saved_text(archive);
    for (char const* xsd : schemas) {
        EXPECT_EQ(schema_problems(xsd, text), std::vector<std::string>()) << xsd;
    }
    EXPECT_EQ(canonical_of(parse_element(text), signed_name), canonical_of(requisicao, signed_name));
    verifies(text, id_element);
    return text;
}

TEST(distribuicao_autorizacao, generated_documents_archive_unchanged_and_read_back)
{
    for (auto criar : {velk::test::nota_nfce_simples, velk::test::nota_nfe_completa}) {
        auto const documento = velk::test::documento_assinado(criar());
        std::string const chave = text_of(documento.get_chave_acesso());
        stack s;
        auto const protocolo = resposta::protocolo_nfe::from_xml(
            parse_element(velk::test::prot_nfe(chave, documento.get_digest_value())), s);
        auto const archive = distribuicao::autorizacao::from_data(documento, protocolo, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        velk::xml::element const tree = archive.get_xml();
        EXPECT_EQ(child_element_names(tree), (std::vector<std::string>{"NFe", "protNFe"}));
        EXPECT_EQ(tree.find_attribute("", "versao")->get_value(), "4.00");
        std::string const text = check_archive(documento.get_xml(), tree, "infNFe", id_infnfe, {"procNFe_v4.00.xsd"});

        auto const relido = distribuicao::autorizacao::from_xml(parse_element(text), s);
        EXPECT_EQ(text_of(relido.get_requisicao(s).get_chave_acesso()), chave);
        EXPECT_EQ(relido.get_resposta(s).get_numero_protocolo(), 135240000654321ull);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(saved_text(relido.get_xml()), text) << "read and made again, the archive is the same";
    }
}

TEST(distribuicao_autorizacao, samples_read_back_with_their_protocol)
{
    struct sample {
        char const* file;
        char const* versao;
        char const* chave;
        unsigned long long protocolo;
        bool assinado;
    };
    for (sample const& c : std::vector<sample>{
             {"messages/2017protocoled.xml", "3.10", "35170358716523000119550010000000301000000300",
              135170001136476, true},
             {"messages/nfe_layout4_com_prot.xml", "4.00", "43180906929383000163550010000000261000010301",
              143180006932433, true},
             {"messages/42220575277525000178550030000292481295366801-procNFe.xml", "4.00",
              "42220575277525000178550030000292481295366801", 342220106391922, false},
         }) {
        SCOPED_TRACE(c.file);
        velk::xml::element const stored = parse_element(velk::test::read_text(velk::test::sample(c.file)));
        stack s;
        auto const archive = distribuicao::autorizacao::from_xml(stored, s);
        auto const documento = archive.get_requisicao(s);
        auto const protocolo = archive.get_resposta(s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(text_of(protocolo.get_chave_acesso()), c.chave);
        EXPECT_EQ(text_of(documento.get_chave_acesso()), c.chave);
        EXPECT_EQ(protocolo.get_numero_protocolo(), c.protocolo);
        EXPECT_EQ(protocolo.get_codigo_status(), 100u);
        EXPECT_EQ(archive.get_xml().find_attribute("", "versao")->get_value(), c.versao);
        EXPECT_EQ(canonical_of(archive.get_xml(), "infNFe"), canonical_of(stored, "infNFe"));
        EXPECT_EQ(canonical_of(archive.get_xml(), "protNFe"), canonical_of(stored, "protNFe"));
        if (c.assinado) {
            EXPECT_EQ(documento.get_digest_value(),
                      velk::test::first_element_named(stored, "digVal")->get_contents());
        }
    }
}

// Nothing relates the protocol to the document: the caller pairs what belongs
// together, and a rejection or another note's protocol pairs as well.
TEST(distribuicao_autorizacao, pairs_without_judging_the_protocol)
{
    auto const documento = velk::test::documento_assinado(velk::test::nota_nfce_simples());
    std::string const chave = text_of(documento.get_chave_acesso());
    std::string const outra_chave = "35150300822602000124550010009923461099234656";
    for (std::string const& prot : {velk::test::prot_nfe(outra_chave, documento.get_digest_value()),
                                    velk::test::prot_nfe(chave, "AAAAAAAAAAAAAAAAAAAAAAAAAAA="),
                                    velk::test::prot_nfe(chave, documento.get_digest_value(), "539",
                                                         "Rejeicao: Duplicidade de NF-e com diferenca na Chave")}) {
        stack s;
        auto const archive = distribuicao::autorizacao::from_xml(documento.get_xml(), parse_element(prot), s);
        EXPECT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(child_element_names(archive.get_xml()), (std::vector<std::string>{"NFe", "protNFe"}));
    }

    // A stored archive with the protocol first is made again in its order.
    std::string const prot = velk::test::prot_nfe(chave, documento.get_digest_value());
    std::string const nfe = saved_text(documento.get_xml());
    std::string const invertido = "<nfeProc xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\">" + prot +
                                  nfe.substr(nfe.find('\n') + 1) + "</nfeProc>";
    stack s;
    auto const archive = distribuicao::autorizacao::from_xml(parse_element(invertido), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(child_element_names(archive.get_xml()), (std::vector<std::string>{"NFe", "protNFe"}));
}

TEST(distribuicao_evento, each_kind_archives_unchanged_and_reads_back)
{
    // The archive schema of each kind beside the common one.
    std::vector<char const*> const own_schema = {
        "procEventoCancNFe_v1.00.xsd", "procEventoCancSubst_v1.00.xsd", "procCCeNFe_v1.00.xsd",
        "procEPEC_v1.00.xsd",          "procConfRecebtoNFe_v1.00.xsd",  "procConfRecebtoNFe_v1.00.xsd",
        "procConfRecebtoNFe_v1.00.xsd", "procConfRecebtoNFe_v1.00.xsd"};
    auto const exemplos = velk::test::eventos_de_exemplo();
    ASSERT_EQ(exemplos.size(), own_schema.size());
    for (std::size_t i = 0; i < exemplos.size(); ++i) {
        SCOPED_TRACE(exemplos[i].name);
        stack s;
        auto pedido = exemplos[i].make(s);
        pedido.assinar(velk::test::taxpayer_pkcs12(), s);
        velk::test::ret_evento_campos campos;
        campos.chave = text_of(pedido.get_chave_acesso());
        campos.tipo = text_of(pedido.get_tipo_evento());
        std::string retorno = velk::test::ret_evento(campos);
        if (campos.tipo == "110140") {  // the answer to an EPEC names the state that sent it
            retorno.insert(retorno.find("<dhRegEvento>"), "<cOrgaoAutor>35</cOrgaoAutor>");
        }
        auto const archive = distribuicao::evento::from_xml(pedido.get_xml(), parse_element(retorno), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(child_element_names(archive.get_xml()), (std::vector<std::string>{"evento", "retEvento"}));
        std::string const text = check_archive(pedido.get_xml(), archive.get_xml(), "infEvento",
                                               velk::test::id_infevento, {"procEventoNFe_v1.00.xsd", own_schema[i]});

        auto const relido = distribuicao::evento::from_xml(parse_element(text), s);
        EXPECT_EQ(relido.get_requisicao(s).get_tipo_evento(), pedido.get_tipo_evento());
        auto const resposta = relido.get_resposta(s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(velk::core::visit([](auto const& r) { return r.get_numero_protocolo(); }, resposta),
                  135240000123456ull);
        EXPECT_EQ(saved_text(relido.get_xml()), text);
    }
}

TEST(distribuicao_inutilizacao, archives_unchanged_and_keeps_a_stored_tree_as_it_came)
{
    stack s;
    auto pedido = requisicao::inutilizacao::from_data(velk::erp::tarn::nfe::versao::versao_4_00,
                                                      velk::erp::tarn::ambiente::homologacao,
                                                      "Numeracao pulada por falha do sistema emissor",
                                                      velk::erp::estado::sp, velk::erp::tarn::modelo::nfe, 24, 1, 10,
                                                      20, 191, s);
    pedido.assinar(velk::test::taxpayer_pkcs12(), s);
    std::string const retorno = velk::test::ret_inut_nfe(
        "<ano>24</ano><CNPJ>00000000000191</CNPJ><mod>55</mod><serie>1</serie><nNFIni>10</nNFIni>"
        "<nNFFin>20</nNFFin>");
    auto const archive = distribuicao::inutilizacao::from_xml(pedido.get_xml(), parse_element(retorno), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(child_element_names(archive.get_xml()), (std::vector<std::string>{"inutNFe", "retInutNFe"}));
    EXPECT_EQ(archive.get_resposta().get_protocolo(), 135240000777777ull);
    EXPECT_EQ(archive.get_requisicao().get_numero_final(), 20u);
    std::string const text =
        check_archive(pedido.get_xml(), archive.get_xml(), "infInut", id_infinut, {"procInutNFe_v4.00.xsd"});

    EXPECT_EQ(archive.get_xml().get_name(), "ProcInutNFe") << "the name of the schema";

    // A stored one of the lower-case name, with an attribute of its own,
    // comes back as it was given.
    std::string proprio = text.substr(0, text.find("versao=\"4.00\"")) + "dhArquivo=\"2024-02-02\" " +
                          text.substr(text.find("versao=\"4.00\""));
    proprio.replace(proprio.find("<ProcInutNFe"), 12, "<procInutNFe");
    proprio.replace(proprio.find("</ProcInutNFe"), 13, "</procInutNFe");
    auto const relido = distribuicao::inutilizacao::from_xml(parse_element(proprio), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(saved_text(relido.get_xml()), saved_text(parse_element(proprio)));
    EXPECT_EQ(relido.get_resposta().get_protocolo(), 135240000777777ull);
}

TEST(distribuicao_consulta, the_query_by_key_reads_the_events_it_lists)
{
    stack s;
    auto pedido = velk::test::eventos_de_exemplo()[0].make(s);
    pedido.assinar(velk::test::taxpayer_pkcs12(), s);
    auto const archive = distribuicao::evento::from_xml(pedido.get_xml(),
                                                        parse_element(velk::test::ret_evento({})), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    std::string const proc = saved_text(archive.get_xml());
    std::string const evento = proc.substr(proc.find('\n') + 1);
    auto const answer = [](std::string const& eventos) {
        return "<retConsSitNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"4.00\"><tpAmb>2</tpAmb>"
               "<verAplic>SP_NFE_PL009_V4</verAplic><cStat>101</cStat><xMotivo>Cancelamento de NF-e homologado"
               "</xMotivo><cUF>35</cUF><dhRecbto>2024-02-01T14:08:00-03:00</dhRecbto><chNFe>"
               "35150300822602000124550010009923461099234656</chNFe>" + eventos + "</retConsSitNFe>";
    };
    auto const consulta = resposta::consulta::from_xml(parse_element(answer(evento + evento)), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    ASSERT_EQ(consulta.get_eventos().size(), 2u);
    EXPECT_EQ(saved_text(consulta.get_eventos()[1].get_xml()), proc);

    resposta::consulta::from_xml(parse_element(answer(evento + "<procEventoNFe versao=\"1.00\"/>")), s);
    EXPECT_EQ(report_line(s), "erp-tarn-sefaz-data 1 element-name=procEventoNFe/evento");
}

TEST(distribuicao, what_the_readers_refuse)
{
    std::string const ns = " xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"1.00\"";
    std::string const ret = velk::test::ret_evento({});
    struct caso {
        char const* name;
        std::function<void(stack&)> run;
        char const* expected;
    };
    auto const autorizacao = [](std::string const& text) {
        return [text](stack& s) { distribuicao::autorizacao::from_xml(parse_element(text), s); };
    };
    auto const evento = [](std::string const& text) {
        return [text](stack& s) { distribuicao::evento::from_xml(parse_element(text), s); };
    };
    auto const inutilizacao = [](std::string const& text) {
        return [text](stack& s) { distribuicao::inutilizacao::from_xml(parse_element(text), s); };
    };
    std::string const prot = velk::test::prot_nfe("35150300822602000124550010009923461099234656", "AA==");
    for (caso const& c : std::vector<caso>{
             {"another root for nfeProc", autorizacao("<procNFe" + ns + "/>"), "erp-tarn-sefaz-data 1 element-name=nfeProc"},
             {"nfeProc without NFe", autorizacao("<nfeProc" + ns + ">" + prot + "</nfeProc>"),
              "erp-tarn-sefaz-data 1 element-name=nfeProc/NFe"},
             {"nfeProc without protNFe", autorizacao("<nfeProc" + ns + "><NFe/></nfeProc>"),
              "erp-tarn-sefaz-data 1 element-name=nfeProc/protNFe"},
             {"nfeProc with a document that does not read",
              autorizacao("<nfeProc" + ns + "><NFe/>" + prot + "</nfeProc>"),
              "erp-tarn-sefaz-data 1 element-name=NFe/infNFe"},
             {"the protocol of an empty nfeProc",
              [](stack& s) { distribuicao::autorizacao().get_resposta(s); },
              "erp-tarn-sefaz-data 1 element-name=nfeProc/NFe"},
             {"the document of an empty nfeProc",
              [](stack& s) { distribuicao::autorizacao().get_requisicao(s); },
              "erp-tarn-sefaz-data 1 element-name=nfeProc/NFe"},
             {"another root for procEventoNFe", evento("<evento" + ns + "/>"),
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe"},
             {"two events in the batch",
              evento("<procEventoNFe" + ns + "><envEvento><evento/><evento/></envEvento>" + ret + "</procEventoNFe>"),
              "erp-tarn-sefaz-data 11"},
             {"a batch without event",
              evento("<procEventoNFe" + ns + "><envEvento><idLote>1</idLote></envEvento>" + ret + "</procEventoNFe>"),
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe/evento"},
             {"no event", evento("<procEventoNFe" + ns + ">" + ret + "</procEventoNFe>"),
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe/evento"},
             {"no answer to the event", evento("<procEventoNFe" + ns + "><evento/></procEventoNFe>"),
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe/retEvento"},
             {"the one event of a batch is read",
              evento("<procEventoNFe" + ns + "><envEvento><evento/></envEvento>" + ret + "</procEventoNFe>"),
              "erp-tarn-sefaz-data 1 element-name=evento/infEvento/tpAmb"},
             {"the answer of an empty procEventoNFe",
              [](stack& s) { distribuicao::evento().get_resposta(s); },
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe/retEvento"},
             {"the event of an empty procEventoNFe",
              [](stack& s) { distribuicao::evento().get_requisicao(s); },
              "erp-tarn-sefaz-data 1 element-name=procEventoNFe/evento"},
             {"another root for procInutNFe", inutilizacao("<inutNFe" + ns + "/>"),
              "erp-tarn-sefaz-data 1 element-name=procInutNFe"},
             {"procInutNFe without inutNFe",
              inutilizacao("<procInutNFe" + ns + ">" + velk::test::ret_inut_nfe("") + "</procInutNFe>"),
              "erp-tarn-sefaz-data 1 element-name=procInutNFe/inutNFe"},
             {"procInutNFe without retInutNFe", inutilizacao("<procInutNFe" + ns + "><inutNFe/></procInutNFe>"),
              "erp-tarn-sefaz-data 1 element-name=procInutNFe/retInutNFe"},
         }) {
        stack s;
        c.run(s);
        EXPECT_EQ(report_line(s), c.expected) << c.name;
    }
}

}  // namespace

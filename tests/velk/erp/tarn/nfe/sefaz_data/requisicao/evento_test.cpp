#include "evento_teste.hpp"

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>
#include <velk/core/binary_encoder.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_evento.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/canonicalize.hpp>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace velk::erp::tarn::nfe::sefaz_data::requisicao;
using velk::core::result::stack;
using velk::erp::tarn::ambiente;
using velk::test::saved_text;
namespace sefaz_data = velk::erp::tarn::nfe::sefaz_data;

velk::xml::element const& child(velk::xml::element const& parent, char const* name)
{
    velk::xml::element const* found = parent.find_child(name);
    if (found == nullptr) {
        ADD_FAILURE() << "no " << name << " under " << parent.get_name();
        static velk::xml::element const none;
        return none;
    }
    return *found;
}

std::string infevento_tag(evento const& value, char const* tag)
{
    return child(child(value.get_xml(), "infEvento"), tag).get_contents();
}

// Canonical XML 1.0 of infEvento in its place, as the signature digests it:
// the element saved on its own declares the one namespace in scope there.
std::string canonical_infevento(velk::xml::element const& evento_element)
{
    stack s;
    std::string const canonical =
        velk::xml::canonicalize(velk::core::byte_array(saved_text(child(evento_element, "infEvento"))), {}, s)
            .to_string();
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return canonical;
}

std::string sha1_base64(std::string const& bytes)
{
    stack s;
    auto hash = velk::cryptography::cryptographic_hash::from_algorithm(
        velk::cryptography::cryptographic_hash::algorithm::sha1, s);
    hash.update(bytes);
    std::string const digest =
        velk::core::binary_encoder::encode(velk::core::binary_encoding::base64, hash.finish(s));
    EXPECT_FALSE(s.has_failed()) << s.to_string();
    return digest;
}

std::string digest_value(velk::xml::element const& evento_element)
{
    return child(child(child(child(evento_element, "Signature"), "SignedInfo"), "Reference"), "DigestValue")
        .get_contents();
}

void expect_code_9(stack const& s, char const* request_name, char const* field_name)
{
    ASSERT_EQ(s.size(), 2u) << s.to_string();
    EXPECT_EQ(s.begin()->get_category(), velk::core::converter_result_category::instance());
    EXPECT_EQ(s.get_category(), sefaz_data::result_category::instance());
    EXPECT_EQ(s.get_value(), 9);
    EXPECT_EQ(s.top().get_arguments(), (std::vector<std::pair<std::string, std::string>>{
                                           {"request-name", request_name}, {"field-name", field_name}}));
}

TEST(evento, each_kind_signed_in_a_batch_passes_its_schemas_and_xmlsec1)
{
    for (auto const& example : velk::test::eventos_de_exemplo()) {
        SCOPED_TRACE(example.name);
        stack s;
        evento signed_event = example.make(s);
        signed_event.assinar(velk::test::taxpayer_pkcs12(), s);
        lote_evento batch;
        batch.set_id_lote(202405311345419);
        batch.append(signed_event);
        velk::xml::element const envelope = batch.get_xml(s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();

        std::string const text = saved_text(envelope);
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / example.batch_schema,
                                                      velk::core::byte_array(text)),
                  std::vector<std::string>());
        EXPECT_EQ(velk::test::validate_against_schema(velk::test::schema_dir() / example.payload_schema,
                                                      child(child(signed_event.get_xml(), "infEvento"), "detEvento")),
                  std::vector<std::string>());
        auto const verified = velk::test::xmlsec_verify(text, velk::test::id_infevento,
                                                        velk::test::test_certificates::instance().ca_pem());
        EXPECT_TRUE(verified.success) << verified.output;
    }
}

// The signed events of other software: rebuilt from the values each holds,
// through from_xml and the payloads' from_data, they give the same canonical
// infEvento, and so the same DigestValue, but for one tag. The frame writes
// in CNPJ the issuer's CNPJ from the key, for every event; these samples
// carry there the CNPJ of their author's certificate, another company.
TEST(evento, signed_samples_of_other_software_give_the_same_digest_but_for_the_author_cnpj)
{
    struct row {
        char const* file;
        std::function<evento(evento const& read, stack&)> rebuild;
    } const rows[] = {
        {"exemplo_xml_sefazCancela.xml",
         [](evento const& read, stack& s) {
             auto const informacoes = read.get_informacoes_evento();
             auto const& payload = velk::core::get<cancelamento>(informacoes);
             return evento::from_data(
                 cancelamento::from_data(payload.get_justificativa(), payload.get_protocolo_autorizacao(), s),
                 read.get_chave_acesso(), read.get_ambiente(), read.get_data_hora_evento(), s);
         }},
        {"exemplo_xml_request_sefazCancelaPorSubstituicao.xml",
         [](evento const& read, stack& s) {
             auto const informacoes = read.get_informacoes_evento();
             auto const& payload = velk::core::get<cancelamento>(informacoes);
             return evento::from_data(
                 cancelamento::from_data(payload.get_justificativa(), payload.get_protocolo_autorizacao(),
                                         payload.get_codigo_orgao_autor().value(),
                                         payload.get_versao_aplicativo().value(),
                                         payload.get_chave_acesso_substituta().value(), s),
                 read.get_chave_acesso(), read.get_ambiente(), read.get_data_hora_evento(), s);
         }},
        {"exemplo_xml_request_sefazManifesta.xml",
         [](evento const& read, stack& s) {
             auto const informacoes = read.get_informacoes_evento();
             auto const& payload = velk::core::get<manifestacao_destinatario>(informacoes);
             return evento::from_data(manifestacao_destinatario::from_data(payload.get_tipo_manifestacao(), s),
                                      read.get_chave_acesso(), read.get_ambiente(), read.get_data_hora_evento(), s);
         }},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.file);
        velk::xml::element const envelope =
            velk::test::parse_element(velk::test::read_text(velk::test::sample(std::string("signed/") + each.file)));
        velk::xml::element const& sample = child(child(envelope, "envEvento"), "evento");
        std::string const sample_canonical = canonical_infevento(sample);
        ASSERT_EQ(sha1_base64(sample_canonical), digest_value(sample)) << "the sample is intact";

        stack s;
        evento const read = evento::from_xml(sample, s);
        evento rebuilt = each.rebuild(read, s);
        rebuilt.assinar(velk::test::taxpayer_pkcs12(), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        std::string const ours = canonical_infevento(rebuilt.get_xml());
        EXPECT_EQ(digest_value(rebuilt.get_xml()), sha1_base64(ours));

        std::string const author_cnpj = "<CNPJ>" + infevento_tag(read, "CNPJ") + "</CNPJ>";
        std::string const issuer_cnpj = "<CNPJ>" + read.get_chave_acesso().get_cnpj() + "</CNPJ>";
        EXPECT_NE(author_cnpj, issuer_cnpj);
        std::string with_author = ours;
        with_author.replace(ours.find(issuer_cnpj), issuer_cnpj.size(), author_cnpj);
        EXPECT_EQ(with_author, sample_canonical);
        EXPECT_EQ(sha1_base64(with_author), digest_value(sample));
    }
}

TEST(evento, sample_events_of_types_the_library_does_not_write_are_refused_when_read)
{
    for (char const* file : {"exemplo_xml_request_sefazAtorInteressado.xml", "exemplo_xml_request_sefazEPP.xml"}) {
        SCOPED_TRACE(file);
        velk::xml::element const envelope =
            velk::test::parse_element(velk::test::read_text(velk::test::sample(std::string("signed/") + file)));
        stack s;
        evento const read = evento::from_xml(child(child(envelope, "envEvento"), "evento"), s);
        ASSERT_EQ(s.size(), 2u) << s.to_string();
        EXPECT_EQ(s.get_value(), 2);
        EXPECT_EQ(*s.top().find_argument("element-name"), "evento/infEvento/tpEvento");
        EXPECT_EQ(read.get_xml().get_name(), "");
    }
}

TEST(evento, frame_of_each_payload)
{
    stack s;
    auto const key = velk::test::chave_de_texto(velk::test::chave_nfe_sp);
    auto const letter = [&](unsigned sequencia) {
        return evento::from_data(carta_correcao::from_data("Peso bruto: 12,5 kg em vez de 15 kg", s), key,
                                 ambiente::producao, velk::test::momento_evento(), sequencia, s);
    };
    auto const manifest = evento::from_data(
        manifestacao_destinatario::from_data(manifestacao_destinatario::tipo_manifestacao::operacao_nao_realizada,
                                             "Mercadoria nao foi entregue", s),
        key, ambiente::homologacao, velk::test::momento_evento(), s);
    auto const examples = velk::test::eventos_de_exemplo();
    struct row {
        char const* name;
        evento value;
        char const* orgao;
        char const* tipo;
        char const* sequencia;
    } const rows[] = {
        {"cancellation of a key of SP", examples[0].make(s), "35", "110111", "1"},
        {"cancellation by substitution", examples[1].make(s), "35", "110112", "1"},
        {"correction letter 12", letter(12), "35", "110110", "12"},
        {"correction letter 0", letter(0), "35", "110110", "0"},
        {"correction letter 99", letter(99), "35", "110110", "99"},
        {"EPEC", examples[3].make(s), "91", "110140", "1"},
        {"operation not performed", manifest, "91", "210240", "1"},
    };
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        velk::xml::element const tree = each.value.get_xml();
        std::string const sequencia = std::string(std::strlen(each.sequencia) == 1 ? "0" : "") + each.sequencia;
        EXPECT_EQ(child(tree, "infEvento").find_attribute("", "Id")->get_value(),
                  "ID" + std::string(each.tipo) + infevento_tag(each.value, "chNFe") + sequencia);
        EXPECT_EQ(infevento_tag(each.value, "cOrgao"), each.orgao);
        EXPECT_EQ(infevento_tag(each.value, "tpEvento"), each.tipo);
        EXPECT_EQ(infevento_tag(each.value, "nSeqEvento"), each.sequencia);
        EXPECT_EQ(infevento_tag(each.value, "CNPJ"), each.value.get_chave_acesso().get_cnpj()) << "the issuer's";
    }
    EXPECT_EQ(velk::test::element_text(rows[0].value.get_xml()),
              "<evento xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"1.00\">"
              "<infEvento Id=\"ID1101113515030082260200012455001000992346109923465601\"><cOrgao>35</cOrgao>"
              "<tpAmb>2</tpAmb><CNPJ>00822602000124</CNPJ><chNFe>35150300822602000124550010009923461099234656</chNFe>"
              "<dhEvento>2024-02-01T14:07:05-03:00</dhEvento><tpEvento>110111</tpEvento><nSeqEvento>1</nSeqEvento>"
              "<verEvento>1.00</verEvento><detEvento versao=\"1.00\"><descEvento>Cancelamento</descEvento>"
              "<nProt>135150001686732</nProt><xJust>Preenchimento incorreto dos dados</xJust></detEvento>"
              "</infEvento></evento>");
}

TEST(evento, values_without_text_leave_a_default_event)
{
    auto const key = velk::test::chave_de_texto(velk::test::chave_nfe_sp);
    struct row {
        char const* name;
        std::function<evento(stack&)> make;
        char const* field;
    } const rows[] = {
        {"sequence of three digits",
         [&](stack& s) {
             return evento::from_data(carta_correcao::from_data("Correcao do peso", s), key, ambiente::producao,
                                      velk::test::momento_evento(), 100, s);
         },
         "sequencia"},
        {"date that does not exist",
         [&](stack& s) {
             return evento::from_data(cancelamento::from_data("Desistencia do comprador", 1, s), key,
                                      ambiente::producao,
                                      velk::core::datetime(velk::core::date(31, 2, 2024), velk::core::time(), 0), s);
         },
         "dh_evento"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        stack s;
        evento const made = each.make(s);
        expect_code_9(s, "evento", each.field);
        EXPECT_EQ(made.get_xml().get_name(), "");
    }
}

TEST(evento, signing_twice_keeps_one_valid_signature_last)
{
    stack s;
    evento value = velk::test::eventos_de_exemplo()[2].make(s);
    value.assinar(velk::test::taxpayer_pkcs12(), s);
    value.assinar(velk::test::taxpayer_pkcs12(), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::child_element_names(value.get_xml()), (std::vector<std::string>{"infEvento", "Signature"}));
    velk::xml::element const tree = value.get_xml();
    velk::xml::element const& reference = child(child(child(tree, "Signature"), "SignedInfo"), "Reference");
    EXPECT_EQ(reference.find_attribute("", "URI")->get_value(),
              "#" + child(tree, "infEvento").find_attribute("", "Id")->get_value());
    auto const verified = velk::test::xmlsec_verify(saved_text(value.get_xml()), velk::test::id_infevento,
                                                    velk::test::test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
}

TEST(evento, an_event_read_with_a_sequence_of_three_digits_is_not_signed)
{
    stack s;
    std::string text = velk::test::element_text(velk::test::eventos_de_exemplo()[2].make(s).get_xml());
    text.replace(text.find("<nSeqEvento>2<"), 14, "<nSeqEvento>100<");
    evento value = evento::from_xml(velk::test::parse_element(text), s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    value.assinar(velk::test::taxpayer_pkcs12(), s);
    expect_code_9(s, "evento", "sequencia");
    EXPECT_EQ(velk::test::child_element_names(value.get_xml()), (std::vector<std::string>{"infEvento"}));
}

TEST(evento, read_back_gives_the_same_tree_and_the_payload_of_its_type)
{
    std::size_t const payload_index[] = {1, 1, 2, 3, 4, 4, 4, 4};
    auto const examples = velk::test::eventos_de_exemplo();
    for (std::size_t index = 0; index < examples.size(); ++index) {
        SCOPED_TRACE(examples[index].name);
        stack s;
        evento const made = examples[index].make(s);
        evento const read = evento::from_xml(velk::test::document_of(made.get_xml()), s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(velk::test::element_text(read.get_xml()), velk::test::element_text(made.get_xml()));
        EXPECT_EQ(read.get_informacoes_evento().index(), payload_index[index]);
        EXPECT_EQ(read.get_tipo_evento(), made.get_tipo_evento());
        EXPECT_EQ(read.get_sequencia(), made.get_sequencia());
        EXPECT_EQ(read.get_ambiente(), made.get_ambiente());
        EXPECT_EQ(read.get_data_hora_evento(), made.get_data_hora_evento());
    }
}

TEST(evento, what_from_xml_refuses)
{
    stack made_stack;
    std::string const good = velk::test::element_text(velk::test::eventos_de_exemplo()[0].make(made_stack).get_xml());
    auto const without = [&good](std::string const& tag) {
        std::string text = good;
        std::size_t begin = text.find("<" + tag + ">");
        if (begin == std::string::npos) {
            begin = text.find("<" + tag + " ");
        }
        std::size_t const end = text.find("</" + tag + ">") + tag.size() + 3;
        return text.erase(begin, end - begin);
    };
    auto const with = [&good](std::string const& from, std::string const& to) {
        std::string text = good;
        return text.replace(text.find(from), from.size(), to);
    };
    struct row {
        std::string text;
        int code;
        std::vector<std::pair<std::string, std::string>> arguments;
        bool over_converter;
    } const rows[] = {
        {"<outro>" + good.substr(good.find('>') + 1, good.rfind('<') - good.find('>') - 1) + "</outro>", 1,
         {{"element-name", "evento"}}, false},
        {without("chNFe"), 1, {{"element-name", "evento/infEvento/chNFe"}}, false},
        {with("<nSeqEvento>1<", "<nSeqEvento>um<"), 2,
         {{"element-name", "evento/infEvento/nSeqEvento"}, {"element-value", "um"}}, true},
        {with("<chNFe>35", "<chNFe>99"), 3,
         {{"attribute-name", "evento/infEvento/Id"},
          {"attribute-value", "99150300822602000124550010009923461099234656"}},
         true},
        {without("detEvento"), 1, {{"element-name", "evento/infEvento/detEvento"}}, false},
        {without("nProt"), 1, {{"element-name", "detEvento/nProt"}}, false},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.text);
        stack s;
        evento const read = evento::from_xml(velk::test::parse_element(each.text), s);
        ASSERT_EQ(s.size(), each.over_converter ? 2u : 1u) << s.to_string();
        EXPECT_EQ(s.get_category(), sefaz_data::result_category::instance());
        EXPECT_EQ(s.get_value(), each.code);
        EXPECT_EQ(s.top().get_arguments(), each.arguments);
        EXPECT_EQ(read.get_xml().get_name(), "");
    }

    stack s;
    evento::from_xml(velk::xml::document(), s);
    EXPECT_EQ(s.get_value(), 5);
}

TEST(lote_evento, envelope_of_the_events_in_order)
{
    stack s;
    auto const examples = velk::test::eventos_de_exemplo();
    lote_evento empty;
    EXPECT_EQ(velk::test::element_text(empty.get_xml(s)),
              "<envEvento xmlns=\"http://www.portalfiscal.inf.br/nfe\" versao=\"1.00\"><idLote>0</idLote></envEvento>");

    lote_evento batch;
    batch.set_id_lote(42);
    batch.append(examples[2].make(s));
    batch.append(examples[0].make(s));
    velk::xml::element const envelope = batch.get_xml(s);
    ASSERT_FALSE(s.has_failed()) << s.to_string();
    EXPECT_EQ(velk::test::child_element_names(envelope), (std::vector<std::string>{"idLote", "evento", "evento"}));
    EXPECT_EQ(batch.get_eventos().size(), 2u);
    EXPECT_EQ(batch.get_eventos()[0].get_tipo_evento(), velk::erp::tarn::nfe::detail::tipo_evento::carta_correcao);
    EXPECT_EQ(child(envelope, "idLote").get_contents(), "42");
}

}  // namespace

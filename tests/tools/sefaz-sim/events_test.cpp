// The event service of the simulator: events registered against the notes
// the authority authorized, each answer signed by it, and the rules that
// refuse an event, each in its retEvento or for the whole batch.
#include "authority_fixture.hpp"
#include "event_requests.hpp"

#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_evento.hpp>

#include <support/files.hpp>
#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>
#include <support/schema.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <functional>

namespace {

using namespace velk::test;
using velk::xml::element;

constexpr char id_infevento[] = "http://www.portalfiscal.inf.br/nfe:infEvento";
constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";

// An authorized note: its key and protocol number.
struct note {
    std::string key;
    std::string protocol;
};

note authorized(test_authority& authority, std::string const& document)
{
    sefaz_answer const answer = authority.ask(batch({document}, true));
    EXPECT_EQ(answer.at({"protNFe", "infProt", "cStat"}), "100") << answer.envelope;
    return {key_of(document), answer.at({"protNFe", "infProt", "nProt"})};
}

std::vector<element> children_named(element const& parent, std::string const& name)
{
    std::vector<element> found;
    for (velk::xml::node const& child : parent.get_node_range()) {
        if (child.as_element() != nullptr && child.as_element()->get_name() == name) {
            found.push_back(*child.as_element());
        }
    }
    return found;
}

std::string text_at(element const& from, std::initializer_list<char const*> path)
{
    element const* at = &from;
    for (char const* step : path) {
        at = at == nullptr ? nullptr : at->find_child(step);
    }
    return at == nullptr ? std::string() : at->get_contents();
}

std::string id_of(element const& ret_evento)
{
    element const* const inf = ret_evento.find_child("infEvento");
    auto const* const id = inf == nullptr ? nullptr : inf->find_attribute("", "Id");
    return id == nullptr ? std::string() : id->get_value();
}

xmlsec_result authority_signature(element const& ret_evento)
{
    return xmlsec_verify(element_text(ret_evento), id_infevento, sefaz_simulator::pki().authority().certificate_pem());
}

// "cStat: cStat of each retEvento", and what every retEvento must hold: the
// event's key and type, and a protocol number, Id and signature exactly when
// it was registered.
std::string statuses(sefaz_answer const& answer)
{
    std::string line = std::to_string(answer.status()) + ":";
    for (element const& each : children_named(answer.message, "retEvento")) {
        std::string const status = text_at(each, {"infEvento", "cStat"});
        line += " " + status;
        bool const registered = status == "135" || status == "136";
        EXPECT_EQ(text_at(each, {"infEvento", "nProt"}).size(), registered ? 15u : 0u) << status;
        EXPECT_EQ(id_of(each), registered ? "ID" + text_at(each, {"infEvento", "nProt"}) : "") << status;
        EXPECT_EQ(each.find_child("Signature") != nullptr, registered) << status;
        EXPECT_EQ(text_at(each, {"infEvento", "chNFe"}).size(), 44u) << status;
        EXPECT_EQ(text_at(each, {"infEvento", "tpEvento"}).size(), 6u) << status;
    }
    return line;
}

TEST(events, registered_against_the_note_and_told_by_the_query_by_key)
{
    test_authority authority;
    note const sold = authorized(authority, nfe_number(951));
    std::vector<std::string> const requests = {correction(sold.key, 1), manifestation(sold.key, "210210"),
                                               cancellation(sold.key, sold.protocol)};
    std::vector<element> registered;
    for (std::string const& request : requests) {
        sefaz_answer const answer = authority.ask(event_batch({request}));
        EXPECT_EQ(answer.at({"xMotivo"}), "Lote de Evento Processado");
        EXPECT_EQ(answer.at({"idLote"}), "1");
        std::vector<element> const events = children_named(answer.message, "retEvento");
        ASSERT_EQ(events.size(), 1u) << answer.envelope;
        registered.push_back(events.front());
        xmlsec_result const verified = authority_signature(events.front());
        EXPECT_TRUE(verified.success) << verified.output << answer.envelope;
        // The event as sent, beside its answer, is what the issuer archives.
        std::string const archive = std::string("<procEventoNFe versao=\"1.00\" xmlns=\"") + nfe_namespace + "\">" +
                                    request + element_text(events.front()) + "</procEventoNFe>";
        EXPECT_EQ(validate_against_schema(schema_dir() / "procEventoNFe_v1.00.xsd", velk::core::byte_array(archive)),
                  std::vector<std::string>());
    }
    struct told {
        std::string cstat, motivo, type, name, sequence, orgao;
    };
    auto const told_of = [](element const& each) {
        return told{text_at(each, {"infEvento", "cStat"}),      text_at(each, {"infEvento", "xMotivo"}),
                    text_at(each, {"infEvento", "tpEvento"}),   text_at(each, {"infEvento", "xEvento"}),
                    text_at(each, {"infEvento", "nSeqEvento"}), text_at(each, {"infEvento", "cOrgao"})};
    };
    told const expected[] = {
        {"135", "Evento registrado e vinculado a NF-e", "110110", "Carta de Correção", "1", "35"},
        {"135", "Evento registrado e vinculado a NF-e", "210210", "Ciencia da Operacao", "1", "91"},
        {"135", "Evento registrado e vinculado a NF-e", "110111", "Cancelamento", "1", "35"},
    };
    for (std::size_t i = 0; i < registered.size(); ++i) {
        told const got = told_of(registered[i]);
        EXPECT_EQ(std::tie(got.cstat, got.motivo, got.type, got.name, got.sequence, got.orgao),
                  std::tie(expected[i].cstat, expected[i].motivo, expected[i].type, expected[i].name,
                           expected[i].sequence, expected[i].orgao));
        std::string const number = text_at(registered[i], {"infEvento", "nProt"});
        EXPECT_TRUE(number.size() == 15 && number[0] == '1' &&
                    number.find_first_not_of("0123456789") == std::string::npos)
            << number;
        std::string const moment = text_at(registered[i], {"infEvento", "dhRegEvento"});
        EXPECT_TRUE(moment.size() == 25 && moment[10] == 'T' && moment.substr(19) == "-03:00") << moment;
        EXPECT_EQ(text_at(registered[i], {"infEvento", "chNFe"}), sold.key);
    }

    sefaz_answer const query = authority.ask(query_by_key(sold.key));
    EXPECT_EQ(query.status(), 101);
    EXPECT_EQ(query.at({"xMotivo"}), "Cancelamento de NF-e homologado");
    EXPECT_EQ(query.at({"protNFe", "infProt", "nProt"}), sold.protocol);
    std::vector<element> const archived = children_named(query.message, "procEventoNFe");
    ASSERT_EQ(archived.size(), requests.size()) << query.envelope;
    for (std::size_t i = 0; i < archived.size(); ++i) {
        SCOPED_TRACE(i);
        element const* const event = archived[i].find_child("evento");
        element const* const answer = archived[i].find_child("retEvento");
        ASSERT_TRUE(event != nullptr && answer != nullptr);
        EXPECT_EQ(text_at(*answer, {"infEvento", "nProt"}), text_at(registered[i], {"infEvento", "nProt"}));
        // Both signatures hold where the query puts them.
        xmlsec_result const issuer = xmlsec_verify(element_text(*event), id_infevento, "");
        EXPECT_TRUE(issuer.success) << issuer.output;
        xmlsec_result const registrar = authority_signature(*answer);
        EXPECT_TRUE(registrar.success) << registrar.output;
    }
}

TEST(events, each_rule_of_the_registry)
{
    std::string const document = nfe_number(961);
    std::string const other_document = nfe_number(962);
    std::string const unknown = key_of(unsigned_document(renumbered(nota_nfe_completa(), 969)));
    using batches = std::vector<std::vector<std::string>>;
    struct row {
        char const* name;
        std::function<batches(note const&, note const&)> sent;
        std::string expected;  // of each batch, in order
    } const rows[] = {
        {"a cancellation, then the same again",
         [](note const& a, note const&) { return batches{{cancellation(a.key, a.protocol)},
                                                          {cancellation(a.key, a.protocol)}}; },
         "128: 135 | 128: 573"},
        {"a cancellation naming another note's protocol",
         [](note const& a, note const& b) { return batches{{cancellation(a.key, b.protocol)},
                                                            {cancellation(a.key, a.protocol)}}; },
         "128: 222 | 128: 135"},
        {"a cancellation of a key never authorized",
         [&unknown](note const& a, note const&) { return batches{{cancellation(unknown, a.protocol)}}; }, "128: 217"},
        {"a cancellation by substitution of a cancelled note",
         [](note const& a, note const& b) { return batches{{cancellation(a.key, a.protocol)},
                                                            {cancellation(a.key, a.protocol, b.key)}}; },
         "128: 135 | 128: 580"},
        {"a cancellation by substitution",
         [](note const& a, note const& b) { return batches{{cancellation(a.key, a.protocol, b.key)}}; }, "128: 135"},
        {"correction letters in sequence, one twice",
         [](note const& a, note const&) {
             return batches{{correction(a.key, 1)}, {correction(a.key, 2)}, {correction(a.key, 2)},
                            {correction(a.key, 3)}};
         },
         "128: 135 | 128: 135 | 128: 573 | 128: 135"},
        {"a correction letter of a cancelled note",
         [](note const& a, note const&) { return batches{{cancellation(a.key, a.protocol)}, {correction(a.key, 2)}}; },
         "128: 135 | 128: 580"},
        {"a correction letter of a key never authorized",
         [&unknown](note const&, note const&) { return batches{{correction(unknown, 1)}}; }, "128: 217"},
        {"an EPEC of a note not yet authorized, twice",
         [&unknown](note const&, note const&) { return batches{{epec(unknown)}, {epec(unknown)}}; },
         "128: 136 | 128: 573"},
        {"an EPEC of a note the authority holds",
         [](note const& a, note const&) { return batches{{epec(a.key)}}; }, "128: 135"},
        {"each manifestation of a note held, one twice",
         [](note const& a, note const&) {
             return batches{{manifestation(a.key, "210200"), manifestation(a.key, "210210"),
                             manifestation(a.key, "210220"), manifestation(a.key, "210240")},
                            {manifestation(a.key, "210210")}};
         },
         "128: 135 135 135 135 | 128: 573"},
        {"a manifestation of a key the authority does not hold",
         [&unknown](note const&, note const&) { return batches{{manifestation(unknown, "210200")}}; }, "128: 136"},
        {"a manifestation of a cancelled note",
         [](note const& a, note const&) {
             return batches{{cancellation(a.key, a.protocol), manifestation(a.key, "210220")}};
         },
         "128: 135 135"},
        {"one batch: its events judged in order",
         [](note const& a, note const& b) {
             return batches{{correction(a.key, 1), cancellation(b.key, b.protocol), correction(b.key, 1)},
                            {correction(a.key, 1), correction(a.key, 2)}};
         },
         "128: 135 135 580 | 128: 573 135"},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        test_authority authority;
        note const a = authorized(authority, document);
        note const b = authorized(authority, other_document);
        std::string got;
        for (std::vector<std::string> const& events : each.sent(a, b)) {
            got += (got.empty() ? "" : " | ") + statuses(authority.ask(event_batch(events)));
        }
        EXPECT_EQ(got, each.expected);
    }
}

TEST(events, each_check_of_the_event_and_of_its_batch)
{
    namespace nfe = velk::erp::tarn::nfe;
    std::string const document = nfe_number(971);
    std::string const key = key_of(document);
    std::string wrong_digit = key;
    wrong_digit.back() = wrong_digit.back() == '9' ? '0' : static_cast<char>(wrong_digit.back() + 1);
    auto const cancelled = [&key](note const& a) { return cancellation(key, a.protocol); };
    struct row {
        char const* name;
        std::vector<std::string> options;
        std::function<std::string(note const&)> batch;
        std::string expected;
        int batch_group;
        std::vector<int> event_groups;
    } const rows[] = {
        {"an event changed after signing", {},
         [&](note const& a) {
             return event_batch({replaced(cancelled(a), "Preenchimento incorreto", "Preenchimento errado")});
         },
         "128: 297", 0, {3}},
        {"a signature of another element", {},
         [&](note const& a) { return event_batch({replaced(cancelled(a), "URI=\"#ID", "URI=\"#XID")}); }, "128: 298",
         0, {3}},
        {"a payload its type's schema refuses", {},
         [&](note const& a) {
             return event_batch({event_changed(cancelled(a), "Preenchimento incorreto dos dados", "Curta")});
         },
         "128: 215", 0, {3}},
        {"a key with a wrong check digit", {},
         [&](note const& a) { return event_batch({event_changed(cancelled(a), key, wrong_digit)}); }, "128: 236", 0,
         {3}},
        {"an event of homologation to production", {"--ambiente", "1"},
         [&](note const& a) { return event_batch({cancelled(a)}); }, "128: 252", 0, {3}},
        {"one event refused, the next registered", {},
         [&](note const& a) {
             return event_batch({replaced(correction(key, 1), "Rua das Flores", "Rua das Rosas"), cancelled(a)});
         },
         "128: 297 135", 0, {3, 0}},
        {"a frame its schema refuses", {},
         [&](note const& a) { return replaced(event_batch({cancelled(a)}), "<idLote>1<", "<idLote>lote<"); }, "215:",
         3, {}},
        {"two events of one Id", {},
         [&](note const& a) { return event_batch({cancelled(a), cancelled(a)}); }, "215:", 3, {}},
        {"a version without schema", {},
         [&](note const& a) {
             return replaced(event_batch({cancelled(a)}), "versao=\"1.00\" xmlns", "versao=\"2.00\" xmlns");
         },
         "239:", 3, {}},
        {"the service stopped for a while", {"--stopped", "short"},
         [&](note const& a) { return event_batch({cancelled(a)}); }, "108:", 2, {}},
        {"the service stopped", {"--stopped", "indefinite"},
         [&](note const& a) { return event_batch({cancelled(a)}); }, "109:", 2, {}},
        {"the authority's own failure", {"--fault", "unknown-error"},
         [&](note const& a) { return event_batch({cancelled(a)}); }, "999:", 1, {}},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        test_authority authority(each.options);
        // An authority of other options refuses the event before it looks
        // for the note.
        note const a = each.options.empty() ? authorized(authority, document) : note{key, "135240000000001"};
        sefaz_answer const answer = authority.ask(each.batch(a));
        EXPECT_EQ(statuses(answer), each.expected) << answer.envelope;
        EXPECT_EQ(answer.message.find_attribute("", "versao")->get_value(), "1.00");
        // As the library reads it, sorted for the caller.
        velk::core::result::stack s;
        auto const read = nfe::sefaz_data::resposta::lote_evento::from_xml(answer.message, s);
        ASSERT_FALSE(s.has_failed()) << s.to_string();
        EXPECT_EQ(nfe::obter_grupo_status_resposta(read), each.batch_group);
        std::vector<int> groups;
        for (auto const& event : read.get_eventos()) {
            groups.push_back(nfe::obter_grupo_status_resposta(event));
        }
        EXPECT_EQ(groups, each.event_groups);
    }
}

TEST(events, a_type_without_rules_here_is_answered_as_an_unknown_error)
{
    test_authority authority;
    std::string const key = key_of(unsigned_document(renumbered(nota_nfe_completa(), 979)));
    std::string const event =
        event_changed(replaced(epec(key), "<tpEvento>110140<", "<tpEvento>110130<"), "ID110140", "ID110130");
    sefaz_answer const answer = authority.ask(event_batch({event}));
    EXPECT_EQ(statuses(answer), "128: 999");
    element const ret_evento = children_named(answer.message, "retEvento").at(0);
    EXPECT_EQ(text_at(ret_evento, {"infEvento", "xMotivo"}), "Rejeição: Erro não catalogado");
    EXPECT_EQ(ret_evento.find_child("infEvento")->find_child("xEvento"), nullptr);
}

}  // namespace

// The authorization service of the simulator: a batch in, protocols out, as
// an authority gives them, and every rejection of a document.
#include "authority_fixture.hpp"

#include <support/files.hpp>
#include <support/notas_fiscais.hpp>
#include <support/partes_de_notas.hpp>
#include <support/schema.hpp>
#include <support/test_certificates.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <functional>
#include <regex>

namespace {

using namespace velk::test;

std::regex const protocol_form("1" "35" "[0-9]{2}" "[0-9]{10}");
std::regex const brasilia_time("20[0-9]{2}-[01][0-9]-[0-3][0-9]T[0-2][0-9]:[0-5][0-9]:[0-5][0-9]-03:00");

// The protNFe of an answer, as the text an archive holds.
std::string protocol_text(sefaz_answer const& answer)
{
    velk::xml::element const* const protocol = answer.message.find_child("protNFe");
    if (protocol == nullptr) {
        return std::string();
    }
    std::string const text = saved_text(*protocol);
    return text.substr(text.find('\n') + 1);
}

// A field of infProt of each protNFe of the answer, in order.
std::vector<std::string> of_each_protocol(sefaz_answer const& answer, std::string const& field)
{
    std::vector<std::string> values;
    for (velk::xml::node const& child : answer.message.get_node_range()) {
        velk::xml::element const* const protocol = child.as_element();
        if (protocol != nullptr && protocol->get_name() == "protNFe") {
            values.push_back(protocol->find_child("infProt")->find_child(field)->get_contents());
        }
    }
    return values;
}

// The document and its protocol as archived: nfeProc.
std::string archived(std::string const& document, std::string const& protocol)
{
    return "<nfeProc versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\">" + document + protocol +
           "</nfeProc>";
}

TEST(authorization, synchronous_batch_gives_the_protocol_of_its_document)
{
    test_authority authority;
    std::string const document = nfce_number(501);
    sefaz_answer const answer = authority.ask(batch({document}, true));
    EXPECT_EQ(answer.message.get_name(), "retEnviNFe");
    EXPECT_EQ(answer.status(), 104);
    EXPECT_EQ(answer.at({"xMotivo"}), "Lote processado");
    EXPECT_EQ(answer.at({"cUF"}), "35");
    EXPECT_FALSE(answer.has({"infRec"}));
    EXPECT_EQ(answer.at({"protNFe", "infProt", "cStat"}), "100");
    EXPECT_EQ(answer.at({"protNFe", "infProt", "xMotivo"}), "Autorizado o uso da NF-e");
    EXPECT_EQ(answer.at({"protNFe", "infProt", "chNFe"}), key_of(document));
    EXPECT_EQ(answer.at({"protNFe", "infProt", "digVal"}), first_text(document, "DigestValue"));
    EXPECT_TRUE(std::regex_match(answer.at({"protNFe", "infProt", "nProt"}), protocol_form))
        << answer.at({"protNFe", "infProt", "nProt"});
    EXPECT_TRUE(std::regex_match(answer.at({"protNFe", "infProt", "dhRecbto"}), brasilia_time));
    EXPECT_TRUE(std::regex_match(answer.at({"dhRecbto"}), brasilia_time));

    std::string const archive = archived(document, protocol_text(answer));
    EXPECT_EQ(validate_against_schema(schema_dir() / "procNFe_v4.00.xsd", velk::core::byte_array(archive)),
              std::vector<std::string>());
    xmlsec_result const verified =
        xmlsec_verify(archive, "http://www.portalfiscal.inf.br/nfe:infNFe", test_certificates::instance().ca_pem());
    EXPECT_TRUE(verified.success) << verified.output;
}

TEST(authorization, asynchronous_batch_gives_a_receipt_then_processing_then_the_protocols)
{
    test_authority authority;
    std::vector<std::string> const documents = {nfe_number(601), nfe_number(602)};
    sefaz_answer const received = authority.ask(batch(documents, false));
    EXPECT_EQ(received.status(), 103);
    EXPECT_EQ(received.at({"xMotivo"}), "Lote recebido com sucesso");
    EXPECT_FALSE(received.has({"protNFe"}));
    std::string const receipt = received.at({"infRec", "nRec"});
    EXPECT_TRUE(std::regex_match(receipt, std::regex("351[0-9]{12}"))) << receipt;

    sefaz_answer const processing = authority.ask(receipt_query(receipt));
    EXPECT_EQ(processing.status(), 105);
    EXPECT_EQ(processing.at({"xMotivo"}), "Lote em processamento");
    EXPECT_EQ(processing.at({"nRec"}), receipt);
    EXPECT_FALSE(processing.has({"protNFe"}));

    for (int query = 0; query < 2; ++query) {
        sefaz_answer const processed = authority.ask(receipt_query(receipt));
        EXPECT_EQ(processed.status(), 104);
        EXPECT_EQ(processed.at({"cUF"}), "35");
        EXPECT_EQ(of_each_protocol(processed, "cStat"), (std::vector<std::string>{"100", "100"}));
        EXPECT_EQ(of_each_protocol(processed, "chNFe"),
                  (std::vector<std::string>{key_of(documents[0]), key_of(documents[1])}));
    }
    EXPECT_EQ(authority.ask(receipt_query("351999999999999")).status(), 106);
}

TEST(authorization, receipt_queries_in_processing_are_as_many_as_the_option_says)
{
    for (int polls : {0, 3}) {
        SCOPED_TRACE(polls);
        test_authority authority({"--processing-polls", std::to_string(polls)});
        std::string const receipt = authority.ask(batch({nfe_number(610)}, false)).at({"infRec", "nRec"});
        for (int query = 0; query < polls; ++query) {
            EXPECT_EQ(authority.ask(receipt_query(receipt)).status(), 105);
        }
        EXPECT_EQ(authority.ask(receipt_query(receipt)).status(), 104);
    }
}

TEST(authorization, authorized_documents_answer_the_query_by_key)
{
    test_authority authority;
    std::string const nfce = nfce_number(701);
    std::string const nfe = nfe_number(702);
    sefaz_answer const synchronous = authority.ask(batch({nfce}, true));
    std::string const receipt = authority.ask(batch({nfe}, false)).at({"infRec", "nRec"});

    sefaz_answer const nfce_query = authority.ask(query_by_key(key_of(nfce)));
    EXPECT_EQ(nfce_query.status(), 100);
    EXPECT_EQ(nfce_query.at({"xMotivo"}), "Autorizado o uso da NF-e");
    EXPECT_EQ(nfce_query.at({"chNFe"}), key_of(nfce));
    EXPECT_EQ(protocol_text(nfce_query), protocol_text(synchronous));
    // Known by its key before its receipt was ever queried.
    sefaz_answer const nfe_query = authority.ask(query_by_key(key_of(nfe)));
    EXPECT_EQ(nfe_query.status(), 100);
    EXPECT_EQ(nfe_query.at({"protNFe", "infProt", "digVal"}), first_text(nfe, "DigestValue"));
    authority.ask(receipt_query(receipt));
    EXPECT_EQ(protocol_text(authority.ask(receipt_query(receipt))), protocol_text(nfe_query));

    sefaz_answer const unknown = authority.ask(query_by_key(key_of(nfe_number(703))));
    EXPECT_EQ(unknown.status(), 217);
    EXPECT_EQ(unknown.at({"xMotivo"}), "Rejeição: NF-e não consta na base de dados da SEFAZ");
    EXPECT_EQ(unknown.at({"chNFe"}), key_of(nfe_number(703)));
    EXPECT_FALSE(unknown.has({"protNFe"}));
    // Nothing is remembered from one authority to the next.
    EXPECT_EQ(test_authority().ask(query_by_key(key_of(nfce))).status(), 217);
}

TEST(authorization, a_document_signed_by_another_implementation_is_authorized)
{
    // xmlsec1 signs a template the layouts' way: the simulator's verification
    // agrees with an implementation that is not ours.
    std::string const unsigned_text = unsigned_document(renumbered(nota_nfce_simples(), 720));
    std::string const key = key_of(unsigned_text);
    std::string const signature_template =
        "<Signature xmlns=\"http://www.w3.org/2000/09/xmldsig#\"><SignedInfo><CanonicalizationMethod "
        "Algorithm=\"http://www.w3.org/TR/2001/REC-xml-c14n-20010315\"/><SignatureMethod "
        "Algorithm=\"http://www.w3.org/2000/09/xmldsig#rsa-sha1\"/><Reference URI=\"#NFe" + key +
        "\"><Transforms><Transform Algorithm=\"http://www.w3.org/2000/09/xmldsig#enveloped-signature\"/><Transform "
        "Algorithm=\"http://www.w3.org/TR/2001/REC-xml-c14n-20010315\"/></Transforms><DigestMethod "
        "Algorithm=\"http://www.w3.org/2000/09/xmldsig#sha1\"/><DigestValue/></Reference></SignedInfo>"
        "<SignatureValue/><KeyInfo><X509Data><X509Certificate/></X509Data></KeyInfo></Signature>";
    std::string signed_text;
    auto const& certificates = test_certificates::instance();
    xmlsec_result const signing = xmlsec_sign(replaced(unsigned_text, "</NFe>", signature_template + "</NFe>"),
                                              "http://www.portalfiscal.inf.br/nfe:infNFe",
                                              certificates.taxpayer().private_key_pem(),
                                              certificates.taxpayer().certificate_pem(), signed_text);
    ASSERT_TRUE(signing.success) << signing.output;
    std::string const document = signed_text.substr(signed_text.find("<NFe"));
    sefaz_answer const answer = test_authority().ask(batch({document}, true));
    EXPECT_EQ(answer.at({"protNFe", "infProt", "cStat"}), "100") << answer.envelope;
}

// A batch the authority refuses as a whole: no protocol, no receipt.
TEST(authorization, batches_refused_as_a_whole)
{
    std::string const document = nfce_number(801);
    struct row {
        char const* name;
        std::vector<std::string> options;
        std::string message;
        int status;
    } const rows[] = {
        {"document without signature", {}, batch({unsigned_document(nota_nfce_simples())}, true), 225},
        {"indSinc out of its values", {}, replaced(batch({document}, true), "<indSinc>1<", "<indSinc>2<"), 225},
        {"no document", {}, batch({}, false), 225},
        {"synchronous with two documents", {}, batch({document, nfce_number(802)}, true), 452},
        {"version without schema", {}, batch({document}, true, "9.99"), 239},
        {"service stopped for a short time", {"--stopped", "short"}, batch({document}, true), 108},
        {"service stopped indefinitely", {"--stopped", "indefinite"}, batch({document}, false), 109},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        test_authority authority(each.options);
        sefaz_answer const answer = authority.ask(each.message);
        EXPECT_EQ(answer.status(), each.status) << answer.envelope;
        EXPECT_FALSE(answer.has({"protNFe"}));
        EXPECT_FALSE(answer.has({"infRec"}));
    }
}

struct document_rejection {
    char const* name;
    std::function<std::string()> document;
    int status;
    // What the authority knew before the document came.
    std::function<void(test_authority&)> before = nullptr;
    std::vector<std::string> options = {};
    bool verified_signature = true;  // digVal present
};

TEST(authorization, each_rejection_of_a_document)
{
    std::string const nfe = nfe_number(901);
    std::string const key = key_of(nfe);
    std::string const issuer = key.substr(6, 14);
    std::string const unsigned_nfe = unsigned_document(renumbered(nota_nfe_completa(), 902));
    std::string const key_902 = key_of(unsigned_nfe);
    char const other_digit = key_902[43] == '9' ? '0' : static_cast<char>(key_902[43] + 1);
    std::string const wrong_check_digit = key_902.substr(0, 43) + other_digit;
    auto const authorized_first = [nfe](test_authority& authority) { authority.ask(batch({nfe}, true)); };

    std::vector<document_rejection> const rows = {
        {"content changed after signing", [&] { return replaced(nfe, "<natOp>", "<natOp>OUTRA "); }, 297, {}, {},
         false},
        {"signature value of another content",
         [&] {
             std::string const value = first_text(nfe, "SignatureValue");
             return replaced(nfe, value, (value[0] == 'A' ? "B" : "A") + value.substr(1));
         },
         297, {}, {}, false},
        {"reference to another element",
         [&] { return replaced(nfe, "URI=\"#NFe" + key, "URI=\"#NFe" + key + "0"); }, 298, {}, {}, false},
        {"no usable certificate",
         [&] { return replaced(nfe, first_text(nfe, "X509Certificate"), "QUJD"); }, 298, {}, {}, false},
        {"document of homologation to the production environment", [&] { return nfe; }, 252, {}, {"--ambiente", "1"}},
        {"key with a wrong check digit",
         [&] { return signed_document(replaced(unsigned_nfe, key_902, wrong_check_digit)); }, 236},
        {"number that is not the key's",
         [&] { return signed_document(replaced(unsigned_nfe, "<nNF>902</nNF>", "<nNF>903</nNF>")); }, 502},
        {"issue date of another month than the key's",
         [&] { return signed_document(replaced(unsigned_nfe, "<dhEmi>2024-05", "<dhEmi>2024-04")); }, 502},
        {"check digit in ide that is not the key's",
         [&] {
             return signed_document(replaced(unsigned_nfe, "<cDV>" + key_902.substr(43) + "<",
                                             "<cDV>" + std::string(1, other_digit) + "<"));
         },
         502},
        {"the same key authorized before", [&] { return nfe; }, 204, authorized_first},
        {"the same number authorized before under another key",
         [&] { return signed_document(renumbered(nota_nfe_completa(), 901, 12345678)); }, 539, authorized_first},
        {"number disabled before", [&] { return nfe; }, 206,
         [&](test_authority& authority) { authority.ask(disablement(issuer, 1, 900, 905)); }},
    };
    for (document_rejection const& each : rows) {
        SCOPED_TRACE(each.name);
        test_authority authority(each.options);
        if (each.before) {
            each.before(authority);
        }
        std::string const document = each.document();
        sefaz_answer const answer = authority.ask(batch({document}, true));
        EXPECT_EQ(answer.status(), 104);
        EXPECT_EQ(answer.at({"protNFe", "infProt", "cStat"}), std::to_string(each.status)) << answer.envelope;
        EXPECT_EQ(answer.at({"protNFe", "infProt", "xMotivo"}).rfind("Rejeição: ", 0), 0u);
        EXPECT_FALSE(answer.has({"protNFe", "infProt", "nProt"}));
        EXPECT_EQ(answer.at({"protNFe", "infProt", "chNFe"}), key_of(document));
        EXPECT_EQ(answer.at({"protNFe", "infProt", "digVal"}),
                  each.verified_signature ? first_text(document, "DigestValue") : "");
        // Only the document authorized before is known by this key.
        char const* const ambiente = each.options.empty() ? "2" : "1";
        EXPECT_EQ(authority.ask(query_by_key(key_of(document), ambiente)).status(), each.status == 204 ? 100 : 217);
    }
}

TEST(authorization, texts_of_duplicates_name_the_earlier_authorization)
{
    test_authority authority;
    std::string const nfe = nfe_number(950);
    sefaz_answer const first = authority.ask(batch({nfe}, true));
    std::string const earlier = "[nProt:" + first.at({"protNFe", "infProt", "nProt"}) +
                                "][dhAut:" + first.at({"protNFe", "infProt", "dhRecbto"}) + "]";
    EXPECT_EQ(authority.ask(batch({nfe}, true)).at({"protNFe", "infProt", "xMotivo"}),
              "Rejeição: Duplicidade de NF-e " + earlier);
    std::string const other = signed_document(renumbered(nota_nfe_completa(), 950, 87654321));
    EXPECT_EQ(authority.ask(batch({other}, true)).at({"protNFe", "infProt", "xMotivo"}),
              "Rejeição: Duplicidade de NF-e com diferença na Chave de Acesso [chNFe:" + key_of(nfe) + "]" + earlier);
}

TEST(authorization, a_batch_decides_each_document_on_its_own)
{
    test_authority authority;
    std::string const good = nfe_number(960);
    std::string const tampered = replaced(nfe_number(961), "<natOp>", "<natOp>OUTRA ");
    // The same key twice would break the uniqueness of Id, and with it the
    // batch's schema; the same number under another key does not.
    std::string const same_number = signed_document(renumbered(nota_nfe_completa(), 960, 11223344));
    std::string const receipt = authority.ask(batch({good, tampered, same_number}, false)).at({"infRec", "nRec"});
    authority.ask(receipt_query(receipt));
    EXPECT_EQ(of_each_protocol(authority.ask(receipt_query(receipt)), "cStat"),
              (std::vector<std::string>{"100", "297", "539"}));
    EXPECT_EQ(authority.ask(batch({good, good}, false)).status(), 225);
}

}  // namespace

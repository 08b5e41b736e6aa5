// The status service and the GTIN catalogue of the simulator.
#include "authority_fixture.hpp"

#include <sefaz-sim/gtin_catalogue.hpp>

#include <support/xml_text.hpp>

#include <gtest/gtest.h>

namespace {

using namespace velk::test;
using velk::tools::sefaz_sim::gtin_catalogue;
using velk::tools::sefaz_sim::gtin_item;
using velk::tools::sefaz_sim::web_services;

TEST(status, in_operation_in_its_own_environment)
{
    test_authority homologation;
    sefaz_answer const answer = homologation.ask(status_query("2"));
    EXPECT_EQ(answer.status(), 107);
    EXPECT_EQ(answer.at({"xMotivo"}), "Serviço em Operação");
    EXPECT_EQ(answer.at({"tMed"}), "1");

    sefaz_answer const other = homologation.ask(status_query("1"));
    EXPECT_EQ(other.status(), 252);
    EXPECT_EQ(other.at({"tpAmb"}), "2") << "the authority answers in its own environment";
    EXPECT_FALSE(other.has({"tMed"}));
    EXPECT_EQ(test_authority({"--ambiente", "1"}).ask(status_query("1")).status(), 107);
}

TEST(gtin, each_product_of_the_catalogue)
{
    test_authority authority;
    for (gtin_item const& item : gtin_catalogue::items()) {
        SCOPED_TRACE(std::string(item.gtin));
        sefaz_answer const answer = authority.ask(gtin_query(std::string(item.gtin)));
        EXPECT_EQ(answer.status(), 9490);
        EXPECT_EQ(answer.at({"xMotivo"}), "Consulta realizada com sucesso");
        EXPECT_EQ(answer.at({"GTIN"}), item.gtin);
        EXPECT_EQ(answer.at({"tpGTIN"}), std::to_string(item.gtin.size()));
        EXPECT_EQ(answer.at({"xProd"}), item.description);
        EXPECT_EQ(answer.at({"NCM"}), item.ncm);
        std::vector<std::string> cest;
        for (velk::xml::node const& child : answer.message.get_node_range()) {
            if (child.as_element() != nullptr && child.as_element()->get_name() == "CEST") {
                cest.push_back(child.as_element()->get_contents());
            }
        }
        EXPECT_EQ(cest, std::vector<std::string>(item.cest.begin(), item.cest.end()));
    }
}

TEST(gtin, answers_outside_the_catalogue_and_its_body)
{
    test_authority authority;
    struct row {
        char const* gtin;
        int status;
    } const rows[] = {
        {"7891234567888", 9494},  // a valid GTIN no one registered
        {"7891234567896", 9494},  // a catalogue GTIN with another check digit
        {"789ABC", 215},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.gtin);
        sefaz_answer const answer = authority.ask(gtin_query(each.gtin));
        EXPECT_EQ(answer.status(), each.status);
        EXPECT_EQ(answer.message.get_name(), "retConsGTIN");
        EXPECT_FALSE(answer.has({"GTIN"}));
        EXPECT_FALSE(answer.has({"xProd"}));
    }
    // The answer comes in the operation's response element, in its namespace,
    // with nfeResultMsg inside.
    std::string const envelope = authority.ask(gtin_query("78935761")).envelope;
    EXPECT_NE(envelope.find("<soap:Body><ccgConsGTINResponse xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/"
                            "ccgConsGtin\"><nfeResultMsg><retConsGTIN versao=\"1.00\""),
              std::string::npos)
        << envelope;
    // The operation under a prefix leaves nfeDadosMsg without a namespace.
    web_services::reply const prefixed = authority.exchange(replaced(
        replaced(envelope_of(gtin_query("78935761")), "<ccgConsGTIN xmlns=", "<gtin:ccgConsGTIN xmlns:gtin="),
        "</ccgConsGTIN>", "</gtin:ccgConsGTIN>"));
    EXPECT_NE(prefixed.body.find("<ccgConsGTINResponse xmlns=\"http://www.portalfiscal.inf.br/nfe/wsdl/ccgConsGtin\">"
                                 "<nfeResultMsg><retConsGTIN"),
              std::string::npos)
        << prefixed.body;
}

}  // namespace

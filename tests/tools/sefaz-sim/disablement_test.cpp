// The disablement service of the simulator: a signed range in, a signed
// answer out, and the ranges and numbers it remembers.
#include "authority_fixture.hpp"

#include <support/files.hpp>
#include <support/schema.hpp>
#include <support/sefaz_simulator.hpp>
#include <support/xml_text.hpp>
#include <support/xmlsec.hpp>

#include <gtest/gtest.h>

#include <regex>

namespace {

using namespace velk::test;

constexpr char issuer[] = "12345678000195";

TEST(disablement, a_range_is_disabled_with_an_answer_signed_by_the_authority)
{
    test_authority authority;
    std::string const request = disablement(issuer, 1, 10, 20);
    sefaz_answer const answer = authority.ask(request);
    EXPECT_EQ(answer.status(), 102);
    EXPECT_EQ(answer.at({"infInut", "xMotivo"}), "Inutilização de número homologado");
    std::string const protocol = answer.at({"infInut", "nProt"});
    EXPECT_TRUE(std::regex_match(protocol, std::regex("135[0-9]{12}"))) << protocol;
    EXPECT_EQ(answer.message.find_child("infInut")->find_attribute("", "Id")->get_value(), "ID" + protocol);
    std::vector<std::string> echoed;
    for (char const* tag : {"tpAmb", "cUF", "ano", "CNPJ", "mod", "serie", "nNFIni", "nNFFin"}) {
        echoed.push_back(answer.at({"infInut", tag}));
    }
    EXPECT_EQ(echoed, (std::vector<std::string>{"2", "35", "24", issuer, "55", "1", "10", "20"}));
    EXPECT_TRUE(std::regex_match(answer.at({"infInut", "dhRecbto"}), std::regex(".*T.*-03:00")));

    std::string answer_text = saved_text(answer.message);
    answer_text = answer_text.substr(answer_text.find('\n') + 1);
    xmlsec_result const verified = xmlsec_verify(answer_text, "http://www.portalfiscal.inf.br/nfe:infInut",
                                                 sefaz_simulator::pki().authority().certificate_pem());
    EXPECT_TRUE(verified.success) << verified.output << answer_text;
    // Request and answer archived together.
    std::string const archive = "<ProcInutNFe versao=\"4.00\" xmlns=\"http://www.portalfiscal.inf.br/nfe\">" +
                                request + answer_text + "</ProcInutNFe>";
    EXPECT_EQ(validate_against_schema(schema_dir() / "procInutNFe_v4.00.xsd", velk::core::byte_array(archive)),
              std::vector<std::string>());
}

TEST(disablement, a_range_that_meets_one_disabled_before_is_refused)
{
    struct row {
        unsigned series;
        unsigned first;
        unsigned last;
        int status;
    } const rows[] = {
        {1, 10, 20, 563}, {1, 15, 25, 563}, {1, 5, 10, 563}, {1, 20, 20, 563}, {1, 12, 14, 563},
        {1, 1, 9, 102},   {1, 21, 30, 102}, {2, 10, 20, 102},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(std::to_string(each.series) + ": " + std::to_string(each.first) + "-" + std::to_string(each.last));
        test_authority authority;
        authority.ask(disablement(issuer, 1, 10, 20));
        EXPECT_EQ(authority.ask(disablement(issuer, each.series, each.first, each.last)).status(), each.status);
    }
    test_authority authority;
    authority.ask(disablement(issuer, 1, 10, 20));
    EXPECT_EQ(authority.ask(disablement("98765432000198", 1, 10, 20)).status(), 102) << "another issuer's range";
}

TEST(disablement, each_rejection)
{
    std::string const nfe = nfe_number(905);
    std::string const nfe_issuer = key_of(nfe).substr(6, 14);
    unsigned const series = static_cast<unsigned>(std::stoul(key_of(nfe).substr(22, 3)));
    struct row {
        char const* name;
        std::vector<std::string> options;
        std::string request;
        int status;
        bool echoed;  // the numbers of the request repeated
    } const rows[] = {
        {"a number of the range authorized", {}, disablement(nfe_issuer, series, 900, 910), 241, true},
        {"justification changed after signing", {},
         replaced(disablement(issuer, 1, 10, 20), "<xJust>Numeração", "<xJust>Numeracao"), 297, true},
        {"reference to another element", {},
         replaced(disablement(issuer, 1, 10, 20), "URI=\"#ID", "URI=\"#XID"), 298, true},
        {"request of homologation to production", {"--ambiente", "1"}, disablement(issuer, 1, 10, 20), 252, true},
        {"request its schema refuses", {},
         replaced(disablement(issuer, 1, 10, 20), "INUTILIZAR", "INUTILIZA"), 215, false},
        {"service stopped", {"--stopped", "short"}, disablement(issuer, 1, 10, 20), 108, false},
    };
    for (row const& each : rows) {
        SCOPED_TRACE(each.name);
        test_authority authority(each.options);
        authority.ask(batch({nfe}, true));
        sefaz_answer const answer = authority.ask(each.request);
        EXPECT_EQ(answer.status(), each.status) << answer.envelope;
        EXPECT_FALSE(answer.has({"infInut", "nProt"}));
        EXPECT_FALSE(answer.has({"Signature"}));
        EXPECT_EQ(answer.message.find_child("infInut")->find_attribute("", "Id"), nullptr);
        EXPECT_EQ(answer.has({"infInut", "nNFIni"}), each.echoed);
    }
}

}  // namespace

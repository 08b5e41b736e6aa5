#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include <support/files.hpp>
#include <velk/core/converter_result_category.hpp>

#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <sstream>
#include <string>

namespace {

namespace nfe = velk::erp::tarn::nfe;
using velk::erp::estado;
using velk::erp::tarn::ambiente;
using velk::core::result::stack;
using nfe::versao;

// The published addresses: "UF" (or "PR 3.10", "PR 4.00") to the production
// and homologation address, the latter empty where the table has none.
std::map<std::string, std::pair<std::string, std::string>> published_addresses()
{
    std::istringstream lines(velk::test::read_text(velk::test::shared_dir() / "reference" / "nfce-qrcode-hosts.md"));
    std::regex const row(R"(^\| \d+ \| (\w\w)(, layout (\d\.\d\d))? \| `([^`]+)` \| (`([^`]+)`|none[^|]*) \|)");
    std::map<std::string, std::pair<std::string, std::string>> addresses;
    for (std::string line; std::getline(lines, line);) {
        std::smatch match;
        if (std::regex_search(line, match, row)) {
            std::string const key = match[3].matched ? match[1].str() + " " + match[3].str() : match[1].str();
            addresses[key] = {match[4].str(), match[6].str()};
        }
    }
    return addresses;
}

std::string lookup(ambiente environment, versao version, estado state, stack& s)
{
    return nfe::detail::obter_url_consulta_qrcode(environment, version, state, s);
}

TEST(url_consulta_qrcode, every_state_has_its_published_page_but_ma_in_homologation)
{
    auto const published = published_addresses();
    ASSERT_EQ(published.size(), 28U) << "27 states, PR twice";
    for (int number = 0; number < velk::erp::quantidade_estados; ++number) {
        estado const state = static_cast<estado>(number);
        std::string const uf = velk::erp::get_uf(state);
        for (versao const version : {versao::versao_3_10, versao::versao_4_00}) {
            std::string const key = state != estado::pr ? uf : uf + (version == versao::versao_3_10 ? " 3.10" : " 4.00");
            SCOPED_TRACE(key);
            ASSERT_EQ(published.count(key), 1U);
            // ES's page is published also without its last part; the layout
            // wants the QR string after a "?", so the table has the whole form.
            std::string const fim_es = state == estado::es ? "qrcode.aspx?" : "";
            stack s;
            EXPECT_EQ(lookup(ambiente::producao, version, state, s), published.at(key).first + fim_es);
            EXPECT_FALSE(s.has_failed()) << s.to_string();
            std::string const homologation = lookup(ambiente::homologacao, version, state, s);
            if (state == estado::ma) {
                EXPECT_EQ(published.at(key).second, "");
                EXPECT_EQ(homologation, "");
                ASSERT_EQ(s.size(), 1U);
                EXPECT_TRUE(s.get_category() == nfe::processo_gerar_qrcode_result_category::instance());
                EXPECT_EQ(s.get_value(), 5);
                EXPECT_EQ(s.top().get_arguments(), (decltype(s.top().get_arguments()){{"codigo_uf", "21"}}));
            } else {
                EXPECT_EQ(homologation, published.at(key).second + fim_es);
                EXPECT_FALSE(s.has_failed()) << s.to_string();
            }
        }
    }
}

TEST(url_consulta_qrcode, states_and_layouts_without_a_page)
{
    using arguments = std::vector<std::pair<std::string, std::string>>;
    struct {
        char const* name;
        ambiente environment;
        versao version;
        estado state;
        velk::core::result::category const* category;  // null: no report
        int code;
        arguments expected;
    } const cases[] = {
        {"PR in layout 2.00", ambiente::producao, versao::versao_2_00, estado::pr,
         &nfe::processo_gerar_qrcode_result_category::instance(), 9, {{"versao-nfe", "2.00"}}},
        {"PR in a layout of no name", ambiente::producao, static_cast<versao>(5), estado::pr,
         &nfe::processo_gerar_qrcode_result_category::instance(), 5, {{"codigo_uf", "41"}}},
        {"MA in homologation", ambiente::homologacao, versao::versao_4_00, estado::ma,
         &nfe::processo_gerar_qrcode_result_category::instance(), 5, {{"codigo_uf", "21"}}},
        {"a state of no number", ambiente::producao, versao::versao_4_00, static_cast<estado>(27),
         &velk::core::converter_result_category::instance(), 2, {}},
        {"an environment of no name", static_cast<ambiente>(2), versao::versao_4_00, estado::sp, nullptr, 0, {}},
        {"layout 2.00 elsewhere is as any other", ambiente::producao, versao::versao_2_00, estado::sp, nullptr, 0,
         {}},
    };
    for (auto const& current : cases) {
        SCOPED_TRACE(current.name);
        stack s;
        std::string const address = lookup(current.environment, current.version, current.state, s);
        if (current.category == nullptr) {
            EXPECT_FALSE(s.has_failed()) << s.to_string();
            EXPECT_EQ(address.empty(), current.environment != ambiente::producao);
            continue;
        }
        EXPECT_EQ(address, "");
        ASSERT_EQ(s.size(), 1U) << s.to_string();
        EXPECT_TRUE(s.get_category() == *current.category);
        EXPECT_EQ(s.get_value(), current.code);
        EXPECT_EQ(s.top().get_arguments(), current.expected);
    }
}

}  // namespace

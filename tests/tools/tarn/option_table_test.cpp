// The command line read against a subcommand's table of options.
#include <tarn/option_table.hpp>

#include <gtest/gtest.h>

namespace {

using velk::tools::tarn::option_table;

option_table fresh()
{
    return option_table({{"uf", "UF", "estado"}, {"sim", "", "simulador"}, {"json", "", "JSON"}});
}

TEST(option_table, words_read_as_options_and_arguments)
{
    struct row {
        std::vector<std::string> words;
        char const* uf;  // null: absent
        bool sim;
        std::vector<std::string> positionals;
    } const rows[] = {
        {{"--uf", "SP", "a.json"}, "SP", false, {"a.json"}},
        {{"a.json", "--uf=RJ", "b.json", "--sim"}, "RJ", true, {"a.json", "b.json"}},
        {{"--uf", "SP", "--uf", "MG"}, "MG", false, {}},
        {{"--", "--uf", "-"}, nullptr, false, {"--uf", "-"}},
        {{"-x", "--"}, nullptr, false, {"-x"}},
        {{"--uf", "--sim"}, "--sim", false, {}},
    };
    for (row const& each : rows) {
        option_table options = fresh();
        std::string error;
        ASSERT_TRUE(options.parse(each.words, error)) << error;
        EXPECT_EQ(options.value("uf").has_value(), each.uf != nullptr);
        if (each.uf != nullptr) {
            EXPECT_EQ(*options.value("uf"), each.uf);
        }
        EXPECT_EQ(options.has("sim"), each.sim);
        EXPECT_EQ(options.positionals(), each.positionals);
    }
}

TEST(option_table, refusals_name_the_option)
{
    struct row {
        std::vector<std::string> words;
        char const* error;
    } const rows[] = {
        {{"--senha", "x"}, "opção desconhecida: --senha"},
        {{"--sim=sim"}, "a opção --sim não leva valor"},
        {{"a.json", "--uf"}, "falta o valor de --uf UF"},
    };
    for (row const& each : rows) {
        option_table options = fresh();
        std::string error;
        EXPECT_FALSE(options.parse(each.words, error));
        EXPECT_EQ(error, each.error);
    }
}

TEST(option_table, help_aligns_the_options)
{
    EXPECT_EQ(fresh().help(),
              "  --uf UF  estado\n"
              "  --sim    simulador\n"
              "  --json   JSON\n");
}

}  // namespace

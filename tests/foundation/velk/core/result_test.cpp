#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/detail_kinds.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using velk::core::result::stack;

// A category of the shape every area of the library uses: one named row per
// code, its words and the names of its details.
class sample_category final : public velk::core::result::table_category {
public:
    template <int N, class... Kinds>
    using row = velk::core::result::row<sample_category, N, Kinds...>;

    static sample_category const& instance()
    {
        static sample_category const category;
        return category;
    }

    static constexpr row<1> first{"primeiro"};
    static constexpr row<2, velk::core::result::text> second{"segundo", "detail"};
    static constexpr row<3, velk::core::result::number<int>, velk::core::result::omissible<velk::core::result::text>>
        third{nullptr, "number", "note"};

private:
    sample_category() : table_category("sample", words) {}
    static constexpr auto words = velk::core::result::words_by_number(first, second, third);
};

TEST(result_stack, starts_as_success_and_fails_with_the_first_item)
{
    stack report;
    EXPECT_FALSE(report.has_failed());
    velk::core::result::chain<sample_category::first>(report);
    ASSERT_TRUE(report.has_failed());
    EXPECT_EQ(report.get_value(), 1);
    EXPECT_TRUE(report.get_category() == sample_category::instance());
    EXPECT_TRUE(report.top().get_arguments().empty());
}

TEST(result_stack, chained_report_keeps_the_callee_beneath)
{
    stack report;
    velk::core::result::chain<velk::core::converter_result_category::invalid_value>(report);
    velk::core::result::chain<sample_category::second>(report, "caller");
    ASSERT_EQ(report.size(), 2u);
    EXPECT_EQ(report.get_value(), 2);
    EXPECT_TRUE(report.get_category() == sample_category::instance());
    EXPECT_TRUE(report.begin()->get_category() == velk::core::converter_result_category::instance());
    ASSERT_NE(report.top().find_argument("detail"), nullptr);
    EXPECT_EQ(*report.top().find_argument("detail"), "caller");
}

TEST(result_stack, fresh_report_replaces_what_the_stack_held)
{
    stack report;
    velk::core::result::chain<sample_category::first>(report);
    velk::core::result::chain<sample_category::first>(report);
    velk::core::result::fresh<sample_category::second>(report, "only");
    ASSERT_EQ(report.size(), 1u);
    EXPECT_EQ(report.get_value(), 2);
    EXPECT_EQ(report.begin()->get_arguments().size(), 1u);
}

TEST(result_stack, reset_forgives_and_move_assignment_takes_over)
{
    stack report;
    velk::core::result::chain<sample_category::first>(report);
    report.reset();
    EXPECT_FALSE(report.has_failed());

    stack other;
    velk::core::result::chain<sample_category::second>(other, "x");
    report = std::move(other);
    EXPECT_EQ(report.size(), 1u);
    EXPECT_EQ(report.get_value(), 2);
}

TEST(result_stack, to_string_lists_items_from_the_top)
{
    stack report;
    velk::core::result::chain<sample_category::first>(report);
    velk::core::result::chain<sample_category::second>(report, "d");
    EXPECT_EQ(report.to_string(), "sample 2: segundo {detail=d}\nsample 1: primeiro");
}

TEST(result_row, details_are_stored_under_the_rows_names_and_an_omissible_one_may_be_left_out)
{
    using arguments = std::vector<std::pair<std::string, std::string>>;
    stack report;
    velk::core::result::chain<sample_category::third>(report, -7);
    EXPECT_EQ(report.top().get_arguments(), (arguments{{"number", "-7"}}));
    velk::core::result::chain<sample_category::third>(report, 12, "");
    EXPECT_EQ(report.top().get_arguments(), (arguments{{"number", "12"}, {"note", ""}}));
    static_assert(!decltype(sample_category::second)::accepts<>(), "a text that is not omissible is required");
    static_assert(!decltype(sample_category::third)::accepts<std::string>(), "a number is no text");
    static_assert(!decltype(sample_category::first)::accepts<int>(), "no detail beyond the row's");
}

TEST(result_row, failed_with_recognises_the_code_on_top)
{
    stack report;
    EXPECT_FALSE(velk::core::result::failed_with<sample_category::first>(report));
    velk::core::result::chain<sample_category::first>(report);
    EXPECT_TRUE(velk::core::result::failed_with<sample_category::first>(report));
    velk::core::result::chain<velk::core::converter_result_category::bad_parameter>(report);
    EXPECT_FALSE(velk::core::result::failed_with<sample_category::first>(report)) << "only the top counts";
    EXPECT_TRUE(velk::core::result::failed_with<velk::core::converter_result_category::bad_parameter>(report));
}

TEST(result_category, unknown_code_ends_the_process)
{
    EXPECT_EXIT(sample_category::instance().get_message(0), testing::ExitedWithCode(1), "sample");
    EXPECT_EXIT(sample_category::instance().get_message(3), testing::ExitedWithCode(1), "3") << "a code without words";
    EXPECT_EXIT(sample_category::instance().get_message(4), testing::ExitedWithCode(1), "4");
}

TEST(result_category, identity_is_the_object)
{
    EXPECT_TRUE(sample_category::instance() == sample_category::instance());
    EXPECT_FALSE(sample_category::instance() == velk::core::converter_result_category::instance());
}

}  // namespace

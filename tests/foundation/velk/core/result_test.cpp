#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>

#include <gtest/gtest.h>

#include <string>

namespace {

using velk::core::result::stack;

// A category of the shape every area of the library uses.
class sample_category final : public velk::core::result::category {
public:
    static sample_category const& instance()
    {
        static sample_category const category;
        return category;
    }
    char const* get_name() const override { return "sample"; }
    char const* get_message(int code) const override
    {
        static char const* const messages[] = {"primeiro", "segundo"};
        if (code < 1 || code > 2) {
            show_invalid_value_message_and_exit(code);
        }
        return messages[code - 1];
    }
    void create(stack::item&, velk::core::result::code<sample_category, 1>) const {}
    void create(stack::item& item, velk::core::result::code<sample_category, 2>, std::string const& detail) const
    {
        item.set_argument("detail", detail);
    }
};

TEST(result_stack, starts_as_success_and_fails_with_the_first_item)
{
    stack report;
    EXPECT_FALSE(report.has_failed());
    velk::core::result::chain<sample_category, 1>(report);
    ASSERT_TRUE(report.has_failed());
    EXPECT_EQ(report.get_value(), 1);
    EXPECT_TRUE(report.get_category() == sample_category::instance());
    EXPECT_TRUE(report.top().get_arguments().empty());
}

TEST(result_stack, chained_report_keeps_the_callee_beneath)
{
    stack report;
    velk::core::result::chain<velk::core::converter_result_category, 2>(report);
    velk::core::result::chain<sample_category, 2>(report, "caller");
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
    velk::core::result::chain<sample_category, 1>(report);
    velk::core::result::chain<sample_category, 1>(report);
    velk::core::result::fresh<sample_category, 2>(report, "only");
    ASSERT_EQ(report.size(), 1u);
    EXPECT_EQ(report.get_value(), 2);
    EXPECT_EQ(report.begin()->get_arguments().size(), 1u);
}

TEST(result_stack, reset_forgives_and_move_assignment_takes_over)
{
    stack report;
    velk::core::result::chain<sample_category, 1>(report);
    report.reset();
    EXPECT_FALSE(report.has_failed());

    stack other;
    velk::core::result::chain<sample_category, 2>(other, "x");
    report = std::move(other);
    EXPECT_EQ(report.size(), 1u);
    EXPECT_EQ(report.get_value(), 2);
}

TEST(result_stack, to_string_lists_items_from_the_top)
{
    stack report;
    velk::core::result::chain<sample_category, 1>(report);
    velk::core::result::chain<sample_category, 2>(report, "d");
    EXPECT_EQ(report.to_string(), "sample 2: segundo {detail=d}\nsample 1: primeiro");
}

TEST(result_category, unknown_code_ends_the_process)
{
    EXPECT_EXIT(sample_category::instance().get_message(0), testing::ExitedWithCode(1), "sample");
    EXPECT_EXIT(sample_category::instance().get_message(3), testing::ExitedWithCode(1), "3");
}

TEST(result_category, identity_is_the_object)
{
    EXPECT_TRUE(sample_category::instance() == sample_category::instance());
    EXPECT_FALSE(sample_category::instance() == velk::core::converter_result_category::instance());
}

}  // namespace

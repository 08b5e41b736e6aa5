#include <support/xml_text.hpp>
#include <velk/core/converter_result_category.hpp>
#include <velk/core/result/report.hpp>
#include <velk/xml/tree_walker.hpp>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using velk::core::result::stack;
using velk::test::parse_or_fail;
using namespace velk::xml;

// Writes down every call with the path it saw.
class recording_walker : public tree_walker {
public:
    std::vector<std::string> events;
    std::string skip;     // local name whose children are skipped
    std::string fail_at;  // local name on which the stack fails

protected:
    bool on_enter_element(element const& value, stack& report) override
    {
        events.push_back("enter " + get_current_path());
        if (value.get_name() == fail_at) {
            velk::core::result::fresh<velk::core::converter_result_category::bad_parameter>(report);
        }
        return value.get_name() != skip;
    }
    void on_leave_element(element const&) override { events.push_back("leave " + get_current_path()); }
    void on_text(text const& value) override { events.push_back("text " + get_current_path() + " " + value.get_contents()); }
    void on_cdata_section(cdata_section const& value) override
    {
        events.push_back("cdata " + get_current_path() + " " + value.get_contents());
    }
};

constexpr char const* fault = R"(<env:Envelope xmlns:env="http://www.w3.org/2003/05/soap-envelope"><env:Body>)"
                              R"(<env:Fault><env:Code><env:Value>env:Sender</env:Value></env:Code>)"
                              R"(<env:Reason><env:Text xml:lang="pt">Falha<![CDATA[!]]></env:Text></env:Reason>)"
                              R"(<env:Detail><x>1</x></env:Detail></env:Fault></env:Body></env:Envelope>)";

struct walk_result {
    bool completed;
    bool failed;
    std::vector<std::string> events;
    std::string path_after;
};

walk_result walk(element const& start, std::string const& skip, std::string const& fail_at)
{
    recording_walker walker;
    walker.skip = skip;
    walker.fail_at = fail_at;
    stack report;
    bool const completed = walker.traverse_element(start, report);
    return {completed, report.has_failed(), walker.events, walker.get_current_path()};
}

TEST(tree_walker, visits_in_document_order_with_local_name_paths_and_skips_children)
{
    document parsed = parse_or_fail(fault);
    walk_result const result = walk(*parsed.get_root_element(), "Detail", "");
    EXPECT_TRUE(result.completed);
    EXPECT_FALSE(result.failed);
    std::vector<std::string> const expected = {
        "enter Envelope",
        "enter Envelope/Body",
        "enter Envelope/Body/Fault",
        "enter Envelope/Body/Fault/Code",
        "enter Envelope/Body/Fault/Code/Value",
        "text Envelope/Body/Fault/Code/Value env:Sender",
        "leave Envelope/Body/Fault/Code/Value",
        "leave Envelope/Body/Fault/Code",
        "enter Envelope/Body/Fault/Reason",
        "enter Envelope/Body/Fault/Reason/Text",
        "text Envelope/Body/Fault/Reason/Text Falha",
        "cdata Envelope/Body/Fault/Reason/Text !",
        "leave Envelope/Body/Fault/Reason/Text",
        "leave Envelope/Body/Fault/Reason",
        "enter Envelope/Body/Fault/Detail",
        "leave Envelope/Body/Fault/Detail",
        "leave Envelope/Body/Fault",
        "leave Envelope/Body",
        "leave Envelope",
    };
    EXPECT_EQ(result.events, expected);
    EXPECT_EQ(result.path_after, "");

    // Paths start at the element where the visit begins.
    walk_result const inner = walk(*parsed.get_root_element()->find_child("Body")->find_child("Fault"), "", "");
    EXPECT_EQ(inner.events.front(), "enter Fault");
    EXPECT_EQ(inner.events[13], "enter Fault/Detail/x");
    EXPECT_EQ(inner.events[14], "text Fault/Detail/x 1");
}

TEST(tree_walker, a_failure_ends_the_visit_at_once)
{
    document parsed = parse_or_fail(fault);
    walk_result const result = walk(*parsed.get_root_element(), "", "Reason");
    EXPECT_FALSE(result.completed);
    EXPECT_TRUE(result.failed);
    EXPECT_EQ(result.events.back(), "enter Envelope/Body/Fault/Reason");
    EXPECT_EQ(result.path_after, "");
}

}  // namespace

#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::core {
inline namespace v3 {

// Failed conversions between values and text: code 1 for a wrong conversion
// parameter, code 2 for a value that has no text form or a text with no value.
class converter_result_category final : public result::table_category {
public:
    static converter_result_category const& instance();

    void create(result::stack::item&, result::code<converter_result_category, 1>) const {}
    void create(result::stack::item&, result::code<converter_result_category, 2>) const {}

private:
    converter_result_category();
};

}  // namespace v3
}  // namespace velk::core

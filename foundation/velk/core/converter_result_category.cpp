#include <velk/core/converter_result_category.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

using category = converter_result_category;

constexpr auto words = result::words_by_number(category::bad_parameter, category::invalid_value);

}  // namespace

converter_result_category::converter_result_category() : table_category("core-converter", words) {}

converter_result_category const& converter_result_category::instance()
{
    static converter_result_category const category;
    return category;
}

}  // namespace v3
}  // namespace velk::core

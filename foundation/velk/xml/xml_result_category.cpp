#include <velk/xml/xml_result_category.hpp>

namespace velk::xml {
inline namespace v3 {

namespace {

using category = xml_result_category;

constexpr auto words = core::result::words_by_number(
    category::malformed, category::dtd_declared, category::invalid_name, category::duplicate_attribute,
    category::duplicate_prefix, category::root_exists, category::no_root, category::canonicalization_failed);

}  // namespace

xml_result_category::xml_result_category() : table_category("velk-xml", words) {}

xml_result_category const& xml_result_category::instance()
{
    static xml_result_category const category;
    return category;
}

}  // namespace v3
}  // namespace velk::xml

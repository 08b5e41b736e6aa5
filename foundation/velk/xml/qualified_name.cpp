#include <velk/xml/qualified_name.hpp>

#include <velk/xml/detail/xml_names.hpp>

namespace velk::xml {
inline namespace v3 {

bool is_qualified_name(std::string_view name)
{
    return detail::is_valid_qualified_name(name);
}

std::string_view prefix_of(std::string_view qualified_name)
{
    return detail::prefix_of(qualified_name);
}

std::string_view local_part_of(std::string_view qualified_name)
{
    return detail::local_part_of(qualified_name);
}

}  // namespace v3
}  // namespace velk::xml

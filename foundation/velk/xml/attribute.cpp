#include <velk/xml/attribute.hpp>

#include <velk/xml/detail/xml_names.hpp>

#include <utility>

namespace velk::xml {
inline namespace v3 {

attribute::attribute(std::string name, std::string value) : name_(std::move(name)), value_(std::move(value)) {}

std::string attribute::get_local_name() const
{
    return std::string(detail::local_part_of(name_));
}

std::string attribute::get_prefix() const
{
    return std::string(detail::prefix_of(name_));
}

}  // namespace v3
}  // namespace velk::xml

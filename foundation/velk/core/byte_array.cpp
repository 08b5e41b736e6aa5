#include <velk/core/byte_array.hpp>

#include <cstring>

namespace velk::core {
inline namespace v3 {

byte_array::byte_array(char const* text) : byte_array(std::string_view(text)) {}

byte_array::byte_array(std::string_view text)
    : bytes_(reinterpret_cast<unsigned char const*>(text.data()),
             reinterpret_cast<unsigned char const*>(text.data()) + text.size())
{
}

byte_array::iterator byte_array::insert(iterator position, unsigned char byte)
{
    auto const offset = static_cast<std::size_t>(position - data());
    bytes_.insert(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), byte);
    return data() + offset;
}

byte_array::iterator byte_array::insert(iterator position, char const* text)
{
    auto const* first = reinterpret_cast<unsigned char const*>(text);
    return insert(position, first, first + std::strlen(text));
}

byte_array::iterator byte_array::insert(iterator position, unsigned char const* first, unsigned char const* last)
{
    auto const offset = static_cast<std::size_t>(position - data());
    bytes_.insert(bytes_.begin() + static_cast<std::ptrdiff_t>(offset), first, last);
    std::size_t const count = static_cast<std::size_t>(last - first);
    return data() + offset + (count == 0 ? 0 : count - 1);
}

void byte_array::append(std::string_view text)
{
    auto const* first = reinterpret_cast<unsigned char const*>(text.data());
    bytes_.insert(bytes_.end(), first, first + text.size());
}

}  // namespace v3
}  // namespace velk::core

#pragma once

// Strings made from short texts without a call to copy their bytes: names,
// numbers and most values of a document are a few bytes long and fit in the
// string itself, where a few moves cost less than the call.

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace velk::core {
inline namespace v3 {
namespace detail {

// The same string as std::string(text); a long text is copied as usual.
[[gnu::always_inline]] inline std::string short_string(std::string_view text)
{
    // The room a string has in itself.
    constexpr std::size_t room = 15;
    std::size_t const size = text.size();
    std::string made(room, '\0');
    if (size > room) [[unlikely]] {
        made.assign(text.data(), size);
        return made;
    }
    char* const target = made.data();
    char const* const source = text.data();
    // Overlapping moves that read and write only the bytes of the text.
    if (size >= 8) {
        std::uint64_t first;
        std::uint64_t last;
        std::memcpy(&first, source, 8);
        std::memcpy(&last, source + size - 8, 8);
        std::memcpy(target, &first, 8);
        std::memcpy(target + size - 8, &last, 8);
    } else if (size >= 4) {
        std::uint32_t first;
        std::uint32_t last;
        std::memcpy(&first, source, 4);
        std::memcpy(&last, source + size - 4, 4);
        std::memcpy(target, &first, 4);
        std::memcpy(target + size - 4, &last, 4);
    } else if (size != 0) {
        target[0] = source[0];
        target[size / 2] = source[size / 2];
        target[size - 1] = source[size - 1];
    }
    made.erase(size);
    return made;
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::core

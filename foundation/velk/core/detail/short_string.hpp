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

// Copies `size` bytes, from one to two words, as the first word and the last,
// which overlap.
template <class Word>
[[gnu::always_inline]] inline void copy_by_two_words(char* target, char const* source, std::size_t size)
{
    Word first;
    Word last;
    std::memcpy(&first, source, sizeof(Word));
    std::memcpy(&last, source + size - sizeof(Word), sizeof(Word));
    std::memcpy(target, &first, sizeof(Word));
    std::memcpy(target + size - sizeof(Word), &last, sizeof(Word));
}

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
        copy_by_two_words<std::uint64_t>(target, source, size);
    } else if (size >= 4) {
        copy_by_two_words<std::uint32_t>(target, source, size);
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

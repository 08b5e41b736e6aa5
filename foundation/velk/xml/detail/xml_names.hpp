#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace velk::xml {
inline namespace v3 {
namespace detail {

// Names by the XML 1.0 (fifth edition) and namespaces rules, over UTF-8: the
// very rule libxml2's parser reads names by, so a name the tree writes reads
// back, a name read from a document writes again, and the canonical form of a
// signature takes every name the tree holds. Text that is no UTF-8 is no name.
bool is_valid_local_name(std::string_view name);
// A local name, or prefix ":" local name.
bool is_valid_qualified_name(std::string_view name);
// The same check, giving the prefix (empty when none) in the same pass.
bool is_valid_qualified_name(std::string_view name, std::string_view& prefix);

// The bytes of a word read from `at` that are ":", each as its top bit; the
// lowest one marks the first colon (a borrow may mark bytes above it).
template <class Word>
inline Word colons_in_word(char const* at)
{
    constexpr Word ones = static_cast<Word>(~Word{0}) / 0xFF;
    Word word;
    std::memcpy(&word, at, sizeof word);
    word ^= ones * 0x3A;
    return static_cast<Word>((word - ones) & ~word & (ones * 0x80));
}

// Where the ":" of a qualified name is, npos when none. Names are a few
// letters long, and every element made looks for its colon: inline, a word at
// a time (the last word overlapping the one before), without a call.
inline std::size_t colon_in(std::string_view qualified_name)
{
    char const* const data = qualified_name.data();
    std::size_t const size = qualified_name.size();
    if (size >= 8) {
        for (std::size_t index = 0;; index += 8) {
            std::size_t const at = std::min(index, size - 8);
            if (std::uint64_t const found = colons_in_word<std::uint64_t>(data + at); found != 0) {
                return at + static_cast<std::size_t>(std::countr_zero(found)) / 8;
            }
            if (at == size - 8) {
                return std::string_view::npos;
            }
        }
    }
    if (size >= 4) {
        if (std::uint32_t const found = colons_in_word<std::uint32_t>(data); found != 0) {
            return static_cast<std::size_t>(std::countr_zero(found)) / 8;
        }
        if (std::uint32_t const found = colons_in_word<std::uint32_t>(data + size - 4); found != 0) {
            return size - 4 + static_cast<std::size_t>(std::countr_zero(found)) / 8;
        }
        return std::string_view::npos;
    }
    for (std::size_t index = 0; index < size; ++index) {
        if (data[index] == ':') {
            return index;
        }
    }
    return std::string_view::npos;
}

// The part before ":" (empty when none) and the part after it.
inline std::string_view prefix_of(std::string_view qualified_name)
{
    auto const colon = colon_in(qualified_name);
    return colon == std::string_view::npos ? std::string_view() : qualified_name.substr(0, colon);
}

inline std::string_view local_part_of(std::string_view qualified_name)
{
    auto const colon = colon_in(qualified_name);
    return colon == std::string_view::npos ? qualified_name : qualified_name.substr(colon + 1);
}

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>

#include <array>
#include <cstddef>
#include <tuple>
#include <type_traits>
#include <utility>

namespace velk::core {
inline namespace v3 {
namespace result {

// One row of a category's table of codes: the number (in the type), the words
// that get_message gives for it, and the details that its creation takes.
// Each detail has a kind (detail_kinds.hpp) that says what the caller passes
// and under which names it becomes text arguments of the item; the row holds
// those names in order. A category declares every code as a named row:
//
//     static constexpr row<xml_result_category, 3, text> invalid_name{"Nome inválido ...", "name"};
//
// and a failure is raised by that name (report.hpp):
//
//     chain<xml_result_category::invalid_name>(stack, name);
//
// A row whose words are null is a code without words: it can be raised, but
// asking for its message ends the process.
template <class Category, int N, class... Kinds>
class row : public code<Category, N> {
    template <std::size_t I>
    using kind = std::tuple_element_t<I, std::tuple<Kinds...>>;

    template <class... Details, std::size_t... I>
    static constexpr bool convertible(std::index_sequence<I...>)
    {
        return (std::is_convertible_v<Details const&, typename kind<I>::parameter> && ...);
    }

    template <std::size_t... I>
    static constexpr bool optional_from(std::size_t given, std::index_sequence<I...>)
    {
        return ((I < given || kind<I>::optional) && ...);
    }

public:
    using category_type = Category;

    static constexpr std::size_t name_count = (std::size_t{0} + ... + Kinds::names);

    // Whether a call may give these details: one per kind, in order, each
    // convertible to what its kind takes; trailing details whose kind is
    // optional may be left out.
    template <class... Details>
    static constexpr bool accepts()
    {
        if constexpr (sizeof...(Details) > sizeof...(Kinds)) {
            return false;
        } else {
            return convertible<Details...>(std::index_sequence_for<Details...>{}) &&
                   optional_from(sizeof...(Details), std::index_sequence_for<Kinds...>{});
        }
    }

    template <class... Names>
        requires(sizeof...(Names) == name_count)
    constexpr row(char const* words, Names... names) : words(words), names_{names...}
    {
    }

    // Null for a code without words.
    char const* const words;

    // Stores the details on the item under the row's names.
    template <class... Details>
        requires(accepts<Details...>())
    void create(stack::item& item, Details const&... details) const
    {
        create_each(item, std::index_sequence_for<Details...>{}, details...);
    }

private:
    // Where the names of the I-th detail start.
    template <std::size_t I>
    static constexpr std::size_t first_name()
    {
        std::size_t const counts[] = {Kinds::names..., 0};
        std::size_t first = 0;
        for (std::size_t k = 0; k < I; ++k) {
            first += counts[k];
        }
        return first;
    }

    template <std::size_t... I, class... Details>
    void create_each(stack::item& item, std::index_sequence<I...>, Details const&... details) const
    {
        (kind<I>::store(item, names_.data() + first_name<I>(), details), ...);
    }

    std::array<char const*, name_count> names_;
};

// The words of a category's rows, by number, for its get_message: the rows must
// be given as codes 1, 2, 3... of one category, in order and with no gap, or
// the build fails.
template <class First, class... Rows>
consteval std::array<char const*, 1 + sizeof...(Rows)> words_by_number(First const& first, Rows const&... rows)
{
    static_assert((std::is_same_v<typename First::category_type, typename Rows::category_type> && ...),
                  "rows of one category");
    int number = 0;
    bool const in_order = ((First::value == ++number) && ... && (Rows::value == ++number));
    if (!in_order) {
        throw "the rows are not codes 1, 2, 3... in order";
    }
    return {first.words, rows.words...};
}

}  // namespace result
}  // namespace v3
}  // namespace velk::core

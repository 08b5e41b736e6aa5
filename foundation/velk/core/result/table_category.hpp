#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/category.hpp>

#include <array>
#include <cstddef>

namespace velk::core {
inline namespace v3 {
namespace result {

// A category whose messages are the words of its table of codes (row.hpp),
// indexed by code - 1. A null entry is a code without words: asking for its
// message ends the process, as for any number outside the table.
class VELK_EXPORT table_category : public category {
public:
    char const* get_name() const override { return name_; }
    char const* get_message(int code) const override
    {
        if (code < 1 || static_cast<std::size_t>(code) > count_ || words_[code - 1] == nullptr) {
            show_invalid_value_message_and_exit(code);
        }
        return words_[code - 1];
    }

protected:
    // `words` lives as long as the category: a constant of static storage.
    template <std::size_t N>
    table_category(char const* name, std::array<char const*, N> const& words)
        : name_(name), words_(words.data()), count_(N)
    {
    }

private:
    char const* name_;
    char const* const* words_;
    std::size_t count_;
};

}  // namespace result
}  // namespace v3
}  // namespace velk::core

#pragma once

#include <velk/core/export.hpp>

namespace velk::core {
inline namespace v3 {
namespace result {

// Who failed. A category holds no data: its identity is its object, reached
// through the static instance() of each concrete category. Codes start at 1.
class VELK_EXPORT category {
public:
    virtual ~category();
    virtual char const* get_name() const = 0;
    // The fixed message of a code. A number that is not a code of the
    // category is a defect and ends the process.
    virtual char const* get_message(int code) const = 0;

    bool operator==(category const& other) const { return this == &other; }

    [[noreturn]] void show_invalid_value_message_and_exit(int code) const;

protected:
    category() = default;
    category(category const&) = delete;
    category& operator=(category const&) = delete;
};

}  // namespace result
}  // namespace v3
}  // namespace velk::core

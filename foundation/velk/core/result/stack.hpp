#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/category.hpp>

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace velk::core {
inline namespace v3 {
namespace result {

// The failure report of one call chain: empty while all goes well, one item per
// reason otherwise, the latest on top. It belongs to the caller.
class VELK_EXPORT stack {
public:
    // One reason: a category, a code number and named text arguments.
    class item {
    public:
        item(category const& category, int code) : category_(&category), code_(code) {}

        category const& get_category() const { return *category_; }
        int get_value() const { return code_; }
        char const* get_message() const { return category_->get_message(code_); }

        void set_argument(std::string const& name, std::string const& value);
        // Null when the item has no argument of that name.
        std::string const* find_argument(std::string const& name) const;
        std::vector<std::pair<std::string, std::string>> const& get_arguments() const { return arguments_; }

    private:
        category const* category_;
        int code_;
        std::vector<std::pair<std::string, std::string>> arguments_;
    };

    using iterator = std::vector<item>::iterator;
    using const_iterator = std::vector<item>::const_iterator;

    stack() = default;
    stack(stack&&) noexcept = default;
    stack& operator=(stack&&) noexcept = default;
    stack(stack const&) = default;
    stack& operator=(stack const&) = default;
    ~stack() = default;

    // Adds an item on top; the reference is valid until the stack changes.
    item& push_item(category const& category, int code);

    bool has_failed() const { return !items_.empty(); }
    // Code and category of the latest item; only meaningful on a failed stack.
    int get_value() const;
    category const& get_category() const;
    // Forgives the failure.
    void reset() { items_.clear(); }

    // Items from the first pushed (bottom) to the latest (top).
    iterator begin() { return items_.begin(); }
    iterator end() { return items_.end(); }
    const_iterator begin() const { return items_.begin(); }
    const_iterator end() const { return items_.end(); }
    std::size_t size() const { return items_.size(); }
    item const& top() const { return items_.back(); }

    // Human-readable report, latest item first, one line per item:
    // "name code: message {arg=value, ...}". For logs of the caller and tests.
    std::string to_string() const;

private:
    std::vector<item> items_;
};

}  // namespace result
}  // namespace v3
}  // namespace velk::core

#pragma once

// Internal: the namespace declarations in scope while a tree of velk::xml is
// walked, by the rules document::save writes them with: an element's own
// declarations first, then its namespace and those of its prefixed attributes
// wherever the scope does not give them already. They are the declarations a
// parser finds in the saved text.

#include <velk/xml/element.hpp>

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class namespace_scope {
public:
    // One declaration; the views point into the tree being read.
    struct entry {
        std::string_view prefix;
        std::string_view uri;
        // A text of the tree found equal to uri once: the elements of a tree
        // share their namespace's text, so the next comparison is of
        // addresses only.
        mutable char const* same_text = nullptr;
    };

    std::size_t size() const { return entries_.size(); }
    void truncate(std::size_t size) { entries_.resize(size); }
    void push(entry value) { entries_.push_back(value); }

    // Pushes what `value` declares when saved: the entries from size() as it
    // was before the call on.
    void enter(velk::xml::element const& value);
    std::span<entry> since(std::size_t mark) { return std::span<entry>(entries_).subspan(mark); }

    // The innermost declaration of the prefix, or null.
    entry const* find(std::string_view prefix) const;
    // The same among the entries before `mark`: what an element's parent has
    // in scope, the element's own entries starting at mark.
    entry const* find_below(std::size_t mark, std::string_view prefix) const;

    // What is in scope: the innermost declaration of each prefix, leaving out
    // a default namespace that is undeclared (xmlns="").
    std::vector<entry> in_scope() const;

private:
    void declare_if_needed(std::size_t mark, std::string_view prefix, std::string_view uri);

    std::vector<entry> entries_;
};

// The prefix of an element's name ("" when none), from the lengths of its
// qualified and local names.
std::string_view element_prefix(velk::xml::element const& value);

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

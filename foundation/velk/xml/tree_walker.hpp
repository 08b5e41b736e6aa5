#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/cdata_section.hpp>
#include <velk/xml/element.hpp>
#include <velk/xml/text.hpp>

#include <string>
#include <vector>

namespace velk::xml {
inline namespace v3 {

// A depth-first visit of an element and its descendants, in document order.
// Derive and override what matters; the defaults visit everything and do
// nothing.
class VELK_EXPORT tree_walker {
public:
    tree_walker();
    virtual ~tree_walker();

    // Visits the element itself first. Returns false when the stack failed
    // during the visit (the visit stops there). The stack is tested after each
    // on_enter_element, so hand in one that has not failed.
    bool traverse_element(element const& root, core::result::stack& stack);

    // While a visit runs: the local names from the element where it began to
    // the current element, joined by "/", without a leading "/". Inside a text
    // node, the path of the element that holds it.
    std::string get_current_path() const;

protected:
    // Returns true to visit the element's children, false to skip them.
    // A failure pushed on the stack here ends the visit at once: no further
    // call is made, on_leave_element of the open elements included.
    virtual bool on_enter_element(element const& value, core::result::stack& stack);
    // Called after the children, and also for an element whose children were
    // skipped: every entered element is left, unless the visit failed.
    virtual void on_leave_element(element const& value);
    virtual void on_text(text const& value);
    virtual void on_cdata_section(cdata_section const& value);

private:
    bool visit(element const& value, core::result::stack& stack);

    // The local names of the elements being visited; they belong to the tree.
    std::vector<std::string const*> path_;
};

}  // namespace v3
}  // namespace velk::xml

#include <velk/xml/tree_walker.hpp>

#include <velk/xml/node.hpp>

namespace velk::xml {
inline namespace v3 {

tree_walker::tree_walker() = default;

tree_walker::~tree_walker() = default;

bool tree_walker::traverse_element(element const& root, core::result::stack& stack)
{
    path_.clear();
    bool const completed = visit(root, stack);
    path_.clear();
    return completed;
}

bool tree_walker::visit(element const& value, core::result::stack& stack)
{
    path_.push_back(&value.get_name());
    bool const enter = on_enter_element(value, stack);
    if (stack.has_failed()) {
        return false;
    }
    if (enter) {
        for (node const& child : value.get_node_range()) {
            if (element const* nested = child.as_element()) {
                if (!visit(*nested, stack)) {
                    return false;
                }
            } else if (text const* contents = child.as_text()) {
                on_text(*contents);
            } else if (cdata_section const* section = child.as_cdata_section()) {
                on_cdata_section(*section);
            }
        }
    }
    on_leave_element(value);
    path_.pop_back();
    return true;
}

std::string tree_walker::get_current_path() const
{
    std::string path;
    for (std::string const* name : path_) {
        if (!path.empty()) {
            path += '/';
        }
        path += *name;
    }
    return path;
}

bool tree_walker::on_enter_element(element const&, core::result::stack&)
{
    return true;
}

void tree_walker::on_leave_element(element const&) {}

void tree_walker::on_text(text const&) {}

void tree_walker::on_cdata_section(cdata_section const&) {}

}  // namespace v3
}  // namespace velk::xml

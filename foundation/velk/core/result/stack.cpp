#include <velk/core/result/stack.hpp>

#include <velk/core/fatal.hpp>

namespace velk::core {
inline namespace v3 {
namespace result {

void stack::item::set_argument(std::string const& name, std::string const& value)
{
    arguments_.emplace_back(name, value);
}

std::string const* stack::item::find_argument(std::string const& name) const
{
    for (auto const& argument : arguments_) {
        if (argument.first == name) {
            return &argument.second;
        }
    }
    return nullptr;
}

stack::item& stack::push_item(category const& category, int code)
{
    return items_.emplace_back(category, code);
}

int stack::get_value() const
{
    if (items_.empty()) {
        fatal_exit("[velk::core::result::stack]: get_value() numa pilha sem falha");
    }
    return items_.back().get_value();
}

category const& stack::get_category() const
{
    if (items_.empty()) {
        fatal_exit("[velk::core::result::stack]: get_category() numa pilha sem falha");
    }
    return items_.back().get_category();
}

std::string stack::to_string() const
{
    std::string text;
    for (auto it = items_.rbegin(); it != items_.rend(); ++it) {
        if (!text.empty()) {
            text += '\n';
        }
        text += it->get_category().get_name();
        text += ' ';
        text += std::to_string(it->get_value());
        text += ": ";
        text += it->get_message();
        if (!it->get_arguments().empty()) {
            text += " {";
            bool first = true;
            for (auto const& [name, value] : it->get_arguments()) {
                if (!first) {
                    text += ", ";
                }
                first = false;
                text += name;
                text += '=';
                text += value;
            }
            text += '}';
        }
    }
    return text;
}

}  // namespace result
}  // namespace v3
}  // namespace velk::core

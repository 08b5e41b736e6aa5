#include <velk/core/result/category.hpp>

#include <velk/core/fatal.hpp>

#include <string>

namespace velk::core {
inline namespace v3 {
namespace result {

category::~category() = default;

void category::show_invalid_value_message_and_exit(int code) const
{
    std::string const text = std::string("[velk::core::result::category]: código ") + std::to_string(code) +
                             " sem mensagem na categoria '" + get_name() + "'";
    fatal_exit(text.c_str());
}

}  // namespace result
}  // namespace v3
}  // namespace velk::core

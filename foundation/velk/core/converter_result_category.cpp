#include <velk/core/converter_result_category.hpp>

namespace velk::core {
inline namespace v3 {

converter_result_category const& converter_result_category::instance()
{
    static converter_result_category const category;
    return category;
}

char const* converter_result_category::get_name() const
{
    return "core-converter";
}

char const* converter_result_category::get_message(int code) const
{
    switch (code) {
    case 1:
        return "Parâmetro de conversão inválido";
    case 2:
        return "O valor não possui representação válida";
    default:
        show_invalid_value_message_and_exit(code);
    }
}

}  // namespace v3
}  // namespace velk::core

#include <velk/core/converter_result_category.hpp>

namespace velk::core {
inline namespace v3 {

namespace {

char const* const messages[] = {
    "Parâmetro de conversão inválido",
    "O valor não possui representação válida",
};

}  // namespace

converter_result_category::converter_result_category() : table_category("core-converter", messages) {}

converter_result_category const& converter_result_category::instance()
{
    static converter_result_category const category;
    return category;
}

}  // namespace v3
}  // namespace velk::core

#include <velk/xml/xml_result_category.hpp>

namespace velk::xml {
inline namespace v3 {

xml_result_category const& xml_result_category::instance()
{
    static xml_result_category const category;
    return category;
}

char const* xml_result_category::get_name() const
{
    return "velk-xml";
}

char const* xml_result_category::get_message(int code) const
{
    static char const* const messages[] = {
        "O documento XML está malformado",
        "O documento XML declara um DTD, o que não é aceito",
        "Nome inválido para elemento ou atributo",
        "Atributo já existente no elemento",
        "Prefixo de namespace já declarado no elemento",
        "O documento já possui um elemento raiz",
        "O documento não possui elemento raiz",
        "Falha na canonicalização do XML",
    };
    if (code < 1 || code > static_cast<int>(sizeof messages / sizeof messages[0])) {
        show_invalid_value_message_and_exit(code);
    }
    return messages[code - 1];
}

void xml_result_category::create(core::result::stack::item& item, core::result::code<xml_result_category, 1>,
                                 std::string const& description, std::string const& line) const
{
    item.set_argument("description", description);
    item.set_argument("line", line);
}

void xml_result_category::create(core::result::stack::item& item, core::result::code<xml_result_category, 3>,
                                 std::string const& name) const
{
    item.set_argument("name", name);
}

void xml_result_category::create(core::result::stack::item& item, core::result::code<xml_result_category, 4>,
                                 std::string const& name) const
{
    item.set_argument("name", name);
}

void xml_result_category::create(core::result::stack::item& item, core::result::code<xml_result_category, 5>,
                                 std::string const& prefix) const
{
    item.set_argument("prefix", prefix);
}

void xml_result_category::create(core::result::stack::item& item, core::result::code<xml_result_category, 8>,
                                 std::string const& description) const
{
    item.set_argument("description", description);
}

}  // namespace v3
}  // namespace velk::xml

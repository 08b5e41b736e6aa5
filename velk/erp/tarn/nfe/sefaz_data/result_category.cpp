#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

namespace {

char const* const messages[] = {
    "Um elemento do xml não foi encontrado",
    "O valor do element está inválido",
    "O valor do atributo do element está inválido",
    "Um atributo do xml não foi encontrado",
    "O documento xml está inválido",
    "A versão informada difere da versão esperada",
    "Nenhum documento foi encontrado",
    "O tipo de evento diferente do esperado",
    "Requisição possuí valor inválido",
    "Valor do text do element é inválido",
    "Múltiplos eventos no XML não são suportados",
};

}  // namespace

result_category::result_category() : table_category("erp-tarn-sefaz-data", messages) {}

result_category const& result_category::instance()
{
    static result_category const category;
    return category;
}

void result_category::create(item& target, code<1>, std::string const& element_name) const
{
    target.set_argument("element-name", element_name);
}

void result_category::create(item& target, code<2>, std::string const& element_name,
                             std::string const& element_value) const
{
    target.set_argument("element-name", element_name);
    target.set_argument("element-value", element_value);
}

void result_category::create(item& target, code<2>, std::string const& element_name) const
{
    target.set_argument("element-name", element_name);
}

void result_category::create(item& target, code<3>, std::string const& attribute_name,
                             std::string const& attribute_value) const
{
    target.set_argument("attribute-name", attribute_name);
    target.set_argument("attribute-value", attribute_value);
}

void result_category::create(item& target, code<3>, std::string const& attribute_name) const
{
    target.set_argument("attribute-name", attribute_name);
}

void result_category::create(item& target, code<4>, std::string const& attribute_name) const
{
    target.set_argument("attribute-name", attribute_name);
}

void result_category::create(item& target, code<8>, std::string const& expected, std::string const& received) const
{
    target.set_argument("expected", expected);
    target.set_argument("received", received);
}

void result_category::create(item& target, code<9>, std::string const& request_name,
                             std::string const& field_name) const
{
    target.set_argument("request-name", request_name);
    target.set_argument("field-name", field_name);
}

void result_category::create(item& target, code<10>, std::string const& element_name) const
{
    target.set_argument("element-name", element_name);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data

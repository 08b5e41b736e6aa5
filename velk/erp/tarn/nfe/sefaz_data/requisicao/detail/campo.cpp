#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail {

namespace {

bool refuse(char const* request_name, char const* field_name, core::result::stack& stack)
{
    core::result::chain<core::converter_result_category::invalid_value>(stack);
    core::result::chain<result_category::valor_requisicao_invalido>(stack, request_name, field_name);
    return false;
}

}  // namespace

bool escrever_ambiente(std::string& destino, ambiente value, char const* request_name, core::result::stack& stack)
{
    int const codigo = get_codigo_ambiente(value);
    if (codigo == 0) {
        return refuse(request_name, "ambiente", stack);
    }
    return escrever_campo(destino, codigo, request_name, "ambiente", stack);
}

bool escrever_numero(std::string& destino, unsigned long long value, unsigned digits, bool exact,
                     char const* request_name, char const* field_name, core::result::stack& stack)
{
    std::string text;
    if (!escrever_campo(text, value, request_name, field_name, stack)) {
        return false;
    }
    if (exact && text.size() > digits) {
        return refuse(request_name, field_name, stack);
    }
    if (text.size() < digits) {
        destino.append(digits - text.size(), '0');
    }
    destino += text;
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail

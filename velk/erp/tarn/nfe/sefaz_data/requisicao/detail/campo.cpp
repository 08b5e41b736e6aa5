#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

#include <velk/erp/tarn/detail/utf8.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail {

bool recusar(char const* request_name, char const* field_name, core::result::stack& stack)
{
    core::result::chain<core::converter_result_category::invalid_value>(stack);
    core::result::chain<result_category::valor_requisicao_invalido>(stack, request_name, field_name);
    return false;
}

bool escrever_ambiente(std::string& destino, ambiente value, char const* request_name, core::result::stack& stack)
{
    return escrever_codigo(destino, get_codigo_ambiente(value), 0, request_name, "ambiente", stack);
}

bool escrever_numero(std::string& destino, unsigned long long value, unsigned min_digits, unsigned max_digits,
                     char const* request_name, char const* field_name, core::result::stack& stack)
{
    std::string text;
    if (!escrever_campo(text, value, request_name, field_name, stack)) {
        return false;
    }
    if (max_digits != sem_limite && text.size() > max_digits) {
        return recusar(request_name, field_name, stack);
    }
    if (text.size() < min_digits) {
        destino.append(min_digits - text.size(), '0');
    }
    destino += text;
    return true;
}

bool escrever_codigo(std::string& destino, int codigo, unsigned min_digits, char const* request_name,
                     char const* field_name, core::result::stack& stack)
{
    if (codigo <= 0) {
        return recusar(request_name, field_name, stack);
    }
    return escrever_numero(destino, static_cast<unsigned long long>(codigo), min_digits, sem_limite, request_name,
                           field_name, stack);
}

bool escrever_texto(std::string& destino, std::string const& value, unsigned min_chars, unsigned max_chars,
                    char const* request_name, char const* field_name, core::result::stack& stack)
{
    std::size_t chars = 0;
    char32_t point = 0;
    for (std::size_t at = 0; at < value.size(); ++chars) {
        if (!tarn::detail::ler_utf8(value, at, point) || point < U' ' || point > 0xFF) {
            return recusar(request_name, field_name, stack);
        }
    }
    if (chars < min_chars || chars > max_chars || value.empty() || value.front() == ' ' || value.back() == ' ') {
        return recusar(request_name, field_name, stack);
    }
    destino += value;
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao::detail

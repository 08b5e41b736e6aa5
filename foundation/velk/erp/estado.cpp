#include <velk/erp/estado.hpp>

#include <array>

namespace velk::erp {
inline namespace v4 {

namespace {

struct estado_row {
    char const* uf;
    int codigo_ibge;
};

// Indexed by the enumerator.
constexpr std::array<estado_row, quantidade_estados> estados = {{
    {"AC", 12}, {"AL", 27}, {"AP", 16}, {"AM", 13}, {"BA", 29}, {"CE", 23}, {"DF", 53}, {"ES", 32}, {"GO", 52},
    {"MA", 21}, {"MS", 50}, {"MT", 51}, {"MG", 31}, {"PA", 15}, {"PB", 25}, {"PR", 41}, {"PE", 26}, {"PI", 22},
    {"RJ", 33}, {"RN", 24}, {"RS", 43}, {"RO", 11}, {"RR", 14}, {"SC", 42}, {"SP", 35}, {"SE", 28}, {"TO", 17},
}};

bool is_estado(estado value)
{
    int const index = static_cast<int>(value);
    return index >= 0 && index < quantidade_estados;
}

}  // namespace

std::string get_uf(estado value)
{
    return is_estado(value) ? estados[static_cast<std::size_t>(value)].uf : "";
}

int get_codigo_ibge(estado value)
{
    return is_estado(value) ? estados[static_cast<std::size_t>(value)].codigo_ibge : 0;
}

bool estado_from_text(std::string_view text, estado& value)
{
    if (text.size() != 2) {
        return false;
    }
    bool const numeric = text[0] >= '0' && text[0] <= '9' && text[1] >= '0' && text[1] <= '9';
    int const code = numeric ? (text[0] - '0') * 10 + (text[1] - '0') : -1;
    for (std::size_t index = 0; index < estados.size(); ++index) {
        if (numeric ? estados[index].codigo_ibge == code : text == estados[index].uf) {
            value = static_cast<estado>(index);
            return true;
        }
    }
    return false;
}

}  // namespace v4
}  // namespace velk::erp

namespace velk::core {
inline namespace v3 {

converter_status chars_converter<erp::estado>::make_chars(char* buffer, unsigned long& size, erp::estado value)
{
    int const code = erp::get_codigo_ibge(value);
    if (code == 0) {
        return converter_status::invalid_value;
    }
    if (size < 2) {
        size = 2;
        return converter_status::buffer_too_small;
    }
    buffer[0] = static_cast<char>('0' + code / 10);
    buffer[1] = static_cast<char>('0' + code % 10);
    size = 2;
    return converter_status::done;
}

converter_status value_converter<erp::estado>::make_value(erp::estado& value, char const* text, unsigned long size)
{
    return erp::estado_from_text(std::string_view(text, size), value) ? converter_status::done
                                                                     : converter_status::invalid_value;
}

}  // namespace v3
}  // namespace velk::core

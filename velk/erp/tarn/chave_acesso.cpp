#include <velk/erp/tarn/chave_acesso.hpp>

#include <cstring>

namespace velk::erp::inline v4::tarn {

chave_acesso::chave_acesso() : data_(std::make_unique<data>()) {}
chave_acesso::chave_acesso(data&& fields) : data_(std::make_unique<data>(std::move(fields))) {}
chave_acesso::chave_acesso(chave_acesso const& other) : data_(std::make_unique<data>(*other.data_)) {}
chave_acesso::chave_acesso(chave_acesso&& other) noexcept = default;
chave_acesso& chave_acesso::operator=(chave_acesso const& other)
{
    if (this != &other) {
        data_ = std::make_unique<data>(*other.data_);
    }
    return *this;
}
chave_acesso& chave_acesso::operator=(chave_acesso&& other) noexcept = default;
chave_acesso::~chave_acesso() = default;

estado chave_acesso::get_estado() const { return data_->estado; }
std::uint16_t chave_acesso::get_ano_emissao() const { return data_->ano_emissao; }
std::uint16_t chave_acesso::get_mes_emissao() const { return data_->mes_emissao; }
std::string chave_acesso::get_cnpj() const { return data_->cnpj; }
modelo chave_acesso::get_modelo_chave() const { return data_->modelo_chave; }
std::uint32_t chave_acesso::get_serie() const { return data_->serie; }
std::uint64_t chave_acesso::get_numero_nfe() const { return data_->numero_nfe; }
fiscal::tipo_emissao chave_acesso::get_tipo_emissao() const { return data_->tipo_emissao; }
std::uint64_t chave_acesso::get_codigo_numerico() const { return data_->codigo_numerico; }
std::uint16_t chave_acesso::get_digito_verificador() const { return data_->digito_verificador; }

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

namespace {

constexpr unsigned long key_length = 44;

// Writes value in exactly `digits` decimal digits, zero-filled; false when it
// needs more.
bool put_fixed(char*& out, std::uint64_t value, int digits)
{
    for (int index = digits - 1; index >= 0; --index) {
        out[index] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    out += digits;
    return value == 0;
}

// Plain decimal digits, no fill.
void put_plain(char*& out, std::uint64_t value)
{
    char digits[20];
    int count = 0;
    do {
        digits[count++] = static_cast<char>('0' + value % 10);
        value /= 10;
    } while (value != 0);
    while (count > 0) {
        *out++ = digits[--count];
    }
}

std::uint64_t digits_value(char const* text, int count)
{
    std::uint64_t value = 0;
    for (int index = 0; index < count; ++index) {
        value = value * 10 + static_cast<std::uint64_t>(text[index] - '0');
    }
    return value;
}

}  // namespace

converter_status chars_converter<erp::tarn::chave_acesso>::make_chars(char* buffer, unsigned long& size,
                                                                      erp::tarn::chave_acesso const& value)
{
    if (size < key_length) {
        size = key_length;
        return converter_status::buffer_too_small;
    }
    // The fields are written in order; a generous local buffer keeps a plain
    // decimal field of unexpected width from running off the end.
    char text[key_length + 64];
    char* out = text;
    put_plain(out, static_cast<std::uint64_t>(erp::get_codigo_ibge(value.get_estado())));
    if (!put_fixed(out, value.get_ano_emissao(), 2) || !put_fixed(out, value.get_mes_emissao(), 2)) {
        return converter_status::invalid_value;
    }
    std::string const cnpj = value.get_cnpj();
    std::memcpy(out, cnpj.data(), std::min<std::size_t>(cnpj.size(), 14));
    if (cnpj.size() < 14) {
        std::memset(out + cnpj.size(), '0', 14 - cnpj.size());
    }
    out += 14;
    put_plain(out, static_cast<std::uint64_t>(erp::tarn::get_codigo_modelo(value.get_modelo_chave())));
    if (!put_fixed(out, value.get_serie(), 3) || !put_fixed(out, value.get_numero_nfe(), 9)) {
        return converter_status::invalid_value;
    }
    unsigned long emission_size = 1;
    converter_status const emission =
        chars_converter<erp::fiscal::tipo_emissao>::make_chars(out, emission_size, value.get_tipo_emissao());
    if (emission != converter_status::done) {
        return emission;
    }
    out += emission_size;
    // The check digit is one digit whatever its value: the key is never
    // longer than 44, and a digit of 10 or more is no key's digit.
    if (!put_fixed(out, value.get_codigo_numerico(), 8) || !put_fixed(out, value.get_digito_verificador(), 1)) {
        return converter_status::invalid_value;
    }
    unsigned long const length = static_cast<unsigned long>(out - text);
    if (length > size) {
        size = length;
        return converter_status::buffer_too_small;
    }
    std::memcpy(buffer, text, length);
    size = length;
    return converter_status::done;
}

converter_status value_converter<erp::tarn::chave_acesso>::make_value(erp::tarn::chave_acesso& value,
                                                                      char const* text, unsigned long size)
{
    if (size != key_length) {
        return converter_status::invalid_value;
    }
    for (unsigned long index = 0; index < key_length; ++index) {
        if (text[index] < '0' || text[index] > '9') {
            return converter_status::invalid_value;
        }
    }
    erp::tarn::chave_acesso::data& fields = *value.data_;
    converter_status status = value_converter<erp::estado>::make_value(fields.estado, text, 2);
    if (status != converter_status::done) {
        return status;
    }
    fields.ano_emissao = static_cast<std::uint16_t>(digits_value(text + 2, 2));
    fields.mes_emissao = static_cast<std::uint16_t>(digits_value(text + 4, 2));
    fields.cnpj.assign(text + 6, 14);
    status = value_converter<erp::tarn::modelo>::make_value(fields.modelo_chave, text + 20, 2);
    if (status != converter_status::done) {
        return status;
    }
    fields.serie = static_cast<std::uint32_t>(digits_value(text + 22, 3));
    fields.numero_nfe = digits_value(text + 25, 9);
    status = value_converter<erp::fiscal::tipo_emissao>::make_value(fields.tipo_emissao, text + 34, 1);
    if (status != converter_status::done) {
        return status;
    }
    fields.codigo_numerico = digits_value(text + 35, 8);
    fields.digito_verificador = static_cast<std::uint16_t>(digits_value(text + 43, 1));
    return converter_status::done;
}

}  // namespace v3
}  // namespace velk::core

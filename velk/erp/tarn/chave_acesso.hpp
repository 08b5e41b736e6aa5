#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/fiscal/tipo_emissao.hpp>
#include <velk/erp/tarn/modelo.hpp>

#include <cstdint>
#include <memory>
#include <string>

namespace velk::erp::inline v4::tarn {

// The 44-digit access key of an NF-e or NFC-e, split into its fields. A plain
// carrier: it neither computes nor tests the check digit and relates no field
// to another; the digit is kept as the key came.
class VELK_EXPORT chave_acesso {
public:
    struct data {
        velk::erp::estado estado = velk::erp::estado::ac;          // digits 0-1: IBGE code
        std::uint16_t ano_emissao = 0;                             // digits 2-3: last two digits of the year
        std::uint16_t mes_emissao = 0;                             // digits 4-5
        std::string cnpj;                                          // digits 6-19, 14 characters
        modelo modelo_chave = modelo::nfe;                         // digits 20-21
        std::uint32_t serie = 0;                                   // digits 22-24
        std::uint64_t numero_nfe = 0;                              // digits 25-33
        fiscal::tipo_emissao tipo_emissao = fiscal::tipo_emissao::normal;  // digit 34
        std::uint64_t codigo_numerico = 0;                         // digits 35-42
        std::uint16_t digito_verificador = 0;                      // digit 43
    };

    chave_acesso();
    explicit chave_acesso(data&& fields);
    chave_acesso(chave_acesso const& other);
    chave_acesso(chave_acesso&& other) noexcept;
    chave_acesso& operator=(chave_acesso const& other);
    chave_acesso& operator=(chave_acesso&& other) noexcept;
    ~chave_acesso();

    estado get_estado() const;
    std::uint16_t get_ano_emissao() const;
    std::uint16_t get_mes_emissao() const;
    std::string get_cnpj() const;
    modelo get_modelo_chave() const;
    std::uint32_t get_serie() const;
    std::uint64_t get_numero_nfe() const;
    fiscal::tipo_emissao get_tipo_emissao() const;
    std::uint64_t get_codigo_numerico() const;
    std::uint16_t get_digito_verificador() const;

private:
    friend struct core::value_converter<chave_acesso>;
    std::unique_ptr<data> data_;
};

}  // namespace velk::erp::inline v4::tarn

namespace velk::core {
inline namespace v3 {

// The 44 digits. Needs 44 bytes of room; a field wider than its digits (a
// check digit above 9 among them), or an emission type without a digit, has
// no text. The cnpj field is copied as 14
// bytes: it is expected to hold 14 characters.
template <>
struct VELK_EXPORT chars_converter<erp::tarn::chave_acesso> {
    static converter_status make_chars(char* buffer, unsigned long& size, erp::tarn::chave_acesso const& value);
};

// Reads exactly 44 decimal digits. The state pair, the model pair and the
// emission type digit must be known values; month and check digit are not
// tested. A failed read leaves the fields read so far in the target.
template <>
struct VELK_EXPORT value_converter<erp::tarn::chave_acesso> {
    static converter_status make_value(erp::tarn::chave_acesso& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core

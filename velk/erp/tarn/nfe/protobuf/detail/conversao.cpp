#include <velk/erp/tarn/nfe/protobuf/detail/conversao.hpp>

#include <velk/core/converter.hpp>

#include <cctype>
#include <cstdint>
#include <limits>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

constexpr std::uint32_t maior_int = static_cast<std::uint32_t>(std::numeric_limits<int>::max());

// Blanks, an optional sign and the digits that follow, as far as they go; the
// magnitude saturates. False when no digit follows.
bool ler_inteiro(std::string const& texto, bool& negativo, std::uint64_t& magnitude, bool& excedeu)
{
    std::size_t posicao = 0;
    while (posicao < texto.size() && std::isspace(static_cast<unsigned char>(texto[posicao]))) {
        ++posicao;
    }
    negativo = false;
    if (posicao < texto.size() && (texto[posicao] == '-' || texto[posicao] == '+')) {
        negativo = texto[posicao] == '-';
        ++posicao;
    }
    std::size_t const inicio = posicao;
    magnitude = 0;
    excedeu = false;
    for (; posicao < texto.size() && texto[posicao] >= '0' && texto[posicao] <= '9'; ++posicao) {
        auto const digito = static_cast<std::uint64_t>(texto[posicao] - '0');
        if (magnitude > (std::numeric_limits<std::uint64_t>::max() - digito) / 10) {
            excedeu = true;
        } else {
            magnitude = magnitude * 10 + digito;
        }
    }
    return posicao > inicio;
}

}  // namespace

core::date date_de(mensagem::Date const& valor)
{
    return core::date(valor.day(), valor.month(), static_cast<int>(valor.year() > maior_int ? maior_int : valor.year()));
}

core::datetime datetime_de(mensagem::DateTime const& valor)
{
    mensagem::Time const& hora = valor.time();
    auto const horas = static_cast<int>(hora.hour() > maior_int ? maior_int : hora.hour());
    return core::datetime(date_de(valor.date()),
                          core::time(horas, hora.minute(), hora.seconds(), hora.miliseconds()), valor.offset());
}

bool numero_de_texto(std::string const& texto, std::uint16_t& numero)
{
    bool negativo = false;
    bool excedeu = false;
    std::uint64_t magnitude = 0;
    if (!ler_inteiro(texto, negativo, magnitude, excedeu) || excedeu ||
        magnitude > (negativo ? maior_int + std::uint64_t{1} : maior_int)) {
        return false;
    }
    numero = negativo ? 0 : limitado<std::uint16_t>(magnitude);
    return true;
}

bool numero_longo_de_texto(std::string const& texto, std::uint64_t& numero)
{
    bool negativo = false;
    bool excedeu = false;
    std::uint64_t magnitude = 0;
    if (!ler_inteiro(texto, negativo, magnitude, excedeu) || excedeu) {
        return false;
    }
    numero = negativo ? 0 - magnitude : magnitude;
    return true;
}

bool documento_de_texto(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    return core::read_value(numero, texto, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/detail/digits.hpp>
#include <velk/core/detail/short_string.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <utility>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The text of a value by its converter. When the converter refuses the value,
// its failure is on the stack, and the tag goes on top of it.
template <class Valor>
bool texto_convertido(std::string_view tag, Valor const& valor, std::string& texto, core::result::stack& stack)
{
    texto = core::make_string(valor, stack);
    if (stack.has_failed()) {
        core::result::chain<sefaz_data::result_category::texto_elemento_invalido>(stack, std::string(tag));
        return false;
    }
    return true;
}

// The element with its text, copied or moved into it as given.
template <class Texto>
bool escrever_texto(xml::element& pai, std::string_view tag, Texto&& valor)
{
    xml::element& elemento = pai.append_element(tag);
    if (!valor.empty()) {
        elemento.append_text(std::forward<Texto>(valor));
    }
    return true;
}

}  // namespace

bool txt(xml::element& pai, std::string_view tag, std::string const& valor, core::result::stack&)
{
    return escrever_texto(pai, tag, valor);
}

bool txt(xml::element& pai, std::string_view tag, std::string&& valor, core::result::stack&)
{
    return escrever_texto(pai, tag, std::move(valor));
}

bool u(xml::element& pai, std::string_view tag, std::uint64_t valor, core::result::stack& stack,
       unsigned int largura)
{
    // The digits written from the last one back on a bed of zeros, which
    // gives the fill of the width; a wider width is filled apart.
    char digitos[32];
    std::memset(digitos, '0', sizeof digitos);
    char* const fim = std::end(digitos);
    char* const inicio = valor == 0 ? fim - 1 : core::detail::write_digits(valor, fim);
    std::size_t const tamanho = static_cast<std::size_t>(fim - inicio);
    if (largura <= sizeof digitos) {
        std::size_t const escritos = std::max<std::size_t>(tamanho, largura);
        return txt(pai, tag, core::detail::short_string(std::string_view(fim - escritos, escritos)), stack);
    }
    std::string texto(largura - tamanho, '0');
    texto.append(inicio, fim);
    return txt(pai, tag, std::move(texto), stack);
}

bool d(xml::element& pai, std::string_view tag, core::decimal const& valor, core::result::stack& stack,
       unsigned int casas)
{
    return txt(pai, tag, valor.to_string(casas, '.'), stack);
}

bool dh(xml::element& pai, std::string_view tag, core::datetime const& valor, core::result::stack& stack)
{
    std::string texto;
    return texto_convertido(tag, valor, texto, stack) && txt(pai, tag, std::move(texto), stack);
}

bool dt(xml::element& pai, std::string_view tag, core::date const& valor, core::result::stack& stack)
{
    std::string texto;
    return texto_convertido(tag, valor, texto, stack) && txt(pai, tag, std::move(texto), stack);
}

bool cnpj(xml::element& pai, std::uint64_t valor, core::result::stack& stack)
{
    return u(pai, "CNPJ", valor, stack, 14);
}

bool cpf(xml::element& pai, std::uint64_t valor, core::result::stack& stack)
{
    return u(pai, "CPF", valor, stack, 11);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

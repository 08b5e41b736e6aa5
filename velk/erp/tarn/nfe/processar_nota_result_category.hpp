#pragma once

#include <velk/core/result/code.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/core/result/table_category.hpp>
#include <velk/core/text_formatter.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe {

// Refusals of the values of a fiscal note while its document is generated
// ("tarn-nfe-nota-fiscal"), in every layout and from every source. The words
// of a code name the kind of value refused; the detail travels in the item's
// argument "value": the text refused, the raw number of an enumeration beyond
// its range, or a sentence that names the missing tag. Codes 79 and 80 have
// no words.
class processar_nota_result_category final : public core::result::table_category {
public:
    // What the argument "value" of a code holds.
    enum class argumento { nenhum, texto, numero };

    static constexpr int ultimo_codigo = 81;

    static processar_nota_result_category const& instance();

    static constexpr argumento get_argumento(int code)
    {
        return code >= 1 && code <= ultimo_codigo ? argumentos[code] : argumento::nenhum;
    }

    template <int N>
        requires(get_argumento(N) == argumento::texto)
    void create(core::result::stack::item& item, core::result::code<processar_nota_result_category, N>,
                std::string const& value) const
    {
        item.set_argument("value", value);
    }

    template <int N>
        requires(get_argumento(N) == argumento::numero)
    void create(core::result::stack::item& item, core::result::code<processar_nota_result_category, N>,
                unsigned int value) const
    {
        item.set_argument("value", core::text_formatter::format("{0}", value));
    }

    template <int N>
        requires(N >= 1 && N <= ultimo_codigo && get_argumento(N) == argumento::nenhum)
    void create(core::result::stack::item&, core::result::code<processar_nota_result_category, N>) const
    {
    }

private:
    processar_nota_result_category();

    using enum argumento;

    // By code number; index 0 is no code.
    static constexpr argumento argumentos[ultimo_codigo + 1] = {
        nenhum, texto, texto, nenhum, texto, nenhum, texto, texto,  // 0-7
        texto, nenhum, texto, texto, nenhum, texto, texto, nenhum,  // 8-15
        numero, numero, numero, numero, numero, numero, numero, numero,  // 16-23
        numero, numero, numero, numero, numero, numero, numero, numero,  // 24-31
        numero, numero, numero, numero, numero, numero, numero, numero,  // 32-39
        numero, numero, numero, numero, numero, numero, numero, texto,  // 40-47
        texto, texto, texto, texto, texto, texto, texto, texto,  // 48-55
        texto, texto, texto, texto, texto, texto, texto, texto,  // 56-63
        numero, nenhum, nenhum, texto, texto, texto, texto, texto,  // 64-71
        texto, texto, texto, texto, texto, numero, numero, nenhum,  // 72-79
        nenhum, numero,  // 80-81
    };
};

// A required base of calculation is missing: code 47, with the sentence that
// names the tag, as the only item of the stack.
void obrigatorio_base(core::result::stack& stack, std::string const& mensagem);

// A required tax value is missing: code 55, as obrigatorio_base.
void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem);

}  // namespace velk::erp::inline v4::tarn::nfe

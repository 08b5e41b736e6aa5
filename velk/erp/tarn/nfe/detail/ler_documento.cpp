#include <velk/erp/tarn/nfe/detail/ler_documento.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/category.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/report.hpp>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

// Failures of the document readers of this file; no one else raises them.
class internal_result_category final : public core::result::category {
public:
    static internal_result_category const& instance()
    {
        static internal_result_category const category;
        return category;
    }

    char const* get_name() const override { return "internal-errors"; }

    char const* get_message(int code) const override
    {
        static char const* const mensagens[] = {
            "O CPF informado é inválido",
            "O CNPJ informado é inválido",
            "O indicador estrangeiro informado é inválido",
        };
        if (code < 1 || code > 3) {
            show_invalid_value_message_and_exit(code);
        }
        return mensagens[code - 1];
    }

    template <int N>
    void create(core::result::stack::item&, core::result::code<internal_result_category, N>) const
    {
    }

private:
    internal_result_category() = default;
};

template <int Codigo>
bool ler_numero_documento(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    std::uint64_t lido = 0;
    if (!core::read_value(lido, texto, stack)) {
        core::result::chain<internal_result_category, Codigo>(stack);
        return false;
    }
    numero = lido;
    return true;
}

}  // namespace

bool ler_cpf(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    return ler_numero_documento<1>(texto, numero, stack);
}

bool ler_cnpj(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    return ler_numero_documento<2>(texto, numero, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

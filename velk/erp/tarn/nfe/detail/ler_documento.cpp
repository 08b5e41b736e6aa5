#include <velk/erp/tarn/nfe/detail/ler_documento.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

// Failures of the document readers of this file; no one else raises them.
class internal_result_category final : public core::result::table_category {
public:
    template <int N>
    using row = core::result::row<internal_result_category, N>;

    static internal_result_category const& instance()
    {
        static internal_result_category const category;
        return category;
    }

    // Number, name and words; no code has details.
    static constexpr row<1> cpf_invalido{"O CPF informado é inválido"};
    static constexpr row<2> cnpj_invalido{"O CNPJ informado é inválido"};
    static constexpr row<3> estrangeiro_invalido{"O indicador estrangeiro informado é inválido"};

private:
    internal_result_category();
};

constexpr auto palavras =
    core::result::words_by_number(internal_result_category::cpf_invalido, internal_result_category::cnpj_invalido,
                                  internal_result_category::estrangeiro_invalido);

internal_result_category::internal_result_category() : table_category("internal-errors", palavras) {}

template <auto const& Codigo>
bool ler_numero_documento(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    std::uint64_t lido = 0;
    if (!core::read_value(lido, texto, stack)) {
        core::result::chain<Codigo>(stack);
        return false;
    }
    numero = lido;
    return true;
}

}  // namespace

bool ler_cpf(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    return ler_numero_documento<internal_result_category::cpf_invalido>(texto, numero, stack);
}

bool ler_cnpj(std::string const& texto, std::uint64_t& numero, core::result::stack& stack)
{
    return ler_numero_documento<internal_result_category::cnpj_invalido>(texto, numero, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

#include <velk/erp/tarn/nfe/detail/ler_documento.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/code.hpp>
#include <velk/core/result/report.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

char const* const mensagens[] = {
    "O CPF informado é inválido",
    "O CNPJ informado é inválido",
    "O indicador estrangeiro informado é inválido",
};

// Failures of the document readers of this file; no one else raises them.
class internal_result_category final : public core::result::table_category {
public:
    static internal_result_category const& instance()
    {
        static internal_result_category const category;
        return category;
    }

    template <int N>
    void create(core::result::stack::item&, core::result::code<internal_result_category, N>) const
    {
    }

private:
    internal_result_category() : table_category("internal-errors", mensagens) {}
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

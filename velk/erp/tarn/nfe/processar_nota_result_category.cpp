#include <velk/erp/tarn/nfe/processar_nota_result_category.hpp>

#include <velk/core/result/report.hpp>

namespace velk::erp::inline v4::tarn::nfe {

processar_nota_result_category const& processar_nota_result_category::instance()
{
    static processar_nota_result_category const category;
    return category;
}

char const* processar_nota_result_category::get_name() const
{
    return "tarn-nfe-nota-fiscal";
}

char const* processar_nota_result_category::get_message(int code) const
{
    if (code < 1 || code > ultimo_codigo || codigos[code].palavras == nullptr) {
        show_invalid_value_message_and_exit(code);
    }
    return codigos[code].palavras;
}

void obrigatorio_base(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<processar_nota_result_category, 47>(stack, mensagem);
}

void obrigatorio_valor(core::result::stack& stack, std::string const& mensagem)
{
    core::result::fresh<processar_nota_result_category, 55>(stack, mensagem);
}

}  // namespace velk::erp::inline v4::tarn::nfe

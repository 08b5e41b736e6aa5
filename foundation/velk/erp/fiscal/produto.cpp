#include <velk/erp/fiscal/produto.hpp>

#include <variant>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

core::optional<grupo_tributacao_icms> produto::get_grupo_tributacao_icms() const
{
    if (auto const* icms = std::get_if<grupo_tributacao_icms>(&tributacao_.base())) {
        return *icms;
    }
    return {};
}

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

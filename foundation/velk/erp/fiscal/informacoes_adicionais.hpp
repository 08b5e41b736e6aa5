#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/grupo_processo_referenciado.hpp>

#include <string>
#include <utility>
#include <vector>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Additional information of the note.
class VELK_EXPORT informacoes_adicionais {
public:
    // infAdFisco
    core::optional<std::string> get_informacoes_adicionais_fisco() const { return informacoes_adicionais_fisco_; }
    informacoes_adicionais& set_informacoes_adicionais_fisco(core::optional<std::string> value)
    {
        informacoes_adicionais_fisco_ = std::move(value);
        return *this;
    }

    // infCpl
    core::optional<std::string> get_informacoes_complementares() const { return informacoes_complementares_; }
    informacoes_adicionais& set_informacoes_complementares(core::optional<std::string> value)
    {
        informacoes_complementares_ = std::move(value);
        return *this;
    }

    // procRef
    std::vector<grupo_processo_referenciado> get_grupo_processo_referenciado() const
    {
        return grupo_processo_referenciado_;
    }
    informacoes_adicionais& set_grupo_processo_referenciado(std::vector<grupo_processo_referenciado> value)
    {
        grupo_processo_referenciado_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::string> informacoes_adicionais_fisco_;
    core::optional<std::string> informacoes_complementares_;
    std::vector<grupo_processo_referenciado> grupo_processo_referenciado_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/decimal.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Export information of the item.
class VELK_EXPORT grupo_exportacao {
public:
    // nDraw
    core::optional<std::uint64_t> get_numero_ato_concessorio_drawback() const
    {
        return numero_ato_concessorio_drawback_;
    }
    grupo_exportacao& set_numero_ato_concessorio_drawback(core::optional<std::uint64_t> value)
    {
        numero_ato_concessorio_drawback_ = value;
        return *this;
    }

    // nRE
    core::optional<std::uint64_t> get_numero_registro_exportacao() const { return numero_registro_exportacao_; }
    grupo_exportacao& set_numero_registro_exportacao(core::optional<std::uint64_t> value)
    {
        numero_registro_exportacao_ = value;
        return *this;
    }

    // chNFe
    core::optional<std::string> get_chave_acesso_nfe_recebida() const { return chave_acesso_nfe_recebida_; }
    grupo_exportacao& set_chave_acesso_nfe_recebida(core::optional<std::string> value)
    {
        chave_acesso_nfe_recebida_ = std::move(value);
        return *this;
    }

    // qExport
    core::optional<core::decimal> get_quantidade_exportada() const { return quantidade_exportada_; }
    grupo_exportacao& set_quantidade_exportada(core::optional<core::decimal> value)
    {
        quantidade_exportada_ = std::move(value);
        return *this;
    }

private:
    core::optional<std::uint64_t> numero_ato_concessorio_drawback_;
    core::optional<std::uint64_t> numero_registro_exportacao_;
    core::optional<std::string> chave_acesso_nfe_recebida_;
    core::optional<core::decimal> quantidade_exportada_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

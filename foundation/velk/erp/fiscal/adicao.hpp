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

// One addition (adição) of an import declaration.
class VELK_EXPORT adicao {
public:
    // nAdicao
    std::uint16_t get_numero_adicao() const { return numero_adicao_; }
    adicao& set_numero_adicao(std::uint16_t value)
    {
        numero_adicao_ = value;
        return *this;
    }

    // nSeqAdic
    std::uint32_t get_numero_sequencial_da_adicao() const { return numero_sequencial_da_adicao_; }
    adicao& set_numero_sequencial_da_adicao(std::uint32_t value)
    {
        numero_sequencial_da_adicao_ = value;
        return *this;
    }

    // cFabricante
    std::string get_codigo_fabricante_estrangeiro() const { return codigo_fabricante_estrangeiro_; }
    adicao& set_codigo_fabricante_estrangeiro(std::string value)
    {
        codigo_fabricante_estrangeiro_ = std::move(value);
        return *this;
    }

    // vDescDI
    core::optional<core::decimal> get_valor_desconto() const { return valor_desconto_; }
    adicao& set_valor_desconto(core::optional<core::decimal> value)
    {
        valor_desconto_ = std::move(value);
        return *this;
    }

    // nDraw
    core::optional<std::uint64_t> get_ato_concessorio_drawback() const { return ato_concessorio_drawback_; }
    adicao& set_ato_concessorio_drawback(core::optional<std::uint64_t> value)
    {
        ato_concessorio_drawback_ = value;
        return *this;
    }

private:
    std::uint16_t numero_adicao_ = 0;
    std::uint32_t numero_sequencial_da_adicao_ = 0;
    std::string codigo_fabricante_estrangeiro_;
    core::optional<core::decimal> valor_desconto_;
    core::optional<std::uint64_t> ato_concessorio_drawback_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

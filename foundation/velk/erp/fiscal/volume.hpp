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

// Packages carried.
class VELK_EXPORT volume {
public:
    // qVol
    std::uint64_t get_quantidade() const { return quantidade_; }
    volume& set_quantidade(std::uint64_t value)
    {
        quantidade_ = value;
        return *this;
    }

    // esp
    core::optional<std::string> get_especie() const { return especie_; }
    volume& set_especie(core::optional<std::string> value)
    {
        especie_ = std::move(value);
        return *this;
    }

    // marca
    core::optional<std::string> get_marca() const { return marca_; }
    volume& set_marca(core::optional<std::string> value)
    {
        marca_ = std::move(value);
        return *this;
    }

    // nVol
    core::optional<std::string> get_numeracao() const { return numeracao_; }
    volume& set_numeracao(core::optional<std::string> value)
    {
        numeracao_ = std::move(value);
        return *this;
    }

    // pesoL
    core::optional<core::decimal> get_peso_liquido() const { return peso_liquido_; }
    volume& set_peso_liquido(core::optional<core::decimal> value)
    {
        peso_liquido_ = std::move(value);
        return *this;
    }

    // pesoB
    core::optional<core::decimal> get_peso_bruto() const { return peso_bruto_; }
    volume& set_peso_bruto(core::optional<core::decimal> value)
    {
        peso_bruto_ = std::move(value);
        return *this;
    }

private:
    std::uint64_t quantidade_ = 0;
    core::optional<std::string> especie_;
    core::optional<std::string> marca_;
    core::optional<std::string> numeracao_;
    core::optional<core::decimal> peso_liquido_;
    core::optional<core::decimal> peso_bruto_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

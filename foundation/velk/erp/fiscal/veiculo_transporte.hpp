#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The vehicle that carries the goods.
class VELK_EXPORT veiculo_transporte {
public:
    // placa
    std::string get_placa() const { return placa_; }
    veiculo_transporte& set_placa(std::string value)
    {
        placa_ = std::move(value);
        return *this;
    }

    // UF
    std::string get_uf() const { return uf_; }
    veiculo_transporte& set_uf(std::string value)
    {
        uf_ = std::move(value);
        return *this;
    }

    // RNTC
    core::optional<std::string> get_rntc() const { return rntc_; }
    veiculo_transporte& set_rntc(core::optional<std::string> value)
    {
        rntc_ = std::move(value);
        return *this;
    }

private:
    std::string placa_;
    std::string uf_;
    core::optional<std::string> rntc_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

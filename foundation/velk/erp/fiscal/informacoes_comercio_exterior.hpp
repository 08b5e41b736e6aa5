#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Export of the goods.
class VELK_EXPORT informacoes_comercio_exterior {
public:
    // UFSaidaPais
    std::string get_uf_saida() const { return uf_saida_; }
    informacoes_comercio_exterior& set_uf_saida(std::string value)
    {
        uf_saida_ = std::move(value);
        return *this;
    }

    // xLocExporta
    std::string get_local_embarque() const { return local_embarque_; }
    informacoes_comercio_exterior& set_local_embarque(std::string value)
    {
        local_embarque_ = std::move(value);
        return *this;
    }

    // xLocDesp
    core::optional<std::string> get_local_despacho() const { return local_despacho_; }
    informacoes_comercio_exterior& set_local_despacho(core::optional<std::string> value)
    {
        local_despacho_ = std::move(value);
        return *this;
    }

private:
    std::string uf_saida_;
    std::string local_embarque_;
    core::optional<std::string> local_despacho_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

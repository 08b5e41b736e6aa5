#pragma once

#include <velk/core/export.hpp>
#include <velk/erp/fiscal/tipo_arma.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A firearm sold in the item.
class VELK_EXPORT arma {
public:
    // tpArma
    tipo_arma get_tipo() const { return tipo_; }
    arma& set_tipo(tipo_arma value)
    {
        tipo_ = value;
        return *this;
    }

    // nSerie
    std::string get_numero_serie_arma() const { return numero_serie_arma_; }
    arma& set_numero_serie_arma(std::string value)
    {
        numero_serie_arma_ = std::move(value);
        return *this;
    }

    // nCano
    std::string get_numero_serie_cano() const { return numero_serie_cano_; }
    arma& set_numero_serie_cano(std::string value)
    {
        numero_serie_cano_ = std::move(value);
        return *this;
    }

    // descr
    std::string get_descricao() const { return descricao_; }
    arma& set_descricao(std::string value)
    {
        descricao_ = std::move(value);
        return *this;
    }

private:
    tipo_arma tipo_{};
    std::string numero_serie_arma_;
    std::string numero_serie_cano_;
    std::string descricao_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

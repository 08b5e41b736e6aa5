#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A postal address.
class VELK_EXPORT endereco {
public:
    // xLgr
    std::string get_logradouro() const { return logradouro_; }
    endereco& set_logradouro(std::string value)
    {
        logradouro_ = std::move(value);
        return *this;
    }

    // nro
    std::string get_numero_endereco() const { return numero_endereco_; }
    endereco& set_numero_endereco(std::string value)
    {
        numero_endereco_ = std::move(value);
        return *this;
    }

    // xCpl
    core::optional<std::string> get_complemento() const { return complemento_; }
    endereco& set_complemento(core::optional<std::string> value)
    {
        complemento_ = std::move(value);
        return *this;
    }

    // xBairro
    std::string get_bairro() const { return bairro_; }
    endereco& set_bairro(std::string value)
    {
        bairro_ = std::move(value);
        return *this;
    }

    // cMun: IBGE code of the municipality, 7 digits
    std::uint32_t get_ibge_municipio() const { return ibge_municipio_; }
    endereco& set_ibge_municipio(std::uint32_t value)
    {
        ibge_municipio_ = value;
        return *this;
    }

    // xMun
    std::string get_nome_municipio() const { return nome_municipio_; }
    endereco& set_nome_municipio(std::string value)
    {
        nome_municipio_ = std::move(value);
        return *this;
    }

    // UF: two letters; the issuer's also gives cUF
    std::string get_uf() const { return uf_; }
    endereco& set_uf(std::string value)
    {
        uf_ = std::move(value);
        return *this;
    }

    // CEP, 8 digits
    core::optional<std::uint32_t> get_cep() const { return cep_; }
    endereco& set_cep(core::optional<std::uint32_t> value)
    {
        cep_ = value;
        return *this;
    }

    // cPais: 1058 is Brazil
    core::optional<std::uint16_t> get_ibge_pais() const { return ibge_pais_; }
    endereco& set_ibge_pais(core::optional<std::uint16_t> value)
    {
        ibge_pais_ = value;
        return *this;
    }

    // xPais
    core::optional<std::string> get_pais() const { return pais_; }
    endereco& set_pais(core::optional<std::string> value)
    {
        pais_ = std::move(value);
        return *this;
    }

private:
    std::string logradouro_;
    std::string numero_endereco_;
    core::optional<std::string> complemento_;
    std::string bairro_;
    std::uint32_t ibge_municipio_ = 0;
    std::string nome_municipio_;
    std::string uf_;
    core::optional<std::uint32_t> cep_;
    core::optional<std::uint16_t> ibge_pais_;
    core::optional<std::string> pais_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

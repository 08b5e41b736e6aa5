#pragma once

#include <velk/core/export.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A paper note (model 1 or 2) that the note refers to.
class VELK_EXPORT nf_referenciada {
public:
    // cUF: IBGE code of the state
    std::uint16_t get_uf_emitente() const { return uf_emitente_; }
    nf_referenciada& set_uf_emitente(std::uint16_t value)
    {
        uf_emitente_ = value;
        return *this;
    }

    // AAMM
    std::uint16_t get_ano_mes_emissao() const { return ano_mes_emissao_; }
    nf_referenciada& set_ano_mes_emissao(std::uint16_t value)
    {
        ano_mes_emissao_ = value;
        return *this;
    }

    // CNPJ, digits only
    std::string get_cnpj() const { return cnpj_; }
    nf_referenciada& set_cnpj(std::string value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // mod: 1 or 2
    std::uint16_t get_modelo() const { return modelo_; }
    nf_referenciada& set_modelo(std::uint16_t value)
    {
        modelo_ = value;
        return *this;
    }

    // serie, digits only
    std::string get_serie() const { return serie_; }
    nf_referenciada& set_serie(std::string value)
    {
        serie_ = std::move(value);
        return *this;
    }

    // nNF
    std::uint32_t get_numero() const { return numero_; }
    nf_referenciada& set_numero(std::uint32_t value)
    {
        numero_ = value;
        return *this;
    }

private:
    std::uint16_t uf_emitente_ = 0;
    std::uint16_t ano_mes_emissao_ = 0;
    std::string cnpj_;
    std::uint16_t modelo_ = 0;
    std::string serie_;
    std::uint32_t numero_ = 0;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

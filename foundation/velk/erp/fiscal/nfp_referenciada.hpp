#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/modelo_nf_produtor.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// A rural producer's note that the note refers to.
class VELK_EXPORT nfp_referenciada {
public:
    // cUF: IBGE code of the state
    std::uint16_t get_uf_emitente() const { return uf_emitente_; }
    nfp_referenciada& set_uf_emitente(std::uint16_t value)
    {
        uf_emitente_ = value;
        return *this;
    }

    // AAMM
    std::uint16_t get_ano_mes_emissao() const { return ano_mes_emissao_; }
    nfp_referenciada& set_ano_mes_emissao(std::uint16_t value)
    {
        ano_mes_emissao_ = value;
        return *this;
    }

    // CNPJ, digits only; taken before the CPF
    core::optional<std::string> get_cnpj() const { return cnpj_; }
    nfp_referenciada& set_cnpj(core::optional<std::string> value)
    {
        cnpj_ = std::move(value);
        return *this;
    }

    // CPF, digits only
    core::optional<std::string> get_cpf() const { return cpf_; }
    nfp_referenciada& set_cpf(core::optional<std::string> value)
    {
        cpf_ = std::move(value);
        return *this;
    }

    // IE
    std::string get_ie() const { return ie_; }
    nfp_referenciada& set_ie(std::string value)
    {
        ie_ = std::move(value);
        return *this;
    }

    // mod
    modelo_nf_produtor get_modelo() const { return modelo_; }
    nfp_referenciada& set_modelo(modelo_nf_produtor value)
    {
        modelo_ = value;
        return *this;
    }

    // serie, digits only
    std::string get_serie() const { return serie_; }
    nfp_referenciada& set_serie(std::string value)
    {
        serie_ = std::move(value);
        return *this;
    }

    // nNF
    std::uint32_t get_numero() const { return numero_; }
    nfp_referenciada& set_numero(std::uint32_t value)
    {
        numero_ = value;
        return *this;
    }

private:
    std::uint16_t uf_emitente_ = 0;
    std::uint16_t ano_mes_emissao_ = 0;
    core::optional<std::string> cnpj_;
    core::optional<std::string> cpf_;
    std::string ie_;
    modelo_nf_produtor modelo_{};
    std::string serie_;
    std::uint32_t numero_ = 0;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/documento.hpp>

#include <cstdint>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// A place of pick-up (retirada) or delivery (entrega) other than the parties' addresses. Unlike every
// other group, IE is a number here.
template <class Documento>
struct local {
    Documento documento;
    core::optional<std::string> xNome;
    std::string xLgr;
    std::string nro;
    core::optional<std::string> xCpl;
    std::string xBairro;
    std::uint32_t cMun = 0;
    std::string xMun;
    std::string UF;
    core::optional<std::uint32_t> CEP;
    core::optional<std::uint16_t> cPais;
    core::optional<std::string> xPais;
    core::optional<std::uint64_t> fone;
    core::optional<std::string> email;
    core::optional<std::uint64_t> IE;
};

using retirada = local<grupo::cnpj_ou_cpf>;
using entrega = local<grupo::cpf_cnpj_ou_estrangeiro>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

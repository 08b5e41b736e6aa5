#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/CNPJ.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/CPF.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/idEstrangeiro.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// The documents that identify a party, as the one-of of each group allows them.
using cnpj_ou_cpf = core::variant<grupo::CNPJ, grupo::CPF>;
using cpf_cnpj_ou_estrangeiro = core::variant<grupo::CPF, grupo::CNPJ, grupo::idEstrangeiro>;

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

// The optional closing groups, for now: their records are empty and nothing
// of the model is read. The closing groups replace this file with their
// builders.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool montar_cobr(fiscal::cobranca const&, grupo::cobr&, core::result::stack&)
{
    return true;
}

bool montar_infIntermed(fiscal::informacoes_intermediador const&, grupo::infIntermed&, core::result::stack&)
{
    return true;
}

bool montar_infAdic(fiscal::informacoes_adicionais const&, grupo::infAdic&, core::result::stack&)
{
    return true;
}

bool montar_exporta(fiscal::informacoes_comercio_exterior const&, grupo::exporta&, core::result::stack&)
{
    return true;
}

bool montar_infRespTec(fiscal::informacoes_responsavel_tecnico const&, grupo::infRespTec&, core::result::stack&)
{
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

// Transport, for now: modFrete only. The carrier, vehicle and volumes come
// with the closing groups, which replace this file.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t modFrete[] = {0, 1, 2, 3, 4, 9};

}  // namespace

bool montar_transp(fiscal::informacoes_transporte const& transporte, grupo::transp& transp,
                   core::result::stack& stack)
{
    // The refusal is code 45, whose words speak of the type of issue.
    return mapear<45>(transporte.get_modalidade_frete(), modFrete, transp.modFrete, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

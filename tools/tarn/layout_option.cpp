#include "layout_option.hpp"

#include "option_values.hpp"

namespace velk::tools::tarn {

erp::tarn::nfe::versao layout_option::read(option_table const& options)
{
    using erp::tarn::nfe::versao;
    return option_values::choose<versao>(
        options, "layout", {{"4.00", versao::versao_4_00}, {"3.10", versao::versao_3_10}}, versao::versao_4_00);
}

}  // namespace velk::tools::tarn

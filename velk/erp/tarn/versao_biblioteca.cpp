#include <velk/erp/tarn/versao_biblioteca.hpp>

namespace velk::erp::inline v4::tarn {

char const* get_versao_biblioteca()
{
    return "4.0.0";
}

}  // namespace velk::erp::inline v4::tarn

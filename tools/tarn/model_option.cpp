#include "model_option.hpp"

#include "option_values.hpp"

namespace velk::tools::tarn {

erp::tarn::modelo model_option::read(option_table const& options)
{
    using erp::tarn::modelo;
    return option_values::choose<modelo>(options, "modelo", {{"55", modelo::nfe}, {"65", modelo::nfce}}, modelo::nfe);
}

}  // namespace velk::tools::tarn

#pragma once

#include <velk/core/export.hpp>
#include <velk/core/result/row.hpp>
#include <velk/core/result/table_category.hpp>

namespace velk::core {
inline namespace v3 {

// Failed conversions between values and text ("core-converter").
class VELK_EXPORT converter_result_category final : public result::table_category {
public:
    template <int N, class... Kinds>
    using row = result::row<converter_result_category, N, Kinds...>;

    static converter_result_category const& instance();

    // Number, name and words; neither code has details.
    static constexpr row<1> bad_parameter{"Parâmetro de conversão inválido"};
    static constexpr row<2> invalid_value{"O valor não possui representação válida"};

private:
    converter_result_category();
};

}  // namespace v3
}  // namespace velk::core

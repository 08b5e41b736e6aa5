#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Whether the buyer is the final consumer (tag indFinal).
enum class consumidor_final : unsigned int {
    nao = 0,  // indFinal 0
    sim = 1,  // indFinal 1
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Whether the item's value makes up the note's total of products (tag indTot).
enum class indicador_total : unsigned int {
    nao_compoe = 0,  // indTot 0
    compoe = 1,      // indTot 1
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

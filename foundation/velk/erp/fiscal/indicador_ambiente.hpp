#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Environment of issue (tag tpAmb). Note the order: production first.
enum class indicador_ambiente : unsigned int {
    producao = 0,     // tpAmb 1
    homologacao = 1,  // tpAmb 2: tests, no fiscal value
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

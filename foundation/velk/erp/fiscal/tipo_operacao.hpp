#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Direction of the goods (tag tpNF).
enum class tipo_operacao : unsigned int {
    entrada = 0,  // tpNF 0
    saida = 1,    // tpNF 1
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

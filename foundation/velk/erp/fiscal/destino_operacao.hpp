#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Where the operation goes (tag idDest).
enum class destino_operacao : unsigned int {
    interna = 0,        // idDest 1: inside the state
    interestadual = 1,  // idDest 2
    exterior = 2,       // idDest 3: abroad
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// How the import was arranged (tag tpIntermedio).
enum class forma_intermedio_importacao : unsigned int {
    conta_propria = 0,  // tpIntermedio 1: on own account
    conta_e_ordem = 1,  // tpIntermedio 2: on account and order of a third party
    encomenda = 2,      // tpIntermedio 3: by order
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

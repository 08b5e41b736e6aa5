#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Whether a marketplace took part in the sale (tag indIntermed).
enum class indicador_intermediador : unsigned int {
    sem_intermediador = 0,     // indIntermed 0: own site or shop
    plataforma_terceiros = 1,  // indIntermed 1: third-party platform
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

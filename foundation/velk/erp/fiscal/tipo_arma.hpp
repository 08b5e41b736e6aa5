#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Class of a firearm (tag tpArma).
enum class tipo_arma : unsigned int {
    uso_permitido = 0,  // tpArma 0: permitted use
    uso_restrito = 1,   // tpArma 1: restricted use
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The recipient's standing towards ICMS (tag indIEDest).
enum class indicador_ie_destinatario : unsigned int {
    contribuinte_icms = 0,    // indIEDest 1: taxpayer with a state registration
    contribuinte_isento = 1,  // indIEDest 2: exempt from registration
    nao_contribuinte = 2,     // indIEDest 9: not a taxpayer
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

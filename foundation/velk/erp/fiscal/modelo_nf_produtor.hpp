#pragma once

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Model of a referenced rural producer's note (tag mod of refNFP).
enum class modelo_nf_produtor : unsigned int {
    nf_produtor = 0,  // mod 04: producer note
    nf_avulsa = 1,    // mod 01: single-issue note
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// An NF-e or NFC-e that the note refers to.
class VELK_EXPORT nfe_referenciada {
public:
    // refNFe: the 44-digit access key
    std::string get_chave_nfe() const { return chave_nfe_; }
    nfe_referenciada& set_chave_nfe(std::string value)
    {
        chave_nfe_ = std::move(value);
        return *this;
    }

private:
    std::string chave_nfe_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/erp/fiscal/csosn.hpp>
#include <velk/erp/fiscal/origem_mercadoria.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {
namespace detail {

// Origin and tax situation of a group of the Simples Nacional. Its setters give back the group that holds these
// values, so that they chain with the group's own.
template <class Grupo>
class origem_csosn {
public:
    // orig
    origem_mercadoria get_origem_mercadoria() const { return origem_mercadoria_; }
    Grupo& set_origem_mercadoria(origem_mercadoria value)
    {
        origem_mercadoria_ = value;
        return static_cast<Grupo&>(*this);
    }

    // CSOSN
    csosn get_csosn() const { return csosn_; }
    Grupo& set_csosn(csosn value)
    {
        csosn_ = value;
        return static_cast<Grupo&>(*this);
    }

private:
    origem_mercadoria origem_mercadoria_{};
    csosn csosn_{};
};

}  // namespace detail
}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

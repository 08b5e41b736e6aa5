#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Why a medicine has no ANVISA registration.
class VELK_EXPORT medicamento_isento {
public:
    // xMotivoIsencao
    std::string get_motivo() const { return motivo_; }
    medicamento_isento& set_motivo(std::string value)
    {
        motivo_ = std::move(value);
        return *this;
    }

private:
    std::string motivo_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

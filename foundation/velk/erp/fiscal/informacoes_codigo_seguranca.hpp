#pragma once

#include <velk/core/export.hpp>

#include <cstdint>
#include <string>
#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The technical manager's security code (CSRT) as the state gave it.
class VELK_EXPORT informacoes_codigo_seguranca {
public:
    // idCSRT
    std::uint16_t get_identificador_csrt() const { return identificador_csrt_; }
    informacoes_codigo_seguranca& set_identificador_csrt(std::uint16_t value)
    {
        identificador_csrt_ = value;
        return *this;
    }

    // hashCSRT, computed by whoever fills the note
    std::string get_hash_csrt() const { return hash_csrt_; }
    informacoes_codigo_seguranca& set_hash_csrt(std::string value)
    {
        hash_csrt_ = std::move(value);
        return *this;
    }

private:
    std::uint16_t identificador_csrt_ = 0;
    std::string hash_csrt_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

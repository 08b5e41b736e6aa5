#pragma once

#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/fiscal/total_nfe_icms.hpp>
#include <velk/erp/fiscal/total_nfe_issqn.hpp>
#include <velk/erp/fiscal/total_nfe_retencao_tributos.hpp>

#include <utility>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// Totals of the note.
class VELK_EXPORT total_nfe {
public:
    // ICMSTot
    total_nfe_icms get_total_icms() const { return total_icms_; }
    total_nfe& set_total_icms(total_nfe_icms value)
    {
        total_icms_ = std::move(value);
        return *this;
    }

    // ISSQNtot
    core::optional<total_nfe_issqn> get_total_issqn() const { return total_issqn_; }
    total_nfe& set_total_issqn(core::optional<total_nfe_issqn> value)
    {
        total_issqn_ = std::move(value);
        return *this;
    }

    // retTrib
    core::optional<total_nfe_retencao_tributos> get_total_nfe_retencao_tributos() const
    {
        return total_nfe_retencao_tributos_;
    }
    total_nfe& set_total_nfe_retencao_tributos(core::optional<total_nfe_retencao_tributos> value)
    {
        total_nfe_retencao_tributos_ = std::move(value);
        return *this;
    }

private:
    total_nfe_icms total_icms_;
    core::optional<total_nfe_issqn> total_issqn_;
    core::optional<total_nfe_retencao_tributos> total_nfe_retencao_tributos_;
};

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

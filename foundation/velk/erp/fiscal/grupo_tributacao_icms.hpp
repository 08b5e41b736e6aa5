#pragma once

#include <velk/core/variant.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_00.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_10.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_20.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_30.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_40.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_51.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_60.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_70.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_90.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_101.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_102.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_201.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_202.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_500.hpp>
#include <velk/erp/fiscal/grupo_tributacao_icms_900.hpp>
#include <velk/erp/fiscal/grupo_repasse_icms_st.hpp>

namespace velk::erp {
inline namespace v4 {
namespace fiscal {

// The ICMS of an item: one group, chosen by its class alone (the CST or CSOSN
// inside is written as given and does not steer the choice).
using grupo_tributacao_icms =
    core::variant<grupo_tributacao_icms_00, grupo_tributacao_icms_10, grupo_tributacao_icms_20,
                  grupo_tributacao_icms_30, grupo_tributacao_icms_40, grupo_tributacao_icms_51,
                  grupo_tributacao_icms_60, grupo_tributacao_icms_70, grupo_tributacao_icms_90,
                  grupo_tributacao_icms_101, grupo_tributacao_icms_102, grupo_tributacao_icms_201,
                  grupo_tributacao_icms_202, grupo_tributacao_icms_500, grupo_tributacao_icms_900,
                  grupo_repasse_icms_st>;

}  // namespace fiscal
}  // namespace v4
}  // namespace velk::erp

#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/detail/protobuf/NotaFiscal.pb.h>
#include <velk/xml/document.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

// The unsigned NF-e or NFC-e of a note given as a NotaFiscal message, beside
// the fiscal model: the message states every value (totals, key, tax groups)
// and is written as it stands, through the same writer as a document of the
// model. Absent parts read as their defaults.
//
// The values that have no code in the layout, or that the layout's schema
// would refuse in their place, are refused with the codes of
// processar_nota_result_category and the argument "value"; the first refusal
// ends the generation, and the result is then an empty document. No exception
// leaves these functions.
//
// Layout 4.00, with Id "NFe" followed by chave_acesso as it stands.
xml::document generate_document_4_00(::velk::internal::nfe::serialization::NotaFiscal const& nota,
                                     core::result::stack& stack);

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf

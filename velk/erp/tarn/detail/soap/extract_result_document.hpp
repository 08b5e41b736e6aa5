#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/detail/soap/message.hpp>
#include <velk/xml/document.hpp>

#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::detail::soap {

// The one result document of an answer: the answer must have exactly one body
// tag, named as one of `valid_names` (compared exactly), holding exactly one
// tree, which becomes the document's root (retConsStatServ, for instance).
// Refusals are fresh reports of processo_recuperar_resposta_result_category
// codes 1, 2 and 3, and give an empty document. The tree is moved out of the
// answer, which a caller hands over with std::move to spare a copy.
xml::document extract_result_document(message response, std::vector<std::string> const& valid_names,
                                      core::result::stack& result);

}  // namespace velk::erp::inline v4::tarn::detail::soap

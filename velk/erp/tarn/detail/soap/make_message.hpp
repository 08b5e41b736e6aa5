#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/detail/soap/message.hpp>
#include <velk/xml/document.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::detail::soap {

// The request envelope of every service but the GTIN query: the service
// namespace on the envelope (default namespace when the prefix is empty), the
// nfeCabecMsg header in the form `namespace_header` chooses, and one body tag
// nfeDadosMsg holding a copy of the document's root. A document without root
// is servico_result_category code 9 (fresh) and an empty message.
message make_message(xml::document const& document, estado estado, std::string const& versao_dados,
                     std::string const& namespace_url, std::string const& namespace_prefix,
                     std::string const& namespace_header, core::result::stack& result);

// The nfeCabecMsg header: cUF (the state's two-letter abbreviation, as the
// authorities' header has always carried it) and versaoDados. "com_namespace"
// puts the prefix on all three tags, "sem_namespace" on nfeCabecMsg only; any
// other text adds no header.
void add_header(message& target, estado estado, std::string const& versao_dados, std::string const& namespace_prefix,
                std::string const& namespace_header);

}  // namespace velk::erp::inline v4::tarn::detail::soap

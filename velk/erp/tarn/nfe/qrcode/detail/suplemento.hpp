#pragma once

// Inside the library only: the supplement of an NFC-e (infNFeSupl) in the
// tree of its NFe element.

#include <velk/core/optional.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::detail {

// infNFeSupl of the NFe element. When there is none, an empty one is made
// where the layout has it: right after infNFe (so ahead of a Signature), or
// last when the tree has no infNFe.
xml::element& suplemento_de(xml::element& nfe);

// The QR code address, first in infNFeSupl, in place of any former qrCode.
void por_qrcode(xml::element& suplemento, std::string const& url);

// The urlChave, last in infNFeSupl, in place of any former one; an absent
// text leaves none.
void por_url_chave(xml::element& suplemento, core::optional<std::string> const& url_chave);

}  // namespace velk::erp::inline v4::tarn::nfe::detail

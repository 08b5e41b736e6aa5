#pragma once

#include <velk/xml/element.hpp>

#include <span>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

// The tags of one group that exist in one layout only, by the group's name.
struct tags_do_grupo {
    char const* grupo;
    std::span<char const* const> tags;
};

// What the group holds in layout 4.00 and not in 3.10.
std::span<tags_do_grupo const> tags_so_no_4_00();
// What the group holds in layout 3.10 and not in 4.00, always written from
// optionals of the tree that the 4.00 builder leaves empty.
std::span<tags_do_grupo const> tags_so_no_3_10();

// Turns the NFe written from the shared tree into its 3.10 form: the tags of
// 4.00 only go, wherever their group stands; the amounts of the invoice
// (fat) that 3.10 admits only above zero go when zero; the GTIN of an item
// without one is empty, not "SEM GTIN"; and the payments, one pag with
// a detPag per payment and the change in 4.00, become one pag per payment
// holding the payment's tags but indPag and xPag, without the change.
void adaptar_ao_layout_3_10(xml::element& nfe);

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

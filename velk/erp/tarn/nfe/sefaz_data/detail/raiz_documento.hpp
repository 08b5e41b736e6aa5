#pragma once

#include <velk/core/result/report.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/document.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

// The document form of a message's from_xml: the element form on the root,
// with the arguments between element and stack; a document without a root is
// a fresh code 5 and a default object.
template <class T, class... Args>
T from_document_root(xml::document const& documento, core::result::stack& stack, Args const&... args)
{
    xml::element const* root = documento.get_root_element();
    if (root == nullptr) {
        core::result::fresh<result_category::documento_invalido>(stack);
        return T();
    }
    return T::from_xml(*root, args..., stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>
#include <velk/core/optional.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/result_category.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <unordered_map>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

// What every from_xml of the SEFAZ messages shares: look the wanted paths up
// in one walk, then read the values one by one, stopping at the first failure.

// The elements found for the wanted paths, by path. Paths are relative to
// `raiz` ("infNFe/ide/tpAmb": first segment a direct child of raiz), compared
// by local name. The walk is depth first in document order and a path takes
// its first occurrence; a path not wanted is never in the map. The pointers
// are into `raiz` and valid while it is neither changed nor destroyed.
VELK_EXPORT std::unordered_map<std::string, xml::element const*>
find_elements_by_path(xml::element const& raiz, std::vector<std::string> const& paths);

// The first direct child element with exactly that local name, or null.
VELK_EXPORT xml::element const* find_child_element(xml::element const& pai, std::string const& nome);
VELK_EXPORT xml::element* find_child_element(xml::element& pai, std::string const& nome);

// Reading a value of a found element, for from_xml. `element_name` is the
// path from the message root that a failure names ("retConsStatServ/cStat").
//
// A missing required element replaces the stack with code 1. A text that does
// not convert replaces the stack with the converter's failure and chains code
// 2 with the name and the text. Text (std::string) is taken as it stands.
template <class T>
bool read_required(xml::element const* found, std::string const& element_name, T& value, core::result::stack& stack)
{
    if (found == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, element_name);
        return false;
    }
    std::string const text = found->get_contents();
    if constexpr (std::is_same_v<T, std::string>) {
        value = text;
        return true;
    } else {
        if (!core::read_value(value, text, stack)) {
            core::result::chain<result_category::valor_elemento_invalido>(stack, element_name, text);
            return false;
        }
        return true;
    }
}

// The same for an optional element: absent leaves the optional empty.
template <class T>
bool read_optional(xml::element const* found, std::string const& element_name, core::optional<T>& value,
                   core::result::stack& stack)
{
    if (found == nullptr) {
        return true;
    }
    T read{};
    if (!read_required(found, element_name, read, stack)) {
        return false;
    }
    value = std::move(read);
    return true;
}

// Reading a required attribute of `elemento` (without prefix):
// absent replaces the stack with code 4, a text that does not convert replaces
// it with the converter's failure and chains code 3, both naming
// `attribute_name` ("retInutNFe/versao").
template <class T>
bool read_required_attribute(xml::element const& elemento, std::string const& name, std::string const& attribute_name,
                             T& value, core::result::stack& stack)
{
    xml::attribute const* found = elemento.find_attribute("", name);
    if (found == nullptr) {
        core::result::fresh<result_category::atributo_ausente>(stack, attribute_name);
        return false;
    }
    if (!core::read_value(value, found->get_value(), stack)) {
        core::result::chain<result_category::valor_atributo_invalido>(stack, attribute_name, found->get_value());
        return false;
    }
    return true;
}

// from_xml of a message given as a document: a document without root is a
// fresh code 5 and a default message; else the message's from_xml of the
// root, with the arguments that go between the element and the stack (the
// kind of an event's payload, for one).
template <class Message, class... Args>
Message read_root(xml::document const& document, core::result::stack& stack, Args const&... args)
{
    xml::element const* root = document.get_root_element();
    if (root == nullptr) {
        core::result::fresh<result_category::documento_invalido>(stack);
        return Message();
    }
    return Message::from_xml(*root, args..., stack);
}

// Looks a path up in the map of find_elements_by_path; null when absent.
inline xml::element const* lookup(std::unordered_map<std::string, xml::element const*> const& found,
                                  std::string const& path)
{
    auto const it = found.find(path);
    return it == found.end() ? nullptr : it->second;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data

#pragma once

#include <string>
#include <string_view>

namespace velk::tools::sefaz_sim::answer_text {

// The answers are written as text, tag by tag, in the compact form the
// authorities send.

// The text with <, > and & escaped.
std::string escaped(std::string_view text);
// <name>text</name>, the text escaped.
std::string leaf(std::string_view name, std::string_view text);

// The namespace of the fiscal messages.
inline constexpr char nfe_namespace[] = "http://www.portalfiscal.inf.br/nfe";

// The opening tag of an answer's root: versao, then the fiscal namespace.
std::string root_open(std::string_view name, std::string_view versao);

}  // namespace velk::tools::sefaz_sim::answer_text

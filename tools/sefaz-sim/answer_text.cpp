#include "answer_text.hpp"

namespace velk::tools::sefaz_sim::answer_text {

std::string escaped(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (char const c : text) {
        switch (c) {
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '&': out += "&amp;"; break;
        default: out += c;
        }
    }
    return out;
}

std::string leaf(std::string_view name, std::string_view text)
{
    std::string const tag(name);
    return "<" + tag + ">" + escaped(text) + "</" + tag + ">";
}

std::string root_open(std::string_view name, std::string_view versao)
{
    return "<" + std::string(name) + " versao=\"" + std::string(versao) + "\" xmlns=\"" + nfe_namespace + "\">";
}

}  // namespace velk::tools::sefaz_sim::answer_text

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/detail/path_set.hpp>
#include <velk/xml/node.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

std::unordered_map<std::string, xml::element const*> find_elements_by_path(xml::element const& raiz,
                                                                           std::vector<std::string> const& paths)
{
    detail::path_set const wanted(paths);
    std::vector<xml::element const*> const elements = wanted.find_in(raiz);
    std::unordered_map<std::string, xml::element const*> found;
    found.reserve(paths.size());
    for (std::size_t index = 0; index < paths.size(); ++index) {
        if (elements[index] != nullptr) {
            found.emplace(paths[index], elements[index]);
        }
    }
    return found;
}

xml::element const* find_child_element(xml::element const& pai, std::string const& nome)
{
    for (xml::node const& child : pai.get_node_range()) {
        xml::element const* value = child.as_element();
        if (value != nullptr && value->get_name() == nome) {
            return value;
        }
    }
    return nullptr;
}

xml::element* find_child_element(xml::element& pai, std::string const& nome)
{
    for (xml::node& child : pai.get_node_range()) {
        xml::element* value = child.as_element();
        if (value != nullptr && value->get_name() == nome) {
            return value;
        }
    }
    return nullptr;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data

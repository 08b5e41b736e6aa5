#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

#include <velk/xml/node.hpp>

#include <algorithm>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

namespace {

struct path_walk {
    std::vector<std::string> const& paths;
    std::vector<bool> pending;
    std::size_t remaining;
    std::unordered_map<std::string, xml::element const*> found;

    // True when some pending path equals `path` or lies beneath it: only then
    // is the subtree worth entering.
    bool worth_entering(std::string const& path) const
    {
        for (std::size_t index = 0; index < paths.size(); ++index) {
            if (!pending[index]) {
                continue;
            }
            std::string const& wanted = paths[index];
            if (wanted.size() >= path.size() && wanted.compare(0, path.size(), path) == 0 &&
                (wanted.size() == path.size() || wanted[path.size()] == '/')) {
                return true;
            }
        }
        return false;
    }

    void take(std::string const& path, xml::element const& value)
    {
        for (std::size_t index = 0; index < paths.size(); ++index) {
            if (pending[index] && paths[index] == path) {
                pending[index] = false;
                --remaining;
                found.emplace(path, &value);
            }
        }
    }

    void visit_children(xml::element const& parent, std::string& prefix)
    {
        for (xml::node const& child : parent.get_node_range()) {
            if (remaining == 0) {
                return;
            }
            xml::element const* value = child.as_element();
            if (value == nullptr) {
                continue;
            }
            std::size_t const mark = prefix.size();
            if (!prefix.empty()) {
                prefix += '/';
            }
            prefix += value->get_name();
            if (worth_entering(prefix)) {
                take(prefix, *value);
                visit_children(*value, prefix);
            }
            prefix.resize(mark);
        }
    }
};

}  // namespace

std::unordered_map<std::string, xml::element const*> find_elements_by_path(xml::element const& raiz,
                                                                           std::vector<std::string> const& paths)
{
    path_walk walk{paths, std::vector<bool>(paths.size(), true), paths.size(), {}};
    std::string prefix;
    walk.visit_children(raiz, prefix);
    return std::move(walk.found);
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

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

#include <velk/xml/node.hpp>

#include <algorithm>
#include <string_view>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data {

namespace {

// Each wanted path split into its names once; the walk then keeps, level by
// level, which paths still agree with the names taken so far, so that an
// element is compared only with the names its depth can have.
struct path_walk {
    std::vector<std::string> const& paths;
    std::vector<std::vector<std::string_view>> segments;
    std::vector<bool> pending;
    std::size_t remaining;
    // The candidates of every open level, one level after another.
    std::vector<std::size_t> candidates;
    std::unordered_map<std::string, xml::element const*> found;

    explicit path_walk(std::vector<std::string> const& wanted)
        : paths(wanted), segments(wanted.size()), pending(wanted.size(), true), remaining(wanted.size())
    {
        for (std::size_t index = 0; index < wanted.size(); ++index) {
            std::string_view rest = wanted[index];
            while (true) {
                std::size_t const slash = rest.find('/');
                segments[index].push_back(rest.substr(0, slash));
                if (slash == std::string_view::npos) {
                    break;
                }
                rest.remove_prefix(slash + 1);
            }
            candidates.push_back(index);
        }
        found.reserve(wanted.size());
    }

    // The candidates of the level that starts at `first`, for children at
    // `depth`.
    void visit_children(xml::element const& parent, std::size_t first, std::size_t depth)
    {
        std::size_t const last = candidates.size();
        for (xml::node const& child : parent.get_node_range()) {
            if (remaining == 0) {
                return;
            }
            xml::element const* value = child.as_element();
            if (value == nullptr) {
                continue;
            }
            std::string const& name = value->get_name();
            std::size_t const level = candidates.size();
            for (std::size_t at = first; at < last; ++at) {
                std::size_t const index = candidates[at];
                if (!pending[index] || segments[index][depth] != name) {
                    continue;
                }
                if (segments[index].size() == depth + 1) {
                    pending[index] = false;
                    --remaining;
                    found.emplace(paths[index], value);
                } else {
                    candidates.push_back(index);
                }
            }
            if (candidates.size() != level) {
                visit_children(*value, level, depth + 1);
                candidates.resize(level);
            }
        }
    }
};

}  // namespace

std::unordered_map<std::string, xml::element const*> find_elements_by_path(xml::element const& raiz,
                                                                           std::vector<std::string> const& paths)
{
    path_walk walk(paths);
    walk.visit_children(raiz, 0, 0);
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

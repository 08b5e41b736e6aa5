#include <velk/erp/tarn/nfe/sefaz_data/detail/path_set.hpp>

#include <velk/xml/node.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

namespace {

// The walk keeps, level by level, which paths still agree with the names
// taken so far, so that an element is compared only with the names its depth
// can have.
struct path_walk {
    std::vector<std::vector<std::string_view>> const& segments;
    std::vector<xml::element const*>& found;
    std::vector<bool> pending;
    std::size_t remaining;
    // The candidates of every open level, one level after another.
    std::vector<std::size_t> candidates;

    path_walk(std::vector<std::vector<std::string_view>> const& names, std::vector<xml::element const*>& result)
        : segments(names), found(result), pending(names.size(), true), remaining(names.size())
    {
        candidates.reserve(names.size() * 2);
        for (std::size_t index = 0; index < names.size(); ++index) {
            candidates.push_back(index);
        }
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
                    found[index] = value;
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

path_set::path_set(std::vector<std::string> paths) : paths_(std::move(paths)), segments_(paths_.size())
{
    for (std::size_t index = 0; index < paths_.size(); ++index) {
        std::string_view rest = paths_[index];
        while (true) {
            std::size_t const slash = rest.find('/');
            segments_[index].push_back(rest.substr(0, slash));
            if (slash == std::string_view::npos) {
                break;
            }
            rest.remove_prefix(slash + 1);
        }
    }
}

std::vector<xml::element const*> path_set::find_in(xml::element const& raiz) const
{
    std::vector<xml::element const*> found(paths_.size(), nullptr);
    path_walk walk(segments_, found);
    walk.visit_children(raiz, 0, 0);
    return found;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

#include <velk/erp/tarn/nfe/sefaz_data/detail/path_set.hpp>

#include <velk/xml/node.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

namespace {

// Names of the same length mostly differ in their first characters: compared
// in place, a mismatch costs a character or two instead of a call.
bool same_name(std::string_view wanted, std::string const& name)
{
    if (wanted.size() != name.size()) {
        return false;
    }
    for (std::size_t at = 0; at < wanted.size(); ++at) {
        if (wanted[at] != name[at]) {
            return false;
        }
    }
    return true;
}

// One walk over a tree: which paths are still to be found, under each step
// of the set's tree of names.
struct path_walk {
    std::vector<path_set::step> const& steps;
    std::vector<xml::element const*>& found;
    // The paths not found yet that end at or under each step.
    std::vector<std::size_t> pending;

    path_walk(std::vector<path_set::step> const& all, std::vector<xml::element const*>& result)
        : steps(all), found(result), pending(all.size(), 0)
    {
        for (std::size_t at = all.size(); at-- > 0;) {
            pending[at] += all[at].ends.size();
            if (at != 0) {
                pending[all[at].parent] += pending[at];
            }
        }
    }

    // The children of `parent`, matched against the steps under `at`; each
    // element is compared only with the distinct names its depth can have.
    void visit_children(xml::element const& parent, std::size_t at)
    {
        for (xml::node const& child : parent.get_node_range()) {
            if (pending[0] == 0 || pending[at] == 0) {
                return;
            }
            xml::element const* value = child.as_element();
            if (value == nullptr) {
                continue;
            }
            std::string const& name = value->get_name();
            for (std::size_t const next : steps[at].next) {
                if (pending[next] == 0 || !same_name(steps[next].name, name)) {
                    continue;
                }
                take(next, *value);
                if (pending[next] != 0) {
                    visit_children(*value, next);
                }
            }
        }
    }

    // The paths that end at the step and were not found yet are found here.
    void take(std::size_t at, xml::element const& value)
    {
        std::size_t taken = 0;
        for (std::size_t const index : steps[at].ends) {
            if (found[index] == nullptr) {
                found[index] = &value;
                ++taken;
            }
        }
        if (taken == 0) {
            return;
        }
        for (std::size_t up = at;; up = steps[up].parent) {
            pending[up] -= taken;
            if (up == 0) {
                break;
            }
        }
    }
};

}  // namespace

path_set::path_set(std::vector<std::string> paths) : paths_(std::move(paths)), steps_(1)
{
    for (std::size_t index = 0; index < paths_.size(); ++index) {
        std::string_view rest = paths_[index];
        std::size_t at = 0;
        while (true) {
            std::size_t const slash = rest.find('/');
            std::string_view const name = rest.substr(0, slash);
            std::size_t next = steps_.size();
            for (std::size_t const candidate : steps_[at].next) {
                if (steps_[candidate].name == name) {
                    next = candidate;
                    break;
                }
            }
            if (next == steps_.size()) {
                steps_.push_back({name, at, {}, {}});
                steps_[at].next.push_back(next);
            }
            at = next;
            if (slash == std::string_view::npos) {
                break;
            }
            rest.remove_prefix(slash + 1);
        }
        steps_[at].ends.push_back(index);
    }
}

std::vector<xml::element const*> path_set::find_in(xml::element const& raiz) const
{
    std::vector<xml::element const*> found(paths_.size(), nullptr);
    path_walk walk(steps_, found);
    walk.visit_children(raiz, 0);
    return found;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

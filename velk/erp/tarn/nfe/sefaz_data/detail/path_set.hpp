#pragma once

#include <velk/xml/element.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

// Wanted paths split into their names once: a reader that looks the same
// paths up in every message keeps one of these, and each walk then costs the
// walk alone, where each element is compared with the distinct names its depth
// can have. Paths are relative to the root walked ("infNFe/ide/tpAmb":
// first name that of a direct child), compared by local name.
class path_set {
public:
    explicit path_set(std::vector<std::string> paths);
    // The names are views into the paths: a set stays where it was made.
    path_set(path_set const&) = delete;
    path_set& operator=(path_set const&) = delete;

    std::vector<std::string> const& get_paths() const { return paths_; }

    // The element found for each path, by the path's index; null for one not
    // found. The walk is depth first in document order and a path takes its
    // first occurrence. The pointers are into `raiz` and valid while it is
    // neither changed nor destroyed.
    std::vector<xml::element const*> find_in(xml::element const& raiz) const;

    // The paths as a tree of names: a step is a name under the step before,
    // shared by all the paths that begin alike. Step 0 is the root walked.
    struct step {
        std::string_view name;  // a view into paths_
        std::size_t parent;
        std::vector<std::size_t> next;
        // The paths that end here, by index.
        std::vector<std::size_t> ends;
    };

private:
    std::vector<std::string> paths_;
    std::vector<step> steps_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

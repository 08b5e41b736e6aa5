#pragma once

#include <velk/xml/element.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail {

// Wanted paths split into their names once: a reader that looks the same
// paths up in every message keeps one of these, and each walk then costs the
// walk alone. Paths are relative to the root walked ("infNFe/ide/tpAmb":
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

private:
    std::vector<std::string> paths_;
    // The names of each path; views into paths_.
    std::vector<std::vector<std::string_view>> segments_;
};

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::detail

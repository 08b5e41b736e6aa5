#pragma once

#include <velk/core/export.hpp>
#include <velk/xml/element.hpp>

#include <string>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// An Object of the signature: arbitrary elements carried after KeyInfo. The
// NF-e profile has none; it exists for other signature profiles.
class VELK_EXPORT object {
public:
    object() = default;

    void set_id(std::string const& id) { id_ = id; }
    void add_content(velk::xml::element const& content) { contents_.push_back(content); }

    std::string const& get_id() const { return id_; }
    std::vector<velk::xml::element> const& get_contents() const { return contents_; }

private:
    std::string id_;
    std::vector<velk::xml::element> contents_;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

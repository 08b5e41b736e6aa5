#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A comment, kept so that a parsed tree saves as it came.
class VELK_EXPORT comment {
public:
    explicit comment(std::string contents) : contents_(std::move(contents)) {}
    std::string const& get_contents() const { return contents_; }

private:
    std::string contents_;
};

}  // namespace v3
}  // namespace velk::xml

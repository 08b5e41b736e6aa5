#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A text node. Its contents are kept unescaped and escaped when saved.
class VELK_EXPORT text {
public:
    // Copied or moved straight into place: a document is mostly short texts.
    explicit text(std::string const& contents) : contents_(contents) {}
    explicit text(std::string&& contents) : contents_(std::move(contents)) {}
    std::string const& get_contents() const { return contents_; }
    void set_contents(std::string const& contents) { contents_ = contents; }

private:
    std::string contents_;
};

}  // namespace v3
}  // namespace velk::xml

#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A CDATA section: saved as <![CDATA[...]]>, its contents are not escaped.
class VELK_EXPORT cdata_section {
public:
    explicit cdata_section(std::string contents) : contents_(std::move(contents)) {}
    std::string const& get_contents() const { return contents_; }
    void set_contents(std::string const& contents) { contents_ = contents; }

private:
    std::string contents_;
};

}  // namespace v3
}  // namespace velk::xml

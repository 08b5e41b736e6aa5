#pragma once

#include <velk/core/export.hpp>

#include <string>
#include <utility>

namespace velk::xml {
inline namespace v3 {

// A namespace declaration on an element. An empty prefix declares the
// default namespace (xmlns="uri").
class VELK_EXPORT namespace_id {
public:
    namespace_id(std::string prefix, std::string uri) : prefix_(std::move(prefix)), uri_(std::move(uri)) {}

    std::string const& get_prefix() const { return prefix_; }
    std::string const& get_uri() const { return uri_; }

private:
    std::string prefix_;
    std::string uri_;
};

}  // namespace v3
}  // namespace velk::xml

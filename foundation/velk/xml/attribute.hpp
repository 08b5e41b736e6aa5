#pragma once

#include <velk/core/export.hpp>

#include <string>

namespace velk::xml {
inline namespace v3 {

// An attribute as written: its name may carry a prefix ("xsi:type").
class VELK_EXPORT attribute {
public:
    attribute(std::string name, std::string value);

    std::string const& get_name() const { return name_; }
    // The name without its prefix.
    std::string get_local_name() const;
    std::string get_prefix() const;
    std::string const& get_value() const { return value_; }
    void set_value(std::string const& value) { value_ = value; }
    // The URI of the attribute's prefix as resolved when the tree was parsed;
    // empty for an unprefixed attribute or one built in memory.
    std::string const& get_namespace_uri() const { return namespace_uri_; }
    void set_namespace_uri(std::string const& uri) { namespace_uri_ = uri; }

private:
    std::string name_;
    std::string value_;
    std::string namespace_uri_;
};

}  // namespace v3
}  // namespace velk::xml

#pragma once

#include <velk/core/export.hpp>
#include <velk/cryptography/xml/method/digest.hpp>
#include <velk/cryptography/xml/method/transform.hpp>

#include <string>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

// One Reference of SignedInfo: the URI "#" + the Id of the signed element, the
// transforms in the order added, and the digest method.
class VELK_EXPORT reference {
public:
    explicit reference(method::digest const& digest) : digest_(digest) {}

    void set_uri(std::string const& uri) { uri_ = uri; }
    void add_transform(method::transform const& transform) { transforms_.push_back(transform); }

    std::string const& get_uri() const { return uri_; }
    method::digest const& get_digest() const { return digest_; }
    std::vector<method::transform> const& get_transforms() const { return transforms_; }

private:
    method::digest digest_;
    std::string uri_;
    std::vector<method::transform> transforms_;
};

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

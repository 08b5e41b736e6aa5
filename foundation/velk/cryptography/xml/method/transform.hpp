#pragma once

#include <velk/core/export.hpp>
#include <velk/cryptography/xml/method/canonicalization.hpp>

#include <string>
#include <utility>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

// One Transform of a reference, applied in the order added.
class VELK_EXPORT transform {
public:
    // Leaves the Signature being computed out of the referenced element.
    static transform from_enveloped_signature();
    static transform from_canonicalization_method(canonicalization const& method);

    std::string const& get_algorithm_uri() const { return uri_; }

private:
    explicit transform(std::string uri) : uri_(std::move(uri)) {}
    std::string uri_;
};

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

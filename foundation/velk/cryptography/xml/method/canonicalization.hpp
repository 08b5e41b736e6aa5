#pragma once

#include <velk/core/export.hpp>
#include <velk/xml/canonicalize.hpp>

#include <string>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

// Canonical XML 1.0 (inclusive), with or without comments: the
// CanonicalizationMethod of SignedInfo and the canonicalization transform.
class VELK_EXPORT canonicalization {
public:
    explicit canonicalization(velk::xml::canonicalization_parameters::version_1_0 const& parameters)
        : parameters_(parameters)
    {
    }

    velk::xml::canonicalization_parameters::version_1_0 const& get_parameters() const { return parameters_; }
    std::string get_algorithm_uri() const;

private:
    velk::xml::canonicalization_parameters::version_1_0 parameters_;
};

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

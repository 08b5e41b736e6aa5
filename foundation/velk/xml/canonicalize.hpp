#pragma once

#include <velk/core/byte_array.hpp>
#include <velk/core/export.hpp>
#include <velk/core/result/stack.hpp>

namespace velk::xml {
inline namespace v3 {

namespace canonicalization_parameters {

// Canonical XML 1.0 (inclusive), http://www.w3.org/TR/2001/REC-xml-c14n-20010315.
struct VELK_EXPORT version_1_0 {
    bool with_comments = false;
};

}  // namespace canonicalization_parameters

// Canonical XML 1.0 of a serialised document, as XML signatures digest it.
// The input is parsed with the same safety rules as document::load (codes 1
// and 2); a document that cannot be canonicalised, one with a relative
// namespace URI for instance, is code 8.
VELK_EXPORT core::byte_array canonicalize(core::byte_array const& xml,
                                          canonicalization_parameters::version_1_0 const& parameters,
                                          core::result::stack& stack);

}  // namespace v3
}  // namespace velk::xml

#include <velk/cryptography/xml/method/transform.hpp>

#include <velk/cryptography/xml/detail/identifiers.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

transform transform::from_enveloped_signature()
{
    return transform(detail::enveloped_signature_uri);
}

transform transform::from_canonicalization_method(canonicalization const& method)
{
    return transform(method.get_algorithm_uri());
}

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

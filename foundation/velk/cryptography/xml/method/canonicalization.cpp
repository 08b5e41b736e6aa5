#include <velk/cryptography/xml/method/canonicalization.hpp>

#include <velk/cryptography/xml/detail/identifiers.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

std::string canonicalization::get_algorithm_uri() const
{
    return detail::canonicalization_uri(parameters_.with_comments);
}

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

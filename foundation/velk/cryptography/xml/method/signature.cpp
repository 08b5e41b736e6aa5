#include <velk/cryptography/xml/method/signature.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

signature signature::from_rsa(cryptographic_hash::algorithm algorithm)
{
    return signature(algorithm);
}

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

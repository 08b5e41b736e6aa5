#include <velk/cryptography/xml/method/digest.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace method {

digest digest::from_sha1()
{
    return digest(cryptographic_hash::algorithm::sha1);
}

digest digest::from_algorithm(cryptographic_hash::algorithm algorithm)
{
    return digest(algorithm);
}

}  // namespace method
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

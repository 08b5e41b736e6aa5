#include <velk/cryptography/cryptography_result_category.hpp>

namespace velk::cryptography {
inline namespace v3 {

namespace {

using category = cryptography_result_category;

constexpr auto words = core::result::words_by_number(
    category::unreadable_pkcs12, category::wrong_password, category::incomplete_pkcs12, category::invalid_certificate,
    category::invalid_private_key, category::unsupported_key_type, category::key_mismatch,
    category::unsupported_encoding, category::hash_failed, category::signing_failed, category::unsupported_algorithm,
    category::incomplete_template, category::reference_not_found, category::ambiguous_reference,
    category::no_signature, category::canonicalization_failed);

}  // namespace

cryptography_result_category::cryptography_result_category() : table_category("velk-cryptography", words) {}

cryptography_result_category const& cryptography_result_category::instance()
{
    static cryptography_result_category const category;
    return category;
}

}  // namespace v3
}  // namespace velk::cryptography

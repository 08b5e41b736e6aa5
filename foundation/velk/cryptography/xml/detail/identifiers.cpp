#include <velk/cryptography/xml/detail/identifiers.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

namespace {

struct hash_row {
    cryptographic_hash::algorithm algorithm;
    char const* digest;
    char const* rsa_signature;
};

constexpr hash_row hash_identifiers[] = {
    {cryptographic_hash::algorithm::sha1, "http://www.w3.org/2000/09/xmldsig#sha1",
     "http://www.w3.org/2000/09/xmldsig#rsa-sha1"},
    {cryptographic_hash::algorithm::sha256, "http://www.w3.org/2001/04/xmlenc#sha256",
     "http://www.w3.org/2001/04/xmldsig-more#rsa-sha256"},
    {cryptographic_hash::algorithm::sha512, "http://www.w3.org/2001/04/xmlenc#sha512",
     "http://www.w3.org/2001/04/xmldsig-more#rsa-sha512"},
};

struct canonicalization_row {
    bool with_comments;
    char const* uri;
};

constexpr canonicalization_row canonicalization_identifiers[] = {
    {false, "http://www.w3.org/TR/2001/REC-xml-c14n-20010315"},
    {true, "http://www.w3.org/TR/2001/REC-xml-c14n-20010315#WithComments"},
};

hash_row const* find_hash(cryptographic_hash::algorithm algorithm)
{
    for (auto const& row : hash_identifiers) {
        if (row.algorithm == algorithm) {
            return &row;
        }
    }
    return nullptr;
}

template <class Member>
core::optional<cryptographic_hash::algorithm> find_hash_by_uri(std::string const& uri, Member member)
{
    for (auto const& row : hash_identifiers) {
        if (uri == row.*member) {
            return row.algorithm;
        }
    }
    return {};
}

}  // namespace

char const* digest_uri(cryptographic_hash::algorithm algorithm)
{
    hash_row const* row = find_hash(algorithm);
    return row == nullptr ? nullptr : row->digest;
}

char const* rsa_signature_uri(cryptographic_hash::algorithm algorithm)
{
    hash_row const* row = find_hash(algorithm);
    return row == nullptr ? nullptr : row->rsa_signature;
}

core::optional<cryptographic_hash::algorithm> digest_from_uri(std::string const& uri)
{
    return find_hash_by_uri(uri, &hash_row::digest);
}

core::optional<cryptographic_hash::algorithm> rsa_signature_from_uri(std::string const& uri)
{
    return find_hash_by_uri(uri, &hash_row::rsa_signature);
}

char const* canonicalization_uri(bool with_comments)
{
    return canonicalization_identifiers[with_comments ? 1 : 0].uri;
}

core::optional<bool> canonicalization_from_uri(std::string const& uri)
{
    for (auto const& row : canonicalization_identifiers) {
        if (uri == row.uri) {
            return row.with_comments;
        }
    }
    return {};
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

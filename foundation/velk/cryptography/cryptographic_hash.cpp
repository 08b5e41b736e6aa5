#include <velk/cryptography/cryptographic_hash.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/detail/openssl.hpp>

#include <openssl/err.h>

#include <array>

namespace velk::cryptography {
inline namespace v3 {

namespace {

struct algorithm_row {
    cryptographic_hash::algorithm value;
    char const* name;
    char const* openssl_name;
    EVP_MD const* (*digest)();
};

constexpr algorithm_row algorithms[] = {
    {cryptographic_hash::algorithm::sha1, "sha1", "SHA1", EVP_sha1},
    {cryptographic_hash::algorithm::sha256, "sha256", "SHA256", EVP_sha256},
    {cryptographic_hash::algorithm::sha512, "sha512", "SHA512", EVP_sha512},
};

constexpr std::size_t algorithm_count = sizeof algorithms / sizeof algorithms[0];

// The implementations, fetched from the default provider once for the
// process: OpenSSL looks the implementation of EVP_sha1() and the like up
// again on every use, under the locks of its global tables, which threads
// signing side by side would share. Kept to the end of the process.
std::array<EVP_MD const*, algorithm_count> const& fetched_digests()
{
    static std::array<EVP_MD const*, algorithm_count> const fetched = [] {
        std::array<EVP_MD const*, algorithm_count> digests{};
        for (std::size_t index = 0; index < algorithm_count; ++index) {
            EVP_MD* found = EVP_MD_fetch(nullptr, algorithms[index].openssl_name, nullptr);
            digests[index] = found != nullptr ? found : algorithms[index].digest();
        }
        ERR_clear_error();
        return digests;
    }();
    return fetched;
}

algorithm_row const* find_algorithm(cryptographic_hash::algorithm value)
{
    for (auto const& row : algorithms) {
        if (row.value == value) {
            return &row;
        }
    }
    return nullptr;
}

}  // namespace

namespace detail {

EVP_MD const* message_digest(cryptographic_hash::algorithm algorithm)
{
    algorithm_row const* row = find_algorithm(algorithm);
    return row == nullptr ? nullptr : fetched_digests()[static_cast<std::size_t>(row - algorithms)];
}

}  // namespace detail

struct cryptographic_hash::impl {
    algorithm value = algorithm::sha1;
    detail::openssl_ptr<EVP_MD_CTX> context;
    // Set when OpenSSL refused an update or a copy; finish then reports it.
    bool broken = false;
};

cryptographic_hash::cryptographic_hash() = default;
cryptographic_hash::cryptographic_hash(cryptographic_hash&& other) noexcept = default;
cryptographic_hash& cryptographic_hash::operator=(cryptographic_hash&& other) noexcept = default;
cryptographic_hash::~cryptographic_hash() = default;

cryptographic_hash::cryptographic_hash(cryptographic_hash const& other)
{
    if (other.impl_ == nullptr) {
        return;
    }
    impl_ = std::make_unique<impl>();
    impl_->value = other.impl_->value;
    impl_->context.reset(EVP_MD_CTX_new());
    impl_->broken = other.impl_->broken || impl_->context == nullptr ||
                    EVP_MD_CTX_copy_ex(impl_->context.get(), other.impl_->context.get()) != 1;
}

cryptographic_hash& cryptographic_hash::operator=(cryptographic_hash const& other)
{
    if (this != &other) {
        *this = cryptographic_hash(other);
    }
    return *this;
}

cryptographic_hash cryptographic_hash::from_algorithm(algorithm value, core::result::stack& stack)
{
    algorithm_row const* row = find_algorithm(value);
    if (row == nullptr) {
        core::result::fresh<cryptography_result_category::unsupported_algorithm>(stack, get_name(value));
        return {};
    }
    cryptographic_hash hash;
    hash.impl_ = std::make_unique<impl>();
    hash.impl_->value = value;
    hash.impl_->context.reset(EVP_MD_CTX_new());
    if (hash.impl_->context == nullptr ||
        EVP_DigestInit_ex(hash.impl_->context.get(), detail::message_digest(value), nullptr) != 1) {
        core::result::fresh<cryptography_result_category::hash_failed>(
            stack, row->name, detail::take_openssl_errors("EVP_DigestInit_ex"));
        return {};
    }
    return hash;
}

std::string cryptographic_hash::get_name(algorithm value)
{
    algorithm_row const* row = find_algorithm(value);
    return row == nullptr ? std::to_string(static_cast<int>(value)) : std::string(row->name);
}

void cryptographic_hash::update(core::byte_array const& bytes)
{
    update(bytes.data(), bytes.size());
}

void cryptographic_hash::update(std::string const& text)
{
    update(reinterpret_cast<unsigned char const*>(text.data()), text.size());
}

void cryptographic_hash::update(unsigned char const* data, std::size_t size)
{
    if (impl_ == nullptr || impl_->broken || size == 0) {
        return;
    }
    impl_->broken = EVP_DigestUpdate(impl_->context.get(), data, size) != 1;
}

namespace {

// Finishes `context`, which is consumed, into a digest; code 9 when it fails.
core::byte_array finish_context(EVP_MD_CTX* context, cryptographic_hash::algorithm value, core::result::stack& stack)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int size = 0;
    if (context == nullptr || EVP_DigestFinal_ex(context, digest, &size) != 1) {
        core::result::fresh<cryptography_result_category::hash_failed>(
            stack, cryptographic_hash::get_name(value), detail::take_openssl_errors("EVP_DigestFinal_ex"));
        return {};
    }
    core::byte_array bytes;
    bytes.assign(digest, digest + size);
    return bytes;
}

}  // namespace

bool cryptographic_hash::can_finish(core::result::stack& stack) const
{
    if (impl_ == nullptr) {
        core::result::fresh<cryptography_result_category::hash_failed>(stack, "", "objeto de hash vazio");
        return false;
    }
    if (impl_->broken) {
        core::result::fresh<cryptography_result_category::hash_failed>(stack, get_name(impl_->value),
                                                                       detail::take_openssl_errors("EVP_DigestUpdate"));
        return false;
    }
    return true;
}

core::byte_array cryptographic_hash::finish(core::result::stack& stack) const
{
    if (!can_finish(stack)) {
        return {};
    }
    // Finishing consumes a context: finish a copy so the running state stays.
    detail::openssl_ptr<EVP_MD_CTX> copy(EVP_MD_CTX_new());
    if (copy != nullptr && EVP_MD_CTX_copy_ex(copy.get(), impl_->context.get()) != 1) {
        copy.reset();
    }
    return finish_context(copy.get(), impl_->value, stack);
}

core::byte_array cryptographic_hash::finish_once(core::result::stack& stack)
{
    if (!can_finish(stack)) {
        return {};
    }
    std::unique_ptr<impl> const ended = std::move(impl_);
    return finish_context(ended->context.get(), ended->value, stack);
}

}  // namespace v3
}  // namespace velk::cryptography

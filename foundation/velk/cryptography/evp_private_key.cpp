#include <velk/cryptography/evp_private_key.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/detail/openssl.hpp>

#include <openssl/pem.h>

#include <vector>

namespace velk::cryptography {
inline namespace v3 {

namespace {

struct type_row {
    int openssl_type;
    evp_private_key::type value;
};

constexpr type_row key_types[] = {
    {EVP_PKEY_RSA, evp_private_key::type::rsa},
    {EVP_PKEY_DSA, evp_private_key::type::dsa},
    {EVP_PKEY_DH, evp_private_key::type::dh},
    {EVP_PKEY_EC, evp_private_key::type::ec},
};

type_row const* find_type(EVP_PKEY const* key)
{
    int const base = EVP_PKEY_get_base_id(key);
    for (auto const& row : key_types) {
        if (row.openssl_type == base) {
            return &row;
        }
    }
    return nullptr;
}

// Never ask for a passphrase: an encrypted PEM key is refused, not prompted for.
int refuse_passphrase(char*, int, int, void*)
{
    return -1;
}

}  // namespace

namespace detail {

char const* unsupported_key_type(EVP_PKEY const* key)
{
    if (find_type(key) != nullptr) {
        return nullptr;
    }
    char const* name = EVP_PKEY_get0_type_name(key);
    return name == nullptr ? "desconhecido" : name;
}

}  // namespace detail

EVP_MD_CTX const* evp_private_key::impl::prepared_context(cryptographic_hash::algorithm algorithm,
                                                          EVP_MD const* digest) const
{
    auto const index = static_cast<std::size_t>(algorithm);
    if (index >= digest_count) {
        return nullptr;
    }
    std::call_once(prepared_once_[index], [&] {
        detail::openssl_ptr<EVP_MD_CTX> context(EVP_MD_CTX_new());
        if (context != nullptr && EVP_DigestSignInit(context.get(), nullptr, digest, nullptr, handle.get()) == 1) {
            prepared_[index] = std::move(context);
        }
        detail::take_openssl_errors("");
    });
    return prepared_[index].get();
}

evp_private_key::evp_private_key() = default;

evp_private_key evp_private_key::from_byte_array(core::byte_array const& bytes, encoding format,
                                                 core::result::stack& stack)
{
    if (!detail::is_known_encoding(format, stack)) {
        return {};
    }
    if (bytes.empty()) {
        core::result::fresh<cryptography_result_category::invalid_private_key>(stack, "conteúdo vazio");
        return {};
    }
    detail::openssl_ptr<EVP_PKEY> handle;
    if (format == encoding::der) {
        unsigned char const* cursor = bytes.data();
        handle.reset(d2i_AutoPrivateKey(nullptr, &cursor, static_cast<long>(bytes.size())));
    } else {
        auto source = detail::memory_source(bytes.data(), bytes.size());
        handle.reset(PEM_read_bio_PrivateKey(source.get(), nullptr, refuse_passphrase, nullptr));
    }
    if (handle == nullptr) {
        core::result::fresh<cryptography_result_category::invalid_private_key>(stack,
                                                                               detail::take_openssl_errors("ilegível"));
        return {};
    }
    if (char const* type = detail::unsupported_key_type(handle.get())) {
        core::result::fresh<cryptography_result_category::unsupported_key_type>(stack, type);
        return {};
    }
    evp_private_key key;
    key.impl_ = std::make_shared<impl const>(std::move(handle));
    return key;
}

bool evp_private_key::empty() const
{
    return impl_ == nullptr;
}

evp_private_key::type evp_private_key::get_type() const
{
    type_row const* row = impl_ == nullptr ? nullptr : find_type(impl_->handle.get());
    return row == nullptr ? type::rsa : row->value;
}

core::byte_array evp_private_key::to_byte_array(encoding format, core::result::stack& stack) const
{
    if (!detail::is_known_encoding(format, stack)) {
        return {};
    }
    if (impl_ == nullptr) {
        core::result::fresh<cryptography_result_category::invalid_private_key>(stack, "chave vazia");
        return {};
    }
    if (format == encoding::der) {
        unsigned char* der = nullptr;
        int const length = i2d_PrivateKey(impl_->handle.get(), &der);
        if (length <= 0) {
            core::result::fresh<cryptography_result_category::invalid_private_key>(
                stack, detail::take_openssl_errors("i2d_PrivateKey"));
            return {};
        }
        core::byte_array bytes;
        bytes.assign(der, der + length);
        OPENSSL_clear_free(der, static_cast<std::size_t>(length));
        return bytes;
    }
    detail::openssl_ptr<BIO> sink(BIO_new(BIO_s_secmem()));
    if (sink == nullptr ||
        PEM_write_bio_PrivateKey(sink.get(), impl_->handle.get(), nullptr, nullptr, 0, nullptr, nullptr) != 1) {
        core::result::fresh<cryptography_result_category::invalid_private_key>(
            stack, detail::take_openssl_errors("PEM_write_bio_PrivateKey"));
        return {};
    }
    return detail::memory_contents(sink.get());
}

core::byte_array evp_private_key::sign(cryptographic_hash::algorithm algorithm, core::byte_array const& data,
                                       core::result::stack& stack) const
{
    EVP_MD const* digest = detail::message_digest(algorithm);
    if (digest == nullptr) {
        core::result::fresh<cryptography_result_category::unsupported_algorithm>(
            stack, cryptographic_hash::get_name(algorithm));
        return {};
    }
    if (impl_ == nullptr) {
        core::result::fresh<cryptography_result_category::signing_failed>(stack, "chave vazia");
        return {};
    }
    detail::openssl_ptr<EVP_MD_CTX> context(EVP_MD_CTX_new());
    EVP_MD_CTX const* prepared = impl_->prepared_context(algorithm, digest);
    bool const ready = context != nullptr && ((prepared != nullptr && EVP_MD_CTX_copy_ex(context.get(), prepared) == 1) ||
                                              EVP_DigestSignInit(context.get(), nullptr, digest, nullptr,
                                                                 impl_->handle.get()) == 1);
    std::size_t size = 0;
    if (!ready || EVP_DigestSign(context.get(), nullptr, &size, data.data(), data.size()) != 1) {
        core::result::fresh<cryptography_result_category::signing_failed>(
            stack, detail::take_openssl_errors("EVP_DigestSign"));
        return {};
    }
    std::vector<unsigned char> buffer(size);
    if (EVP_DigestSign(context.get(), buffer.data(), &size, data.data(), data.size()) != 1) {
        core::result::fresh<cryptography_result_category::signing_failed>(
            stack, detail::take_openssl_errors("EVP_DigestSign"));
        return {};
    }
    // DSA and EC signatures may come out shorter than the size announced.
    core::byte_array signature;
    signature.assign(buffer.data(), buffer.data() + size);
    return signature;
}

}  // namespace v3
}  // namespace velk::cryptography

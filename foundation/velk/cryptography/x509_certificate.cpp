#include <velk/cryptography/x509_certificate.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/detail/openssl.hpp>

#include <openssl/err.h>
#include <openssl/pem.h>

#include <ctime>

namespace velk::cryptography {
inline namespace v3 {

namespace {

std::string common_name(X509_NAME const* name)
{
    if (name == nullptr) {
        return {};
    }
    int const position = X509_NAME_get_index_by_NID(name, NID_commonName, -1);
    if (position < 0) {
        return {};
    }
    ASN1_STRING const* value = X509_NAME_ENTRY_get_data(X509_NAME_get_entry(name, position));
    unsigned char* utf8 = nullptr;
    int const length = ASN1_STRING_to_UTF8(&utf8, value);
    if (length < 0) {
        return {};
    }
    std::string text(reinterpret_cast<char const*>(utf8), static_cast<std::size_t>(length));
    OPENSSL_free(utf8);
    return text;
}

core::datetime to_datetime(ASN1_TIME const* value)
{
    std::tm parts{};
    if (value == nullptr || ASN1_TIME_to_tm(value, &parts) != 1) {
        return {};
    }
    return core::datetime(core::date(static_cast<unsigned int>(parts.tm_mday), static_cast<unsigned int>(parts.tm_mon + 1),
                                     parts.tm_year + 1900),
                          core::time(parts.tm_hour, static_cast<unsigned int>(parts.tm_min),
                                     static_cast<unsigned int>(parts.tm_sec), 0),
                          0);
}

}  // namespace

x509_certificate::x509_certificate() = default;

x509_certificate x509_certificate::from_byte_array(core::byte_array const& bytes, encoding format,
                                                   core::result::stack& stack)
{
    if (!detail::is_known_encoding(format, stack)) {
        return {};
    }
    if (bytes.empty()) {
        core::result::fresh<cryptography_result_category::invalid_certificate>(stack, "conteúdo vazio");
        return {};
    }
    detail::openssl_ptr<X509> handle;
    if (format == encoding::der) {
        unsigned char const* cursor = bytes.data();
        handle.reset(d2i_X509(nullptr, &cursor, static_cast<long>(bytes.size())));
        if (handle != nullptr && cursor != bytes.end()) {
            handle.reset();
            detail::take_openssl_errors("");
            core::result::fresh<cryptography_result_category::invalid_certificate>(stack, "bytes após o certificado");
            return {};
        }
    } else {
        auto source = detail::memory_source(bytes.data(), bytes.size());
        handle.reset(PEM_read_bio_X509(source.get(), nullptr, nullptr, nullptr));
    }
    if (handle == nullptr) {
        core::result::fresh<cryptography_result_category::invalid_certificate>(stack,
                                                                               detail::take_openssl_errors("ilegível"));
        return {};
    }
    x509_certificate certificate;
    certificate.impl_ = std::make_shared<impl const>(std::move(handle));
    return certificate;
}

bool x509_certificate::empty() const
{
    return impl_ == nullptr;
}

core::byte_array const& x509_certificate::impl::der() const
{
    std::call_once(der_once_, [this] {
        ERR_set_mark();
        unsigned char* der = nullptr;
        int const length = i2d_X509(handle.get(), &der);
        if (length > 0) {
            der_.assign(der, der + length);
            OPENSSL_free(der);
        }
        ERR_pop_to_mark();
    });
    return der_;
}

std::string const& x509_certificate::impl::der_base64() const
{
    std::call_once(der_base64_once_, [this] {
        der_base64_ = core::binary_encoder::encode(core::binary_encoding::base64, der());
    });
    return der_base64_;
}

std::string const& x509_certificate::get_der_base64() const
{
    static std::string const none;
    return impl_ == nullptr ? none : impl_->der_base64();
}

core::byte_array x509_certificate::to_byte_array(encoding format, core::result::stack& stack) const
{
    if (!detail::is_known_encoding(format, stack)) {
        return {};
    }
    if (impl_ == nullptr) {
        core::result::fresh<cryptography_result_category::invalid_certificate>(stack, "certificado vazio");
        return {};
    }
    if (format == encoding::der) {
        if (core::byte_array const& kept = impl_->der(); !kept.empty()) {
            return kept;
        }
        unsigned char* der = nullptr;
        int const length = i2d_X509(impl_->handle.get(), &der);
        if (length <= 0) {
            core::result::fresh<cryptography_result_category::invalid_certificate>(
                stack, detail::take_openssl_errors("i2d_X509"));
            return {};
        }
        core::byte_array bytes;
        bytes.assign(der, der + length);
        OPENSSL_free(der);
        return bytes;
    }
    detail::openssl_ptr<BIO> sink(BIO_new(BIO_s_mem()));
    if (sink == nullptr || PEM_write_bio_X509(sink.get(), impl_->handle.get()) != 1) {
        core::result::fresh<cryptography_result_category::invalid_certificate>(
            stack, detail::take_openssl_errors("PEM_write_bio_X509"));
        return {};
    }
    return detail::memory_contents(sink.get());
}

std::string x509_certificate::get_subject_common_name() const
{
    return impl_ == nullptr ? std::string() : common_name(X509_get_subject_name(impl_->handle.get()));
}

std::string x509_certificate::get_issuer_common_name() const
{
    return impl_ == nullptr ? std::string() : common_name(X509_get_issuer_name(impl_->handle.get()));
}

core::datetime x509_certificate::get_not_before() const
{
    return impl_ == nullptr ? core::datetime() : to_datetime(X509_get0_notBefore(impl_->handle.get()));
}

core::datetime x509_certificate::get_not_after() const
{
    return impl_ == nullptr ? core::datetime() : to_datetime(X509_get0_notAfter(impl_->handle.get()));
}

bool x509_certificate::matches(evp_private_key const& key) const
{
    if (impl_ == nullptr || key.impl_ == nullptr) {
        return false;
    }
    bool const same = X509_check_private_key(impl_->handle.get(), key.impl_->handle.get()) == 1;
    detail::take_openssl_errors("");
    return same;
}

}  // namespace v3
}  // namespace velk::cryptography

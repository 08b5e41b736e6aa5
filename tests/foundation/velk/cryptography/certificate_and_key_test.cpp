#include <velk/cryptography/evp_private_key.hpp>
#include <velk/cryptography/x509_certificate.hpp>

#include "openssl_fixtures.hpp"

#include <support/test_certificates.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>

#include <gtest/gtest.h>

#include <openssl/evp.h>
#include <openssl/x509.h>

#include <atomic>
#include <ctime>
#include <string>
#include <thread>
#include <vector>

namespace velk::cryptography {
namespace {

using velk::test::test_certificates;

core::byte_array bytes_of(std::string const& text)
{
    return core::byte_array(text);
}

evp_private_key taxpayer_key()
{
    core::result::stack stack;
    auto key = evp_private_key::from_byte_array(bytes_of(test_certificates::instance().taxpayer().private_key_pem()),
                                                encoding::pem, stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return key;
}

// Bytes that must not read, with the code of the failure.
struct bad_case {
    char const* name;
    core::byte_array bytes;
    encoding format;
    int code;
};

std::time_t to_time(core::datetime const& value)
{
    std::tm parts{};
    parts.tm_year = value.get_date().get_year() - 1900;
    parts.tm_mon = static_cast<int>(value.get_date().get_month()) - 1;
    parts.tm_mday = static_cast<int>(value.get_date().get_day());
    parts.tm_hour = value.get_time().get_hours();
    parts.tm_min = static_cast<int>(value.get_time().get_minutes());
    parts.tm_sec = static_cast<int>(value.get_time().get_seconds());
    return timegm(&parts);
}

TEST(x509_certificate, round_trips_through_der_and_pem)
{
    auto const& taxpayer = test_certificates::instance().taxpayer();
    core::result::stack stack;
    auto const from_der = x509_certificate::from_byte_array(taxpayer.certificate_der(), encoding::der, stack);
    EXPECT_EQ(from_der.to_byte_array(encoding::der, stack), taxpayer.certificate_der());
    EXPECT_EQ(from_der.to_byte_array(encoding::pem, stack).to_string(), taxpayer.certificate_pem());

    auto const from_pem = x509_certificate::from_byte_array(bytes_of(taxpayer.certificate_pem()), encoding::pem, stack);
    EXPECT_EQ(from_pem.to_byte_array(encoding::der, stack), taxpayer.certificate_der());
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
}

TEST(x509_certificate, tells_names_and_validity)
{
    core::result::stack stack;
    auto const certificate = x509_certificate::from_byte_array(
        test_certificates::instance().taxpayer().certificate_der(), encoding::der, stack);
    EXPECT_EQ(certificate.get_subject_common_name(), "EMPRESA DE TESTES LTDA:12345678000195");
    EXPECT_EQ(certificate.get_issuer_common_name(), "Velk Test CA");
    // The throw-away CA issues from a day ago for 30 days.
    std::time_t const now = std::time(nullptr);
    EXPECT_NEAR(static_cast<double>(to_time(certificate.get_not_before())), static_cast<double>(now - 86400), 120.0);
    EXPECT_NEAR(static_cast<double>(to_time(certificate.get_not_after())), static_cast<double>(now + 29 * 86400),
                120.0);
    EXPECT_EQ(certificate.get_not_after().get_utc_offset(), 0);
}

TEST(x509_certificate, refuses_what_is_not_one_certificate)
{
    core::byte_array with_trailer = test_certificates::instance().taxpayer().certificate_der();
    with_trailer.push_back(0);
    bad_case const cases[] = {
        {"empty", core::byte_array(), encoding::der, 4},
        {"trailing byte", with_trailer, encoding::der, 4},
        {"garbage DER", bytes_of("0123456789"), encoding::der, 4},
        {"PEM without certificate", bytes_of("-----BEGIN CERTIFICATE-----\nAAAA\n-----END CERTIFICATE-----\n"),
         encoding::pem, 4},
        {"unknown encoding", bytes_of("x"), static_cast<encoding>(2), 8},
    };
    for (auto const& bad : cases) {
        core::result::stack stack;
        EXPECT_TRUE(x509_certificate::from_byte_array(bad.bytes, bad.format, stack).empty()) << bad.name;
        ASSERT_TRUE(stack.has_failed()) << bad.name;
        EXPECT_EQ(stack.get_value(), bad.code) << bad.name;
    }
}

TEST(evp_private_key, der_is_what_the_tls_setup_reads_with_d2i_private_key)
{
    evp_private_key const key = taxpayer_key();
    core::result::stack stack;
    EXPECT_EQ(static_cast<int>(key.get_type()), 0);
    core::byte_array const der = key.to_byte_array(encoding::der, stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    unsigned char const* cursor = der.data();
    EVP_PKEY* read_back = d2i_PrivateKey(EVP_PKEY_RSA, nullptr, &cursor, static_cast<long>(der.size()));
    ASSERT_NE(read_back, nullptr);
    EVP_PKEY* public_key = velk::test::certificate_public_key(test_certificates::instance().taxpayer().certificate_pem());
    EXPECT_EQ(EVP_PKEY_eq(read_back, public_key), 1);
    EVP_PKEY_free(public_key);
    EVP_PKEY_free(read_back);

    auto const from_der = evp_private_key::from_byte_array(der, encoding::der, stack);
    auto const from_pem = evp_private_key::from_byte_array(key.to_byte_array(encoding::pem, stack), encoding::pem, stack);
    EXPECT_EQ(from_der.to_byte_array(encoding::der, stack), der);
    EXPECT_EQ(from_pem.to_byte_array(encoding::der, stack), der);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
}

TEST(evp_private_key, signs_so_that_the_certificate_verifies)
{
    evp_private_key const key = taxpayer_key();
    core::byte_array const data("<SignedInfo>...</SignedInfo>");
    EVP_PKEY* public_key = velk::test::certificate_public_key(test_certificates::instance().taxpayer().certificate_pem());
    struct signing_case {
        cryptographic_hash::algorithm algorithm;
        EVP_MD const* digest;
    };
    signing_case const cases[] = {
        {cryptographic_hash::algorithm::sha1, EVP_sha1()},
        {cryptographic_hash::algorithm::sha256, EVP_sha256()},
    };
    for (auto const& signing : cases) {
        core::result::stack stack;
        core::byte_array const signature = key.sign(signing.algorithm, data, stack);
        ASSERT_FALSE(stack.has_failed()) << stack.to_string();
        EXPECT_EQ(signature.size(), 256U) << "RSA-2048";
        EXPECT_EQ(key.sign(signing.algorithm, data, stack), signature) << "PKCS#1 v1.5 is deterministic";

        EVP_MD_CTX* context = EVP_MD_CTX_new();
        EVP_DigestVerifyInit(context, nullptr, signing.digest, nullptr, public_key);
        EXPECT_EQ(EVP_DigestVerify(context, signature.data(), signature.size(), data.data(), data.size()), 1)
            << cryptographic_hash::get_name(signing.algorithm);
        EVP_MD_CTX_free(context);
    }
    EVP_PKEY_free(public_key);
}

// The signing context a key prepares once is copied by every signature, from
// any thread: threads signing side by side with one key each get the one
// signature of their data, and a key copied keeps signing as its source.
TEST(evp_private_key, signs_from_several_threads_at_once)
{
    evp_private_key const key = taxpayer_key();
    constexpr int threads = 4;
    constexpr int rounds = 25;
    std::vector<core::byte_array> expected;
    for (int thread = 0; thread < threads; ++thread) {
        core::result::stack stack;
        evp_private_key const separate = evp_private_key::from_byte_array(
            key.to_byte_array(encoding::der, stack), encoding::der, stack);
        expected.push_back(separate.sign(cryptographic_hash::algorithm::sha1,
                                         core::byte_array("documento " + std::to_string(thread)), stack));
        ASSERT_FALSE(stack.has_failed()) << stack.to_string();
    }
    std::atomic<int> mismatches{0};
    std::vector<std::thread> workers;
    for (int thread = 0; thread < threads; ++thread) {
        workers.emplace_back([&, thread] {
            evp_private_key const copy = key;
            core::byte_array const data("documento " + std::to_string(thread));
            for (int round = 0; round < rounds; ++round) {
                core::result::stack stack;
                evp_private_key const& signer = round % 2 == 0 ? key : copy;
                if (signer.sign(cryptographic_hash::algorithm::sha1, data, stack) != expected[thread] ||
                    stack.has_failed()) {
                    ++mismatches;
                }
            }
        });
    }
    for (std::thread& worker : workers) {
        worker.join();
    }
    EXPECT_EQ(mismatches.load(), 0);
}

TEST(evp_private_key, refuses_unusable_keys_without_asking_for_a_passphrase)
{
    std::string const pem = test_certificates::instance().taxpayer().private_key_pem();
    bad_case const cases[] = {
        {"empty", core::byte_array(), encoding::pem, 5},
        {"encrypted PEM", bytes_of(velk::test::encrypt_pem_key(pem, "segredo")), encoding::pem, 5},
        {"garbage DER", bytes_of("not a key"), encoding::der, 5},
        {"Ed25519", bytes_of(velk::test::make_ed25519_pem()), encoding::pem, 6},
        {"unknown encoding", bytes_of(pem), static_cast<encoding>(9), 8},
    };
    for (auto const& bad : cases) {
        core::result::stack stack;
        EXPECT_TRUE(evp_private_key::from_byte_array(bad.bytes, bad.format, stack).empty()) << bad.name;
        ASSERT_TRUE(stack.has_failed()) << bad.name;
        EXPECT_EQ(stack.get_value(), bad.code) << bad.name << ": " << stack.to_string();
        EXPECT_EQ(stack.to_string().find("segredo"), std::string::npos) << bad.name;
    }

    evp_private_key const empty;
    core::result::stack stack;
    EXPECT_TRUE(empty.sign(cryptographic_hash::algorithm::sha1, core::byte_array("x"), stack).empty());
    EXPECT_EQ(stack.get_value(), 10);
    EXPECT_TRUE(taxpayer_key().sign(static_cast<cryptographic_hash::algorithm>(5), core::byte_array("x"), stack).empty());
    EXPECT_EQ(stack.get_value(), 11);
}

}  // namespace
}  // namespace velk::cryptography

#include <velk/cryptography/pkcs12.hpp>

#include "openssl_fixtures.hpp"

#include <support/test_certificates.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>

#include <gtest/gtest.h>

#include <openssl/x509.h>

#include <cstdint>
#include <string>

namespace velk::cryptography {
namespace {

using velk::test::test_certificates;

TEST(pkcs12, reads_the_certificate_and_key_of_a_bundle)
{
    auto const& certificates = test_certificates::instance();
    core::result::stack stack;
    pkcs12 const bundle = pkcs12::from_byte_array(certificates.pkcs12(), certificates.password(), stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    EXPECT_FALSE(bundle.empty());
    EXPECT_EQ(bundle.get_certificate().get_subject_common_name(), "EMPRESA DE TESTES LTDA:12345678000195");
    EXPECT_EQ(bundle.get_certificate().to_byte_array(encoding::der, stack), certificates.taxpayer().certificate_der());
    EXPECT_EQ(bundle.get_evp_private_key().get_type(), evp_private_key::type::rsa);
    EXPECT_TRUE(bundle.get_certificate().matches(bundle.get_evp_private_key()));
}

TEST(pkcs12, copies_share_the_contents_and_a_default_one_is_empty)
{
    auto const& certificates = test_certificates::instance();
    core::result::stack stack;
    pkcs12 original = pkcs12::from_byte_array(certificates.pkcs12(), certificates.password(), stack);
    pkcs12 const copy = original;
    pkcs12 const moved = std::move(original);
    EXPECT_EQ(copy.get_certificate().to_byte_array(encoding::der, stack),
              moved.get_certificate().to_byte_array(encoding::der, stack));

    pkcs12 const empty;
    EXPECT_TRUE(empty.empty());
    EXPECT_TRUE(empty.get_certificate().empty());
    EXPECT_TRUE(empty.get_evp_private_key().empty());
    EXPECT_TRUE(empty.get_certificate().to_byte_array(encoding::der, stack).empty());
    EXPECT_EQ(stack.get_value(), 4);
}

TEST(pkcs12, refuses_unreadable_bundles_and_wrong_passwords_on_the_stack)
{
    auto const& certificates = test_certificates::instance();
    core::byte_array const& good = certificates.pkcs12();
    core::byte_array truncated;
    truncated.assign(good.data(), good.data() + good.size() / 2);
    core::byte_array last_byte_missing;
    last_byte_missing.assign(good.data(), good.data() + good.size() - 1);

    struct bad_case {
        char const* name;
        core::byte_array bytes;
        std::string password;
        int code;
    };
    bad_case const cases[] = {
        {"empty", core::byte_array(), certificates.password(), 1},
        {"truncated", truncated, certificates.password(), 1},
        {"last byte missing", last_byte_missing, certificates.password(), 1},
        {"garbage", core::byte_array("not a certificate file at all"), certificates.password(), 1},
        {"certificate instead of bundle", certificates.taxpayer().certificate_der(), certificates.password(), 1},
        {"wrong password", good, "senha-errada", 2},
        {"empty password", good, "", 2},
    };
    for (auto const& bad : cases) {
        core::result::stack stack;
        pkcs12 const bundle = pkcs12::from_byte_array(bad.bytes, bad.password, stack);
        ASSERT_TRUE(stack.has_failed()) << bad.name;
        EXPECT_EQ(stack.size(), 1U) << bad.name;
        EXPECT_EQ(&stack.get_category(), &cryptography_result_category::instance()) << bad.name;
        EXPECT_EQ(stack.get_value(), bad.code) << bad.name << ": " << stack.to_string();
        EXPECT_TRUE(bundle.empty()) << bad.name;
        EXPECT_TRUE(bundle.get_certificate().empty()) << bad.name;
        if (!bad.password.empty()) {
            EXPECT_EQ(stack.to_string().find(bad.password), std::string::npos) << "password leaked: " << bad.name;
        }
    }
}

TEST(pkcs12, refuses_a_password_check_of_too_many_rounds_before_running_it)
{
    // Each row would hold the thread for seconds to hours if the rounds ran.
    auto const& certificates = test_certificates::instance();
    struct rounds_case {
        std::uint64_t iterations;
        char const* description;
    };
    rounds_case const cases[] = {
        {10'000'001, "número de iterações do MAC acima de 10000000: 10000001"},
        {2'147'483'647, "número de iterações do MAC acima de 10000000: 2147483647"},
        {UINT64_MAX, "número de iterações do MAC acima de 10000000: mais de 64 bits"},
    };
    for (rounds_case const& current : cases) {
        core::result::stack stack;
        pkcs12 const bundle = pkcs12::from_byte_array(
            velk::test::with_mac_iterations(certificates.pkcs12(), current.iterations), certificates.password(), stack);
        EXPECT_TRUE(bundle.empty());
        ASSERT_EQ(stack.size(), 1U) << current.iterations;
        ASSERT_EQ(stack.get_value(), 1) << stack.to_string();
        EXPECT_EQ(*stack.top().find_argument("description"), current.description);
    }
    // A count within the bound goes on to the password check, which this MAC,
    // made with another count, fails.
    core::result::stack stack;
    pkcs12::from_byte_array(velk::test::with_mac_iterations(certificates.pkcs12(), 1), certificates.password(), stack);
    EXPECT_EQ(stack.get_value(), 2) << stack.to_string();
}

TEST(pkcs12, reads_bundles_in_the_older_export_format)
{
    auto const& certificates = test_certificates::instance();
    core::byte_array const legacy = velk::test::make_legacy_pkcs12(certificates.taxpayer(), "1234");
    core::result::stack stack;
    pkcs12 const bundle = pkcs12::from_byte_array(legacy, "1234", stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();
    EXPECT_EQ(bundle.get_certificate().to_byte_array(encoding::der, stack), certificates.taxpayer().certificate_der());

    pkcs12::from_byte_array(legacy, "4321", stack);
    EXPECT_EQ(stack.get_value(), 2);
}

TEST(pkcs12, gives_an_ec_key_type_3_that_openssl_reads_back)
{
    core::result::stack stack;
    pkcs12 const bundle = pkcs12::from_byte_array(velk::test::make_ec_pkcs12("ec"), "ec", stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();
    evp_private_key const key = bundle.get_evp_private_key();
    EXPECT_EQ(static_cast<int>(key.get_type()), 3);

    core::byte_array const der = key.to_byte_array(encoding::der, stack);
    unsigned char const* cursor = der.data();
    EVP_PKEY* read_back = d2i_PrivateKey(EVP_PKEY_EC, nullptr, &cursor, static_cast<long>(der.size()));
    ASSERT_NE(read_back, nullptr);
    EXPECT_EQ(EVP_PKEY_get_base_id(read_back), EVP_PKEY_EC);
    EVP_PKEY_free(read_back);
}

TEST(pkcs12, joins_a_certificate_only_with_its_own_key)
{
    auto const& certificates = test_certificates::instance();
    core::result::stack stack;
    auto const certificate = x509_certificate::from_byte_array(certificates.taxpayer().certificate_der(),
                                                               encoding::der, stack);
    auto const own_key = evp_private_key::from_byte_array(core::byte_array(certificates.taxpayer().private_key_pem()),
                                                          encoding::pem, stack);
    auto const other_key = evp_private_key::from_byte_array(core::byte_array(certificates.other().private_key_pem()),
                                                            encoding::pem, stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    EXPECT_FALSE(pkcs12::from_certificate_and_key(certificate, own_key, stack).empty());
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();

    EXPECT_TRUE(pkcs12::from_certificate_and_key(certificate, other_key, stack).empty());
    EXPECT_EQ(stack.get_value(), 7);
    EXPECT_EQ(*stack.top().find_argument("subject"), "EMPRESA DE TESTES LTDA:12345678000195");

    stack.reset();
    pkcs12::from_certificate_and_key(certificate, evp_private_key(), stack);
    EXPECT_EQ(stack.get_value(), 3);
    EXPECT_EQ(*stack.top().find_argument("missing"), "chave privada");
}

}  // namespace
}  // namespace velk::cryptography

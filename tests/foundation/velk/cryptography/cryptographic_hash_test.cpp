#include <velk/cryptography/cryptographic_hash.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>

#include <gtest/gtest.h>

#include <string>

namespace velk::cryptography {
namespace {

using algorithm = cryptographic_hash::algorithm;

std::string hex_digest(algorithm value, std::string const& text)
{
    core::result::stack stack;
    cryptographic_hash hash = cryptographic_hash::from_algorithm(value, stack);
    hash.update(text);
    core::byte_array const digest = hash.finish(stack);
    // Ending the running state gives the same digest and leaves the hash empty.
    EXPECT_EQ(hash.finish_once(stack), digest);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    EXPECT_TRUE(hash.finish_once(stack).empty());
    EXPECT_EQ(stack.get_value(), 9);
    return core::binary_encoder::encode(core::binary_encoding::hexadecimal, digest);
}

struct known_vector {
    algorithm value;
    std::string input;
    std::string digest;
};

TEST(cryptographic_hash, gives_the_published_digests)
{
    std::string const million_a(1000000, 'a');
    known_vector const vectors[] = {
        {algorithm::sha1, "", "da39a3ee5e6b4b0d3255bfef95601890afd80709"},
        {algorithm::sha1, "abc", "a9993e364706816aba3e25717850c26c9cd0d89d"},
        {algorithm::sha1, "abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
         "84983e441c3bd26ebaae4aa1f95129e5e54670f1"},
        {algorithm::sha1, million_a, "34aa973cd4c4daa4f61eeb2bdbad27316534016f"},
        {algorithm::sha256, "", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        {algorithm::sha256, "abc", "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        {algorithm::sha256, million_a, "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"},
        {algorithm::sha512, "abc",
         "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a2192992a274fc1a836ba3c23a3feebbd"
         "454d4423643ce80e2a9ac94fa54ca49f"},
    };
    for (auto const& vector : vectors) {
        EXPECT_EQ(hex_digest(vector.value, vector.input), vector.digest)
            << cryptographic_hash::get_name(vector.value) << " of " << vector.input.size() << " bytes";
    }
}

TEST(cryptographic_hash, feeds_in_pieces_and_finishes_without_ending_the_running_state)
{
    core::result::stack stack;
    cryptographic_hash hash = cryptographic_hash::from_algorithm(algorithm::sha1, stack);
    hash.update(std::string("a"));
    hash.update(core::byte_array("b"));
    cryptographic_hash const copy_at_ab = hash;
    hash.update(reinterpret_cast<unsigned char const*>("c"), 1);

    auto const hex = [&stack](cryptographic_hash const& value) {
        return core::binary_encoder::encode(core::binary_encoding::hexadecimal, value.finish(stack));
    };
    EXPECT_EQ(hex(hash), "a9993e364706816aba3e25717850c26c9cd0d89d");
    EXPECT_EQ(hex(hash), "a9993e364706816aba3e25717850c26c9cd0d89d") << "finish twice gives the same digest";
    EXPECT_EQ(hex(copy_at_ab), hex_digest(algorithm::sha1, "ab")) << "a copy keeps its own state";
    hash.update(std::string("d"));
    EXPECT_EQ(hex(hash), hex_digest(algorithm::sha1, "abcd"));
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
}

TEST(cryptographic_hash, reports_unknown_algorithms_and_empty_objects)
{
    core::result::stack stack;
    cryptographic_hash const unknown = cryptographic_hash::from_algorithm(static_cast<algorithm>(7), stack);
    ASSERT_TRUE(stack.has_failed());
    EXPECT_EQ(&stack.get_category(), &cryptography_result_category::instance());
    EXPECT_EQ(stack.get_value(), 11);
    EXPECT_EQ(*stack.top().find_argument("algorithm"), "7");

    stack.reset();
    EXPECT_TRUE(unknown.finish(stack).empty());
    EXPECT_EQ(stack.get_value(), 9);
}

}  // namespace
}  // namespace velk::cryptography

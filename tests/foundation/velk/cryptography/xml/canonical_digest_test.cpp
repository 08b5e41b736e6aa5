#include <velk/cryptography/xml/canonical_digest.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

namespace {

using velk::cryptography::cryptographic_hash;

TEST(canonical_digest, equals_the_hash_of_the_element_canonicalised_in_its_context)
{
    velk::core::result::stack stack;
    velk::xml::document document;
    ASSERT_TRUE(document.load(velk::core::byte_array(
                                  "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" xmlns:x=\"urn:x\">"
                                  "<infNFe Id=\"NFe1\" versao=\"4.00\"><ide b=\"2\" a=\"1\"><![CDATA[a&b]]></ide></infNFe>"
                                  "</NFe>"),
                              stack));
    auto const& root = *document.get_root_element();
    auto const& inf = *root.find_child("infNFe");
    velk::core::byte_array const digest = velk::cryptography::xml::canonical_digest(
        root, inf, cryptographic_hash::algorithm::sha1, stack);
    ASSERT_FALSE(stack.has_failed()) << stack.to_string();

    // The same through the long road: the element alone with the
    // declarations in scope, canonicalised by the XML library, hashed.
    velk::core::byte_array const canonical = velk::xml::canonicalize(
        velk::core::byte_array("<infNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" xmlns:x=\"urn:x\" Id=\"NFe1\" "
                               "versao=\"4.00\"><ide b=\"2\" a=\"1\"><![CDATA[a&b]]></ide></infNFe>"),
        {}, stack);
    auto hash = cryptographic_hash::from_algorithm(cryptographic_hash::algorithm::sha1, stack);
    hash.update(canonical);
    EXPECT_EQ(digest, hash.finish(stack));

    velk::xml::element const stranger("infNFe");
    EXPECT_TRUE(velk::cryptography::xml::canonical_digest(root, stranger, cryptographic_hash::algorithm::sha1, stack)
                    .empty());
    EXPECT_EQ(stack.get_value(), 13);
}

}  // namespace

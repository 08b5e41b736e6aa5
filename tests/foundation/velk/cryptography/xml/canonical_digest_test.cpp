#include <velk/cryptography/xml/canonical_digest.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/xml/canonicalize.hpp>
#include <velk/xml/document.hpp>

#include <gtest/gtest.h>

namespace {

using velk::cryptography::cryptographic_hash;

velk::core::byte_array sha1_of(velk::core::byte_array const& bytes, velk::core::result::stack& stack)
{
    auto hash = cryptographic_hash::from_algorithm(cryptographic_hash::algorithm::sha1, stack);
    hash.update(bytes);
    return hash.finish(stack);
}

TEST(canonical_digest, equals_the_hash_of_the_element_canonicalised_in_its_context)
{
    struct digest_case {
        char const* name;
        char const* document;   // its root's child infNFe is digested
        char const* canonical;  // infNFe alone with what its context gives it, in canonical form
    };
    digest_case const cases[] = {
        {"declarations of the root, attributes out of order, CDATA",
         "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" xmlns:x=\"urn:x\">"
         "<infNFe Id=\"NFe1\" versao=\"4.00\"><ide b=\"2\" a=\"1\"><![CDATA[a&b]]></ide></infNFe></NFe>",
         "<infNFe xmlns=\"http://www.portalfiscal.inf.br/nfe\" xmlns:x=\"urn:x\" Id=\"NFe1\" versao=\"4.00\">"
         "<ide a=\"1\" b=\"2\">a&amp;b</ide></infNFe>"},
        // Names the parser takes though older XML rules did not (U+045D).
        {"names of the fifth edition of XML", "<NFe><infNFe><v\xD1\x9D \xD1\x9D=\"1\"/></infNFe></NFe>",
         "<infNFe><v\xD1\x9D \xD1\x9D=\"1\"></v\xD1\x9D></infNFe>"},
        // The URI as declared, escaped as any attribute value is.
        {"namespace URIs with ampersands",
         "<NFe xmlns=\"urn:a?x=1&amp;y=2&#38;z=3\"><infNFe xmlns:p=\"urn:p&amp;q\" p:v=\"1\"/></NFe>",
         "<infNFe xmlns=\"urn:a?x=1&amp;y=2&amp;z=3\" xmlns:p=\"urn:p&amp;q\" p:v=\"1\"></infNFe>"},
    };
    for (digest_case const& current : cases) {
        SCOPED_TRACE(current.name);
        velk::core::result::stack stack;
        velk::xml::document document;
        ASSERT_TRUE(document.load(velk::core::byte_array(current.document), stack)) << stack.to_string();
        auto const& root = *document.get_root_element();
        velk::core::byte_array const digest = velk::cryptography::xml::canonical_digest(
            root, *root.find_child("infNFe"), cryptographic_hash::algorithm::sha1, stack);
        ASSERT_FALSE(stack.has_failed()) << stack.to_string();
        EXPECT_EQ(digest, sha1_of(velk::core::byte_array(current.canonical), stack));

        // The long road agrees: the XML library canonicalises the text of
        // infNFe alone, as the canonical form above has it.
        EXPECT_EQ(velk::xml::canonicalize(velk::core::byte_array(current.canonical), {}, stack).to_string(),
                  current.canonical);
    }
}

TEST(canonical_digest, refuses_an_element_outside_the_tree)
{
    velk::core::result::stack stack;
    velk::xml::element const root("NFe");
    velk::xml::element const stranger("infNFe");
    EXPECT_TRUE(velk::cryptography::xml::canonical_digest(root, stranger, cryptographic_hash::algorithm::sha1, stack)
                    .empty());
    EXPECT_EQ(stack.get_value(), 13);
}

}  // namespace

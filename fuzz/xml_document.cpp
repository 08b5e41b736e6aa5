// fuzz-dictionary: xml
// The XML reader on any bytes, and what a tree that was read must allow: to be
// written again, read back to the same text, and canonicalised as a
// signature digests it.

#include "fuzz_input.hpp"

#include <velk/xml/canonicalize.hpp>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    using namespace velk;
    std::optional<xml::document> const document = fuzz::load(data, size);
    if (!document) {
        return 0;
    }
    core::result::stack stack;
    core::byte_array const written = xml::document::save(*document, stack);
    VELK_FUZZ_REQUIRE(!stack.has_failed() && !written.empty());

    xml::document again;
    VELK_FUZZ_REQUIRE(again.load(written, stack));
    VELK_FUZZ_REQUIRE(xml::document::save(again, stack) == written);

    core::byte_array const canonical = xml::canonicalize(written, {}, stack);
    fuzz::require_told(!canonical.empty(), stack);
    return 0;
}

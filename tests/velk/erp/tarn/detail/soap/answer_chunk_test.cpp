#include <velk/core/byte_array.hpp>
#include <velk/erp/tarn/detail/soap/answer_chunk.hpp>

#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

namespace {

namespace soap = velk::erp::tarn::detail::soap;
using answer = soap::bounded_answer<velk::core::byte_array>;

// A buffer whose memory has run out.
struct exhausted_buffer {
    std::size_t size() const { return 0; }
    void append(unsigned char const*, unsigned char const*) { throw std::bad_alloc(); }
};

std::size_t append(answer& into, std::string chunk)
{
    return soap::append_chunk<velk::core::byte_array>(chunk.data(), 1, chunk.size(), &into);
}

// libcurl reads any count other than the chunk's size as a short write, and
// ends the transfer; a count equal to the size as a whole one.
TEST(answer_chunk, whole_chunks_are_kept_and_a_failed_append_never_passes_for_one)
{
    // 23 bytes: the length whose count libcurl would take for a whole chunk
    // if a failure were told by CURLE_WRITE_ERROR's number.
    std::string chunk = "<soap:Envelope>12345678";
    ASSERT_EQ(chunk.size(), 23u);

    answer kept{{}, 1000};
    EXPECT_EQ(append(kept, chunk), 23u);
    EXPECT_EQ(soap::append_chunk<velk::core::byte_array>(chunk.data(), 1, 0, &kept), 0u);
    EXPECT_EQ(kept.bytes.to_string(), chunk);
    EXPECT_FALSE(kept.over_limit);

    soap::bounded_answer<exhausted_buffer> exhausted{{}, 1000};
    for (std::size_t const length : {std::size_t{1}, std::size_t{23}, chunk.size() - 1}) {
        EXPECT_EQ(soap::append_chunk<exhausted_buffer>(chunk.data(), 1, length, &exhausted), 0u) << length;
    }
    EXPECT_FALSE(exhausted.over_limit) << "memory running out is no answer over the limit";
}

// The chunks of an answer against a limit of 10 bytes: each is kept whole or
// refused whole, and the first refused stops the answer where it stood.
TEST(answer_chunk, an_answer_stops_at_the_first_chunk_beyond_its_limit)
{
    struct case_ {
        char const* what;
        std::vector<std::string> chunks;
        std::string kept;
        bool over_limit;
    };
    case_ const cases[] = {
        {"exactly the limit in one chunk", {"0123456789"}, "0123456789", false},
        {"exactly the limit in two", {"01234", "56789"}, "0123456789", false},
        {"one byte over in one chunk", {"0123456789A"}, "", true},
        {"the last byte over", {"01234", "56789", "A"}, "0123456789", true},
        {"a chunk that crosses the limit", {"0123456", "789AB"}, "0123456", true},
        {"nothing read after a refusal", {"0123456", "789AB", "7"}, "0123456", true},
    };
    for (auto const& each : cases) {
        SCOPED_TRACE(each.what);
        answer into{{}, 10};
        bool refused = false;
        for (std::string const& chunk : each.chunks) {
            if (refused) {
                break;  // libcurl hands nothing more after a short write
            }
            std::size_t const count = append(into, chunk);
            refused = count != chunk.size();
            EXPECT_EQ(count, refused ? 0u : chunk.size());
        }
        EXPECT_EQ(into.bytes.to_string(), each.kept);
        EXPECT_EQ(into.over_limit, each.over_limit);
    }
}

}  // namespace

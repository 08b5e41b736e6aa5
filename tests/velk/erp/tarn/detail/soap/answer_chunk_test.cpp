#include <velk/core/byte_array.hpp>
#include <velk/erp/tarn/detail/soap/answer_chunk.hpp>

#include <gtest/gtest.h>

#include <new>
#include <string>

namespace {

namespace soap = velk::erp::tarn::detail::soap;

// A buffer whose memory has run out.
struct exhausted_buffer {
    void append(unsigned char const*, unsigned char const*) { throw std::bad_alloc(); }
};

// libcurl reads any count other than the chunk's size as a short write, and
// ends the transfer; a count equal to the size as a whole one.
TEST(answer_chunk, whole_chunks_are_kept_and_a_failed_append_never_passes_for_one)
{
    // 23 bytes: the length whose count libcurl would take for a whole chunk
    // if a failure were told by CURLE_WRITE_ERROR's number.
    std::string chunk = "<soap:Envelope>12345678";
    ASSERT_EQ(chunk.size(), 23u);

    velk::core::byte_array answer;
    EXPECT_EQ(soap::append_chunk<velk::core::byte_array>(chunk.data(), 1, chunk.size(), &answer), 23u);
    EXPECT_EQ(soap::append_chunk<velk::core::byte_array>(chunk.data(), 1, 0, &answer), 0u);
    EXPECT_EQ(answer.to_string(), chunk);

    exhausted_buffer exhausted;
    for (std::size_t const length : {std::size_t{1}, std::size_t{23}, chunk.size() - 1}) {
        EXPECT_EQ(soap::append_chunk<exhausted_buffer>(chunk.data(), 1, length, &exhausted), 0u) << length;
    }
}

}  // namespace

#pragma once

#include <cstddef>

namespace velk::erp::inline v4::tarn::detail::soap {

// The answer of an exchange as it arrives, in `bytes` (a core::byte_array;
// any type with size() and append(first, last)), up to `limit` bytes.
// `over_limit` tells that a chunk would have taken it beyond: the answer was
// then refused, not read.
template <class Buffer>
struct bounded_answer {
    Buffer bytes;
    std::size_t limit = 0;
    bool over_limit = false;
};

// CURLOPT_WRITEFUNCTION of every exchange: appends one chunk of the answer to
// the bounded_answer at `answer` and returns the chunk's size. An empty chunk,
// a chunk that would take the answer beyond its limit, or an append that
// fails because memory ran out, returns 0: libcurl then ends the transfer
// with CURLE_WRITE_ERROR, and nothing more of it is read. Any other count
// than the chunk's size is a short write, but only 0 can never be the size of
// a chunk and so be taken for a whole one. No exception leaves it: libcurl is
// C and cannot pass one on.
template <class Buffer>
std::size_t append_chunk(char* data, std::size_t size, std::size_t count, void* answer)
{
    std::size_t const length = size * count;
    if (length == 0) {
        return 0;
    }
    auto& into = *static_cast<bounded_answer<Buffer>*>(answer);
    if (length > into.limit - into.bytes.size()) {
        into.over_limit = true;
        return 0;
    }
    try {
        auto const* first = reinterpret_cast<unsigned char const*>(data);
        into.bytes.append(first, first + length);
    } catch (...) {
        return 0;
    }
    return length;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap

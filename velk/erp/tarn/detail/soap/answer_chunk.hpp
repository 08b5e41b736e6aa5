#pragma once

#include <cstddef>

namespace velk::erp::inline v4::tarn::detail::soap {

// CURLOPT_WRITEFUNCTION of every exchange: appends one chunk of the answer to
// the buffer at `buffer` (a core::byte_array; any type with append(first,
// last)) and returns the chunk's size. An empty chunk, or an append that fails
// because memory ran out, returns 0: libcurl then ends the transfer with
// CURLE_WRITE_ERROR. Any other count than the chunk's size is a short write,
// but only 0 can never be the size of a chunk and so be taken for a whole one.
// No exception leaves it: libcurl is C and cannot pass one on.
template <class Buffer>
std::size_t append_chunk(char* data, std::size_t size, std::size_t count, void* buffer)
{
    std::size_t const length = size * count;
    if (length == 0) {
        return 0;
    }
    try {
        auto const* first = reinterpret_cast<unsigned char const*>(data);
        static_cast<Buffer*>(buffer)->append(first, first + length);
    } catch (...) {
        return 0;
    }
    return length;
}

}  // namespace velk::erp::inline v4::tarn::detail::soap

#pragma once

// What the fuzz programs share: the input as the library takes bytes, and the
// promises every reader makes whatever it is given.

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>
#include <velk/xml/document.hpp>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>

namespace velk::fuzz {

inline core::byte_array bytes_of(std::uint8_t const* data, std::size_t size)
{
    core::byte_array bytes;
    bytes.append(data, data + size);
    return bytes;
}

// A broken promise is a crash libFuzzer keeps, with its input, and the line
// of the promise.
#define VELK_FUZZ_REQUIRE(promise) ::velk::fuzz::require((promise), #promise, __FILE__, __LINE__)

inline void require(bool promise, char const* text, char const* file, int line)
{
    if (!promise) {
        std::fprintf(stderr, "%s:%d: broken promise: %s\n", file, line, text);
        std::abort();
    }
}

// A reader either succeeds with a clean stack or fails saying why: never a
// failure without an item, never a success that leaves one.
inline void require_told(bool succeeded, core::result::stack const& stack)
{
    VELK_FUZZ_REQUIRE(succeeded != stack.has_failed());
}

// The tree of the input, or nothing when the XML reader refuses it.
inline std::optional<xml::document> load(std::uint8_t const* data, std::size_t size)
{
    xml::document document;
    core::result::stack stack;
    bool const loaded = document.load(bytes_of(data, size), stack);
    require_told(loaded, stack);
    if (!loaded) {
        return std::nullopt;
    }
    return document;
}

}  // namespace velk::fuzz

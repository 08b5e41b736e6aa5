#pragma once

#include "json_value.hpp"

#include <cstdint>

namespace velk::tools::tarn {

// What the process holds at one moment, from /proc/self: open file
// descriptors, threads and resident memory. A batch reports it so that a
// growth over many notes shows.
struct resource_usage {
    std::uint64_t descriptors = 0;
    std::uint64_t threads = 0;
    std::uint64_t resident_kib = 0;

    static resource_usage now();
    json_value to_json() const;
};

}  // namespace velk::tools::tarn

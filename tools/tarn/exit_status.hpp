#pragma once

namespace velk::tools::tarn {

// What a run of tarn ends with, for scripts: the authority's refusal apart
// from a mistake of the caller and from a network that did not carry the
// call.
enum class exit_status : int {
    ok = 0,         // done; the authority accepted what was asked
    refused = 1,    // the authority answered and refused (or a check failed)
    bad_input = 2,  // bad usage, unreadable input, a document the library refuses
    transport = 3,  // the call did not go through: connection, TLS, time-out, no usable answer
};

// Of two outcomes, the one a batch reports: the larger number.
constexpr exit_status worst(exit_status left, exit_status right)
{
    return static_cast<int>(left) >= static_cast<int>(right) ? left : right;
}

}  // namespace velk::tools::tarn

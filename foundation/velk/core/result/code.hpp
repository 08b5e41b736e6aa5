#pragma once

namespace velk::core {
inline namespace v3 {
namespace result {

// Tag type: one per code number of a category, so that each code has its own
// create() signature with exactly the details that code requires.
template <class Category, int N>
struct code {
    static constexpr int value = N;
};

}  // namespace result
}  // namespace v3
}  // namespace velk::core

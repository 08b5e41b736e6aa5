#pragma once

#include <string_view>

namespace velk::core {
inline namespace v3 {

// A view of characters made from a pointer and a length.
using string_view = std::string_view;

}  // namespace v3
}  // namespace velk::core

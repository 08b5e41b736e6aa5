#pragma once

namespace velk::xml {
inline namespace v3 {

// What a child of an element is. Callers test for element (2) only.
enum class node_type : int {
    text = 1,
    element = 2,
    cdata_section = 3,
    comment = 4,
    processing_instruction = 5,
};

}  // namespace v3
}  // namespace velk::xml

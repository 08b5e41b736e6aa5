#pragma once

#include <velk/core/export.hpp>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velk::core {
inline namespace v3 {

// A growable, contiguous sequence of bytes. Positions are pointers into the
// array; they are invalidated by any operation that grows it.
class VELK_EXPORT byte_array {
public:
    using value_type = unsigned char;
    using iterator = unsigned char*;
    using const_iterator = unsigned char const*;

    byte_array() = default;
    // The bytes of a zero-terminated text, without the terminator.
    explicit byte_array(char const* text);
    explicit byte_array(std::string_view text);

    void assign(unsigned char const* first, unsigned char const* last) { bytes_.assign(first, last); }

    // Each insert puts bytes in front of `position` and returns the position of
    // the last byte put in (position itself when nothing was inserted).
    iterator insert(iterator position, unsigned char byte);
    iterator insert(iterator position, char const* text);
    iterator insert(iterator position, unsigned char const* first, unsigned char const* last);

    void push_back(unsigned char byte) { bytes_.push_back(byte); }
    void append(std::string_view text);
    void append(unsigned char const* first, unsigned char const* last) { bytes_.insert(bytes_.end(), first, last); }
    void reserve(std::size_t size) { bytes_.reserve(size); }

    unsigned char& operator[](unsigned long index) { return bytes_[index]; }
    unsigned char const& operator[](unsigned long index) const { return bytes_[index]; }

    unsigned char* data() { return bytes_.data(); }
    unsigned char const* data() const { return bytes_.data(); }
    std::size_t size() const { return bytes_.size(); }
    bool empty() const { return bytes_.empty(); }

    iterator begin() { return bytes_.data(); }
    iterator end() { return bytes_.data() + bytes_.size(); }
    const_iterator begin() const { return bytes_.data(); }
    const_iterator end() const { return bytes_.data() + bytes_.size(); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }

    void clear() { bytes_.clear(); }

    // The bytes as text, unchanged.
    std::string to_string() const { return std::string(reinterpret_cast<char const*>(data()), size()); }
    std::string_view view() const { return std::string_view(reinterpret_cast<char const*>(data()), size()); }

    bool operator==(byte_array const&) const = default;

private:
    std::vector<unsigned char> bytes_;
};

}  // namespace v3
}  // namespace velk::core

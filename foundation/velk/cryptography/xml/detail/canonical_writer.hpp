#pragma once

// Internal: Canonical XML 1.0 of whole libxml2 documents, by libxml2's
// canonicaliser, handed on in pieces. One writer keeps one output buffer for
// all the documents it writes.

#include <velk/core/result/stack.hpp>

#include <libxml/tree.h>
#include <libxml/xmlIO.h>

#include <cstddef>
#include <functional>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class canonical_writer {
public:
    using sink = std::function<void(unsigned char const* data, std::size_t size)>;

    canonical_writer();
    ~canonical_writer();
    canonical_writer(canonical_writer const&) = delete;
    canonical_writer& operator=(canonical_writer const&) = delete;

    // Every node of the document goes out, all of it before the call returns.
    // Fails with code 16.
    bool write(xmlDoc* document, bool with_comments, sink const& output, core::result::stack& stack);

private:
    static int write_piece(void* context, char const* buffer, int length);

    xmlOutputBuffer* buffer_;
    sink const* output_ = nullptr;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

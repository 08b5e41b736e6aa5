#pragma once

// Internal: the serialised parent element, parsed by libxml2 so that its
// canonicaliser can run on it.

#include <velk/core/byte_array.hpp>
#include <velk/core/result/stack.hpp>

#include <libxml/tree.h>

#include <memory>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class libxml_document {
public:
    // Parses without touching the network, without substituting or loading
    // entities and without printing anything; a document that declares a DTD
    // is refused. Fails with code 16 and libxml2's reason.
    static libxml_document parse(core::byte_array const& bytes, core::result::stack& stack);

    xmlDoc* get() const { return document_.get(); }
    // Null for an empty object.
    xmlNode* get_root() const;

private:
    struct deleter {
        void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
    };
    std::unique_ptr<xmlDoc, deleter> document_;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

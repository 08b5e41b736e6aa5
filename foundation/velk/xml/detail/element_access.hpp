#pragma once

#include <velk/xml/element.hpp>
#include <velk/xml/block_memory.hpp>
#include <velk/xml/node.hpp>
#include <velk/xml/node_list.hpp>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velk::xml {
inline namespace v3 {

// What an element holds, kept small: most elements of a document are a name,
// a namespace and one text.
struct element::impl {
    // Attributes and declarations, which few elements have.
    struct extras {
        std::vector<attribute> attributes;
        std::vector<namespace_id> namespaces;
    };

    std::string qualified_name;
    // The local name of a prefixed name, kept because get_name() hands out a
    // reference to it; null when the name has no prefix and is its own local
    // name.
    std::unique_ptr<std::string> prefixed_local_name;
    // Null for none. Immutable, and shared by the elements that take it from
    // one another: a tree holds one copy of its namespace, not one per
    // element.
    std::shared_ptr<std::string const> namespace_uri;
    std::unique_ptr<extras> more;
    node_list children;

    // Taken from and given back to the thread's kept pieces: a document is
    // hundreds of these.
    static void* operator new(std::size_t size) { return block_memory::take(size); }
    static void operator delete(void* block, std::size_t size) noexcept { block_memory::give(block, size); }

    impl() = default;
    // An element of that name as written, with nothing else.
    explicit impl(std::string_view name);
    impl(impl const& other);
    impl& operator=(impl const&) = delete;
    // Out of line, so that the owner's pointer is small enough to be inlined
    // and a moved-from element costs no call when it goes.
    ~impl();

    // Sets both names from the name as written ("soap:Body").
    void set_name(std::string name);
    // The prefix as a view into the qualified name; empty when none. Inline:
    // every element appended compares its prefix with its parent's.
    std::string_view prefix() const
    {
        if (prefixed_local_name == nullptr) {
            return {};
        }
        return std::string_view(qualified_name).substr(0, qualified_name.size() - prefixed_local_name->size() - 1);
    }
    std::string const& local_name() const { return prefixed_local_name ? *prefixed_local_name : qualified_name; }
    std::string const& uri() const;
    extras& more_or_new();
};

namespace detail {

// Inside access for the parser of this library, which fills elements without
// the checks that calls from outside go through (the parser made them already).
class element_access {
public:
    using contents_type = element::impl;

    static element make(std::unique_ptr<contents_type> contents) { return element(std::move(contents)); }
    // Null for a moved-from element.
    static contents_type* contents(element& value) { return value.impl_.get(); }
    static contents_type const* contents(element const& value) { return value.impl_.get(); }
};

}  // namespace detail
}  // namespace v3
}  // namespace velk::xml

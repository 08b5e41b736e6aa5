#pragma once

// Internal: Canonical XML 1.0 of one element of a velk::xml tree in its
// context, written straight from the tree in one pass.
//
// The bytes are those a verifier computes from the text document::save writes
// for the whole tree: namespaces are declared where that text declares them
// and rendered on an element only where they differ from its parent's, in the
// order of their prefixes; attributes go in the order of their namespace URI
// and local name, those without namespace first; texts, CDATA sections and
// attribute values are escaped as the canonical form escapes them, with the
// line ends of CDATA sections, comments and processing instructions
// normalised as a parser would; an empty element is written with its end tag.
// A differential test holds it to libxml2's canonicaliser.

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/xml/detail/namespace_scope.hpp>
#include <velk/xml/element.hpp>

#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

class canonical_serializer {
public:
    // An element whose children are written as this one text instead.
    struct replacement {
        velk::xml::element const* target;
        std::string const* contents;
    };

    // What to write. `ancestors` are those of `apex` in the caller's tree,
    // outermost first: they are not written, but what they pass on to apex
    // under inclusive canonicalisation is, namely the namespace declarations
    // in scope and the xml: attributes. `excluded` (null for none) is left
    // out with everything under it.
    struct subtree {
        std::span<velk::xml::element const* const> ancestors;
        velk::xml::element const& apex;
        velk::xml::element const* excluded = nullptr;
        std::span<replacement const> replacements = {};
        bool with_comments = false;
        // When not empty, the attributes Id holding this value are counted
        // on the elements written, apex included: a signer learns so whether
        // the Id it resolved is unique under apex without a walk of its own.
        std::string_view counted_id = {};
    };

    // Receives the canonical bytes in order, in pieces.
    using sink = std::function<void(std::string_view piece)>;

    // Fails with code 16 on an element name that is no qualified name or a
    // namespace URI that is not absolute, as the tree refuses to save them;
    // what went out before the failure is then to be thrown away.
    bool write(subtree const& what, sink const& output, core::result::stack& stack);

    // The attributes counted by the last write (see subtree::counted_id).
    std::size_t counted_ids() const { return counted_ids_; }

private:
    // The bytes written and not handed over yet; appends are inline. Its
    // memory stays with the thread between documents.
    class buffer {
    public:
        buffer();
        ~buffer();
        buffer(buffer const&) = delete;
        buffer& operator=(buffer const&) = delete;

        void put(char c)
        {
            if (size_ == capacity_) {
                grow(1);
            }
            data_[size_++] = c;
        }
        void put(std::string_view text)
        {
            if (capacity_ - size_ < text.size()) {
                grow(text.size());
            }
            copy(data_.get() + size_, text.data(), text.size());
            size_ += text.size();
        }
        // Room for `size` more bytes, written from the pointer returned and
        // closed by commit with the pointer past the last one written.
        char* reserve(std::size_t size)
        {
            if (capacity_ - size_ < size) {
                grow(size);
            }
            return data_.get() + size_;
        }
        void commit(char const* end) { size_ = static_cast<std::size_t>(end - data_.get()); }
        // Most pieces are names and short values: copied by a few moves
        // instead of a call.
        static void copy(char* target, char const* source, std::size_t size)
        {
            if (size >= 8) {
                if (size > 16) {
                    std::memcpy(target, source, size);
                    return;
                }
                std::memcpy(target, source, 8);
                std::memcpy(target + size - 8, source + size - 8, 8);
            } else if (size >= 4) {
                std::memcpy(target, source, 4);
                std::memcpy(target + size - 4, source + size - 4, 4);
            } else if (size != 0) {
                target[0] = source[0];
                target[size / 2] = source[size / 2];
                target[size - 1] = source[size - 1];
            }
        }
        std::string_view view() const { return {data_.get(), size_}; }
        std::size_t size() const { return size_; }
        void clear() { size_ = 0; }

    private:
        void grow(std::size_t more);

        std::unique_ptr<char[]> data_;
        std::size_t size_ = 0;
        std::size_t capacity_ = 0;
    };

    struct attribute_entry {
        std::string_view name;   // as written
        std::string_view local;  // without prefix
        std::string_view uri;    // of the prefix in scope; empty for none
        std::string const* value;
    };

    bool write_apex(subtree const& what);
    bool write_element(velk::xml::element const& value);
    static bool plain_child_of(velk::xml::element const& child, velk::xml::element const& parent);
    bool write_plain_element(velk::xml::element const& value);
    bool write_plain_leaf(std::string const& name, std::string const& contents);
    // "<name>" of a bare element, checked, with `room` more bytes reserved
    // after it; null when the name is refused. The buffer is not committed.
    char* open_plain_tag(std::string const& name, std::size_t room);
    static char* close_tag(char* position, std::string const& name);
    // From the end of the start tag on: ">", the children, the end tag.
    bool write_content_and_end(velk::xml::element const& value);
    bool accept_name(std::string const& name);
    bool start_tag(velk::xml::element const& value);
    bool write_children(velk::xml::element const& value);
    // Writes declarations_ in the order of their prefixes.
    bool write_declarations();
    void gather_attributes(velk::xml::element const& value);
    void write_attributes();
    void flush_if_full();

    void write_escaped(std::string_view text, unsigned char kind);
    void write_cdata_as_text(std::string_view text);
    void write_normalised_line_ends(std::string_view text);

    buffer out_;
    namespace_scope scope_;
    std::vector<namespace_scope::entry> declarations_;
    std::vector<attribute_entry> attributes_;
    velk::xml::element const* excluded_ = nullptr;
    std::span<replacement const> replacements_;
    bool with_comments_ = false;
    std::string_view counted_id_;
    std::size_t counted_ids_ = 0;
    sink const* output_ = nullptr;
    std::string problem_;
};

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

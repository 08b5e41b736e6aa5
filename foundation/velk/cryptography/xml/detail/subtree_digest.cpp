#include <velk/cryptography/xml/detail/subtree_digest.hpp>

#include <velk/cryptography/xml/detail/libxml_subtree.hpp>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

core::byte_array digest_subtree(std::span<velk::xml::element const* const> ancestors, velk::xml::element const& apex,
                                velk::xml::element const* excluded, bool with_comments,
                                cryptographic_hash::algorithm algorithm, canonical_writer& writer,
                                core::result::stack& stack)
{
    cryptographic_hash hash = cryptographic_hash::from_algorithm(algorithm, stack);
    if (stack.has_failed()) {
        return {};
    }
    libxml_subtree const subtree = libxml_subtree::build(ancestors, apex, excluded, {}, stack);
    auto const feed = [&hash](unsigned char const* data, std::size_t size) { hash.update(data, size); };
    if (subtree.get() == nullptr || !writer.write(subtree.get(), with_comments, feed, stack)) {
        return {};
    }
    return hash.finish(stack);
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

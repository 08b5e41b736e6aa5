#include <velk/cryptography/xml/detail/subtree_digest.hpp>


namespace velk::cryptography {
inline namespace v3 {
namespace xml {
namespace detail {

core::byte_array digest_subtree(std::span<velk::xml::element const* const> ancestors, velk::xml::element const& apex,
                                velk::xml::element const* excluded, bool with_comments,
                                cryptographic_hash::algorithm algorithm, canonical_serializer& serializer,
                                core::result::stack& stack, std::string_view counted_id)
{
    cryptographic_hash hash = cryptographic_hash::from_algorithm(algorithm, stack);
    if (stack.has_failed()) {
        return {};
    }
    auto const feed = [&hash](std::string_view piece) {
        hash.update(reinterpret_cast<unsigned char const*>(piece.data()), piece.size());
    };
    canonical_serializer::subtree const what{ancestors, apex, excluded, {}, with_comments, counted_id};
    if (!serializer.write(what, feed, stack)) {
        return {};
    }
    return hash.finish_once(stack);
}

}  // namespace detail
}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

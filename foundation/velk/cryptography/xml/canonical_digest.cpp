#include <velk/cryptography/xml/canonical_digest.hpp>

#include <velk/core/result/report.hpp>
#include <velk/cryptography/cryptography_result_category.hpp>
#include <velk/cryptography/xml/detail/subtree_digest.hpp>
#include <velk/xml/node.hpp>

#include <vector>

namespace velk::cryptography {
inline namespace v3 {
namespace xml {

namespace {

// The ancestors of target below and including `current`, outermost first.
bool path_to(velk::xml::element const& current, velk::xml::element const& target,
             std::vector<velk::xml::element const*>& ancestors)
{
    if (&current == &target) {
        return true;
    }
    ancestors.push_back(&current);
    for (velk::xml::node const& child : current.get_node_range()) {
        if (velk::xml::element const* nested = child.as_element(); nested != nullptr && path_to(*nested, target, ancestors)) {
            return true;
        }
    }
    ancestors.pop_back();
    return false;
}

}  // namespace

core::byte_array canonical_digest(velk::xml::element const& root, velk::xml::element const& target,
                                  cryptographic_hash::algorithm algorithm, core::result::stack& stack)
{
    std::vector<velk::xml::element const*> ancestors;
    if (!path_to(root, target, ancestors)) {
        core::result::fresh<cryptography_result_category::reference_not_found>(stack, std::string());
        return {};
    }
    detail::canonical_serializer serializer;
    return detail::digest_subtree(ancestors, target, nullptr, false, algorithm, serializer, stack);
}

}  // namespace xml
}  // namespace v3
}  // namespace velk::cryptography

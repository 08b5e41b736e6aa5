#pragma once

// The canonical form of an element of a tree two ways: the library's own
// serializer, straight from the tree, and libxml2's canonicaliser over the
// text the tree saves to, read back, with the element's subtree as the node
// set, as a verifier such as xmlsec1 computes it. A signature is good only
// where both agree byte for byte.

#include <velk/xml/element.hpp>

#include <memory>
#include <string>
#include <vector>

namespace velk::test {

// By the library's canonical serializer; "falha: ..." with the report when it
// refuses. alvo is under raiz (or raiz itself); excluido, when not null, is
// left out with its subtree.
std::string forma_canonica_propria(xml::element const& raiz, xml::element const& alvo, xml::element const* excluido,
                                   bool com_comentarios);

// By libxml2 over the saved text of one tree, saved and read once.
class forma_canonica_libxml2 {
public:
    explicit forma_canonica_libxml2(xml::element const& raiz);
    ~forma_canonica_libxml2();

    // "falha: ..." when the tree does not save or read back, or libxml2
    // refuses.
    std::string de(xml::element const& alvo, xml::element const* excluido, bool com_comentarios) const;

private:
    struct lido;
    xml::element const& raiz_;
    std::unique_ptr<lido> lido_;
};

// The elements of the tree, the root first, then level by level.
std::vector<xml::element const*> elementos_de(xml::element const& raiz);

}  // namespace velk::test

#include <support/forma_canonica.hpp>

#include <velk/core/result/stack.hpp>
#include <velk/cryptography/xml/detail/canonical_serializer.hpp>
#include <velk/xml/detail/namespace_uris.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <libxml/c14n.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <memory>
#include <vector>

namespace velk::test {

namespace {

// The ancestors of target below and including `current`, outermost first,
// and the positions among the child elements that lead to it.
bool caminho(xml::element const& current, xml::element const& target, std::vector<xml::element const*>& ancestors,
             std::vector<std::size_t>& positions)
{
    if (&current == &target) {
        return true;
    }
    ancestors.push_back(&current);
    std::size_t position = 0;
    for (xml::node const& child : current.get_node_range()) {
        if (xml::element const* nested = child.as_element()) {
            positions.push_back(position++);
            if (caminho(*nested, target, ancestors, positions)) {
                return true;
            }
            positions.pop_back();
        }
    }
    ancestors.pop_back();
    return false;
}

xmlNode* filho_elemento(xmlNode* parent, std::size_t position)
{
    for (xmlNode* child = parent->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE && position-- == 0) {
            return child;
        }
    }
    return nullptr;
}

xmlNode* no_em(xmlDoc* document, std::vector<std::size_t> const& positions)
{
    xmlNode* node = xmlDocGetRootElement(document);
    for (std::size_t position : positions) {
        node = node == nullptr ? nullptr : filho_elemento(node, position);
    }
    return node;
}

struct conjunto {
    xmlNode* alvo;
    xmlNode* excluido;
};

// The node set: the subtree of alvo without that of excluido. Attributes and
// namespace nodes belong where their element does.
int visivel(void* dados, xmlNode* node, xmlNode* parent)
{
    auto const* parte = static_cast<conjunto const*>(dados);
    xmlNode* place = node == nullptr || node->type == XML_NAMESPACE_DECL || node->type == XML_ATTRIBUTE_NODE
                         ? parent
                         : node;
    for (; place != nullptr; place = place->parent) {
        if (place == parte->excluido) {
            return 0;
        }
        if (place == parte->alvo) {
            return 1;
        }
    }
    return 0;
}

int anexar(void* context, char const* bytes, int length)
{
    static_cast<std::string*>(context)->append(bytes, static_cast<std::size_t>(length));
    return length;
}

}  // namespace

std::string forma_canonica_propria(xml::element const& raiz, xml::element const& alvo, xml::element const* excluido,
                                   bool com_comentarios)
{
    std::vector<xml::element const*> ancestors;
    std::vector<std::size_t> positions;
    if (!caminho(raiz, alvo, ancestors, positions)) {
        return "falha: fora da árvore";
    }
    std::string canonical;
    core::result::stack stack;
    cryptography::xml::detail::canonical_serializer serializer;
    cryptography::xml::detail::canonical_serializer::subtree const what{ancestors, alvo, excluido, {},
                                                                        com_comentarios};
    if (!serializer.write(what, [&canonical](std::string_view piece) { canonical.append(piece); }, stack)) {
        return "falha: " + stack.to_string();
    }
    return canonical;
}

struct forma_canonica_libxml2::lido {
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> documento{nullptr, xmlFreeDoc};
    std::string problema;
};

forma_canonica_libxml2::forma_canonica_libxml2(xml::element const& raiz)
    : raiz_(raiz), lido_(std::make_unique<lido>())
{
    core::result::stack stack;
    xml::document holder;
    holder.append_node(raiz, stack);
    std::string const text = xml::document::save(holder, stack).to_string();
    if (stack.has_failed()) {
        lido_->problema = "falha: " + stack.to_string();
        return;
    }
    lido_->documento.reset(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, XML_PARSE_NONET | XML_PARSE_NOWARNING | XML_PARSE_NOERROR));
    if (lido_->documento == nullptr) {
        lido_->problema = "falha: o texto salvo não é lido de volta";
        return;
    }
    // libxml2 writes a declared URI as it holds it; the canonical form
    // escapes it as any attribute value.
    xml::detail::namespace_uris::escape_for_canonical_form(*lido_->documento);
}

forma_canonica_libxml2::~forma_canonica_libxml2() = default;

std::string forma_canonica_libxml2::de(xml::element const& alvo, xml::element const* excluido,
                                       bool com_comentarios) const
{
    if (lido_->documento == nullptr) {
        return lido_->problema;
    }
    std::vector<xml::element const*> ancestors;
    std::vector<std::size_t> target_positions;
    std::vector<std::size_t> excluded_positions;
    if (!caminho(raiz_, alvo, ancestors, target_positions) ||
        (excluido != nullptr && !caminho(raiz_, *excluido, ancestors, excluded_positions))) {
        return "falha: fora da árvore";
    }
    xmlDoc* document = lido_->documento.get();
    conjunto dados{no_em(document, target_positions),
                   excluido == nullptr ? nullptr : no_em(document, excluded_positions)};
    std::string canonical;
    xmlOutputBuffer* output = xmlOutputBufferCreateIO(anexar, nullptr, &canonical, nullptr);
    int const written =
        xmlC14NExecute(document, visivel, &dados, XML_C14N_1_0, nullptr, com_comentarios ? 1 : 0, output);
    int const closed = xmlOutputBufferClose(output);
    if (written < 0 || closed < 0) {
        return "falha: libxml2 recusou";
    }
    return canonical;
}

std::vector<xml::element const*> elementos_de(xml::element const& raiz)
{
    std::vector<xml::element const*> found{&raiz};
    for (std::size_t index = 0; index < found.size(); ++index) {
        for (xml::node const& child : found[index]->get_node_range()) {
            if (xml::element const* nested = child.as_element()) {
                found.push_back(nested);
            }
        }
    }
    return found;
}

}  // namespace velk::test

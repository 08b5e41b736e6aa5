#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/erp/fiscal/nota_fiscal.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/escrever_layout_4_00.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>
#include <velk/xml/document.hpp>
#include <velk/xml/node.hpp>

#include <support/xml_text.hpp>

#include <gtest/gtest.h>

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace velk::test {

// A part of a note changed in place: the model gives copies, so each helper
// reads the part, changes it and puts it back.
template <class Alterar>
void no_emitente(erp::fiscal::nota_fiscal& nota, Alterar alterar)
{
    erp::fiscal::emitente parte = nota.get_emitente();
    alterar(parte);
    nota.set_emitente(parte);
}

template <class Alterar>
void no_endereco_emitente(erp::fiscal::nota_fiscal& nota, Alterar alterar)
{
    no_emitente(nota, [&](erp::fiscal::emitente& emitente) {
        erp::fiscal::endereco parte = emitente.get_endereco();
        alterar(parte);
        emitente.set_endereco(parte);
    });
}

template <class Alterar>
void no_destinatario(erp::fiscal::nota_fiscal& nota, Alterar alterar)
{
    erp::fiscal::destinatario parte = nota.get_destinatario().value();
    alterar(parte);
    nota.set_destinatario(parte);
}

template <class Alterar>
void no_produto(erp::fiscal::nota_fiscal& nota, std::size_t indice, Alterar alterar)
{
    std::vector<erp::fiscal::produto> produtos = nota.get_produtos();
    alterar(produtos.at(indice));
    nota.set_produtos(produtos);
}

// The first item: the medicine of the distributor's note.
template <class Alterar>
void no_primeiro_produto(erp::fiscal::nota_fiscal& nota, Alterar alterar)
{
    no_produto(nota, 0, alterar);
}

// The same changes as the rows of a table hold them: no_emitente([](emitente& e) { ... }).
using alteracao = std::function<void(erp::fiscal::nota_fiscal&)>;

template <class Alterar>
alteracao no_emitente(Alterar alterar)
{
    return [alterar](erp::fiscal::nota_fiscal& nota) { no_emitente(nota, alterar); };
}

template <class Alterar>
alteracao no_endereco_emitente(Alterar alterar)
{
    return [alterar](erp::fiscal::nota_fiscal& nota) { no_endereco_emitente(nota, alterar); };
}

template <class Alterar>
alteracao no_destinatario(Alterar alterar)
{
    return [alterar](erp::fiscal::nota_fiscal& nota) { no_destinatario(nota, alterar); };
}

template <class Alterar>
alteracao no_primeiro_produto(Alterar alterar)
{
    return [alterar](erp::fiscal::nota_fiscal& nota) { no_primeiro_produto(nota, alterar); };
}

inline void tributar(erp::fiscal::nota_fiscal& nota, erp::fiscal::tributacao_produto tributacao)
{
    no_primeiro_produto(nota, [&](erp::fiscal::produto& p) { p.set_tributacao(std::move(tributacao)); });
}

inline void com_ipi(erp::fiscal::nota_fiscal& nota, erp::fiscal::tributacao_ipi ipi)
{
    no_primeiro_produto(nota, [&](erp::fiscal::produto& p) { p.set_tributacao_ipi(std::move(ipi)); });
}

inline alteracao tributar(erp::fiscal::tributacao_produto tributacao)
{
    return [tributacao](erp::fiscal::nota_fiscal& nota) { tributar(nota, tributacao); };
}

inline alteracao com_ipi(erp::fiscal::tributacao_ipi ipi)
{
    return [ipi](erp::fiscal::nota_fiscal& nota) { com_ipi(nota, ipi); };
}

// The tree of a note and the document of a tree; the test fails if the
// builder or the writer refuses.
inline erp::tarn::nfe::layout_4_00::layout_4_00 arvore_de(erp::fiscal::nota_fiscal const& nota)
{
    core::result::stack stack;
    auto arvore = erp::tarn::nfe::layout_4_00::montar_layout_4_00(nota, stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return arvore;
}

inline xml::document documento_de(erp::tarn::nfe::layout_4_00::layout_4_00 const& arvore)
{
    core::result::stack stack;
    xml::document documento = erp::tarn::nfe::layout_4_00::escrever_layout_4_00(arvore, stack);
    EXPECT_FALSE(stack.has_failed()) << stack.to_string();
    return documento;
}

inline xml::document documento_de(erp::fiscal::nota_fiscal const& nota)
{
    return documento_de(arvore_de(nota));
}

// The text of a group of the document as saved on its own, without the XML
// declaration and without the NF-e namespace, which a copy declares for itself.
inline std::string texto_de(xml::element const& elemento)
{
    std::string texto = saved_text(elemento);
    texto.erase(0, texto.find('\n') + 1);
    std::string const declaracao = " xmlns=\"http://www.portalfiscal.inf.br/nfe\"";
    if (auto const posicao = texto.find(declaracao); posicao != std::string::npos && posicao < texto.find('>')) {
        texto.erase(posicao, declaracao.size());
    }
    return texto;
}

// The texts of the children of infNFe named `tag`, in order.
inline std::vector<std::string> grupos(xml::document const& documento, std::string const& tag)
{
    std::vector<std::string> textos;
    xml::element const* raiz = documento.get_root_element();
    xml::element const* inf = raiz ? raiz->find_child("infNFe") : nullptr;
    if (inf == nullptr) {
        ADD_FAILURE() << "no NFe/infNFe";
        return textos;
    }
    for (xml::node const& filho : inf->get_node_range()) {
        if (xml::element const* elemento = filho.as_element(); elemento && elemento->get_name() == tag) {
            textos.push_back(texto_de(*elemento));
        }
    }
    return textos;
}

// The text of the one child of infNFe named `tag`, empty when there is none.
inline std::string grupo(xml::document const& documento, std::string const& tag)
{
    std::vector<std::string> const textos = grupos(documento, tag);
    EXPECT_LE(textos.size(), 1u) << tag;
    return textos.empty() ? std::string() : textos.front();
}

// The texts of the children of infNFe named `tag`, one after the other.
inline std::string texto_dos_grupos(xml::document const& documento, std::string const& tag)
{
    std::string todos;
    for (std::string const& texto : grupos(documento, tag)) {
        todos += texto;
    }
    return todos;
}

// The first element named `tag` in a group's text, as written ("<NCM>00000000</NCM>", "<xCpl/>", "<PIS>...</PIS>");
// empty when there is none. The element must not hold another of its name.
inline std::string elemento_em(std::string const& grupo_xml, std::string const& tag)
{
    auto const vazio = grupo_xml.find("<" + tag + "/>");
    auto const inicio = grupo_xml.find("<" + tag + ">");
    if (inicio == std::string::npos) {
        return vazio == std::string::npos ? std::string() : "<" + tag + "/>";
    }
    if (vazio != std::string::npos && vazio < inicio) {
        return "<" + tag + "/>";
    }
    std::string const fecha = "</" + tag + ">";
    return grupo_xml.substr(inicio, grupo_xml.find(fecha, inicio) + fecha.size() - inicio);
}

// The first element named `tag` in the groups named `grupo` of a tree's document.
inline std::string escrito(erp::tarn::nfe::layout_4_00::layout_4_00 const& arvore, std::string const& grupo,
                           std::string const& tag)
{
    return elemento_em(texto_dos_grupos(documento_de(arvore), grupo), tag);
}

}  // namespace velk::test

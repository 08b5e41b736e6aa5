#pragma once

#include <velk/core/result/stack.hpp>
#include <velk/xml/element.hpp>

#include <string>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao::detail {

// The archive of a request with its answer: `raiz` gets the NF-e namespace as
// its default one, the attribute versao, and then copies of the request and
// of the answer as they are, so that a signature inside stays what it was.
// A failure of the XML library is left on the stack and gives false.
bool montar_processo(xml::element& raiz, std::string const& versao, xml::element const& requisicao,
                     xml::element const& resposta, core::result::stack& stack);

// An archive's direct child, for the readers of the parts: missing, it is
// code 1 with `nome_falha` and null.
xml::element const* filho_do_processo(xml::element const& raiz, std::string const& tag, std::string const& nome_falha,
                                      core::result::stack& stack);

// What a reader of a part gives after a failure: the part read from an empty
// element on a stack of its own, whose failure nobody wants.
template <class Parte, class Leitor>
Parte parte_vazia(Leitor ler)
{
    core::result::stack descartada;
    return ler(xml::element(), descartada);
}

// Reads one part of an archive from its child: the reader's value, or after
// any failure (of the lookup or of the reader) the empty part above.
template <class Parte, class Leitor>
Parte ler_parte(xml::element const& raiz, std::string const& tag, std::string const& nome_falha, Leitor ler,
                core::result::stack& stack)
{
    xml::element const* filho = filho_do_processo(raiz, tag, nome_falha, stack);
    if (filho != nullptr) {
        Parte parte = ler(*filho, stack);
        if (!stack.has_failed()) {
            return parte;
        }
    }
    return parte_vazia<Parte>(ler);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::distribuicao::detail

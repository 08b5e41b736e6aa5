#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// An optional part of the note fills its group when present.
template <class Valor, class Registro, class Montar>
bool montar_opcional(core::optional<Valor> const& valor, core::optional<Registro>& registro, Montar montar,
                     core::result::stack& stack)
{
    return !valor || montar(*valor, registro.emplace(), stack);
}

bool montar_itens(std::vector<fiscal::produto> const& produtos, std::vector<grupo::det>& itens,
                  core::result::stack& stack)
{
    itens.reserve(produtos.size());
    for (fiscal::produto const& produto : produtos) {
        grupo::det det;
        det.nItem = static_cast<std::uint16_t>(itens.size() + 1);
        if (!montar_det(produto, det, stack)) {
            return false;
        }
        itens.push_back(std::move(det));
    }
    return true;
}

bool montar_autorizacoes(std::vector<fiscal::autorizacao_acesso_xml> const& autorizacoes,
                         std::vector<grupo::cpf_cnpj_ou_estrangeiro>& autXML, core::result::stack& stack)
{
    for (fiscal::autorizacao_acesso_xml const& autorizacao : autorizacoes) {
        if (!montar_autXML(autorizacao, autXML.emplace_back(), stack)) {
            return false;
        }
    }
    return true;
}

bool montar(fiscal::nota_fiscal const& nota, layout_4_00& arvore, core::result::stack& stack)
{
    arvore.versao = "4.00";
    arvore.Id = "NFe" + nota.get_chave_44_digitos();
    return montar_ide(nota, arvore.ide, stack) && montar_emit(nota.get_emitente(), arvore.emit, stack) &&
           montar_opcional(nota.get_destinatario(), arvore.dest, montar_dest, stack) &&
           montar_opcional(nota.get_local_entrega(), arvore.entrega, montar_entrega, stack) &&
           montar_autorizacoes(nota.get_autorizacoes_acesso_xml(), arvore.autXML, stack) &&
           montar_itens(nota.get_produtos(), arvore.det, stack) &&
           montar_total(nota.get_total_nfe(), arvore.total, stack) &&
           montar_transp(nota.get_informacoes_transporte(), arvore.transp, stack) &&
           montar_opcional(nota.get_cobranca(), arvore.cobr, montar_cobr, stack) &&
           montar_pag(nota.get_informacoes_pagamento(), arvore.pag, stack) &&
           montar_opcional(nota.get_informacoes_intermediador(), arvore.infIntermed, montar_infIntermed, stack) &&
           montar_opcional(nota.get_informacoes_adicionais(), arvore.infAdic, montar_infAdic, stack) &&
           montar_opcional(nota.get_comercio_exterior(), arvore.exporta, montar_exporta, stack) &&
           montar_opcional(nota.get_informacoes_responsavel_tecnico(), arvore.infRespTec, montar_infRespTec, stack);
}

}  // namespace

layout_4_00 montar_layout_4_00(fiscal::nota_fiscal const& nota, core::result::stack& stack)
{
    layout_4_00 arvore;
    if (!montar(nota, arvore, stack)) {
        return {};
    }
    return arvore;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

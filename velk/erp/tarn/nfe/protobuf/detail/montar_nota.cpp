// The tree of a note, group by group, as both layouts read it.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

bool montar_itens(mensagem::NotaFiscal const& nota, std::vector<grupo::det>& itens, core::result::stack& stack)
{
    itens.reserve(static_cast<std::size_t>(nota.produtos_size()));
    for (mensagem::Produto const& produto : nota.produtos()) {
        grupo::det& det = itens.emplace_back();
        det.nItem = limitado<std::uint16_t>(itens.size());
        if (!montar_det(produto, det, stack)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool montar_nota(mensagem::NotaFiscal const& nota, layout_4_00::layout_4_00& arvore, core::result::stack& stack)
{
    arvore.Id = "NFe" + nota.chave_acesso();
    if (!montar_ide(nota, arvore.ide, stack) || !montar_emit(nota.emitente(), arvore.emit, stack) ||
        (nota.has_destinatario() && !montar_dest(nota.destinatario(), arvore.dest.emplace(), stack))) {
        return false;
    }
    if (nota.has_identificacao_local_retirada()) {
        montar_retirada(nota.identificacao_local_retirada(), arvore.retirada.emplace());
    }
    if (nota.has_identificacao_local_entrega()) {
        montar_entrega(nota.identificacao_local_entrega(), arvore.entrega.emplace());
    }
    if (!montar_itens(nota, arvore.det, stack)) {
        return false;
    }
    montar_total(nota, arvore.total);
    if (!montar_transp(nota.informacoes_transporte(), arvore.transp, stack) ||
        !montar_pag(nota.informacoes_pagamento(), arvore.pag, stack)) {
        return false;
    }
    if (nota.has_informacoes_intermediador()) {
        montar_infIntermed(nota.informacoes_intermediador(), arvore.infIntermed.emplace());
    }
    if (nota.has_informacoes_adicionais() &&
        !montar_infAdic(nota.informacoes_adicionais(), arvore.infAdic.emplace(), stack)) {
        return false;
    }
    if (nota.has_informacoes_responsavel_tecnico()) {
        montar_infRespTec(nota.informacoes_responsavel_tecnico(), arvore.infRespTec.emplace());
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

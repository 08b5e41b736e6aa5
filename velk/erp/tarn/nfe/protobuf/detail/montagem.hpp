#pragma once

// The builders of the groups of layout 4.00 from a NotaFiscal, used by
// generate_document_4_00 and generate_document_3_10. Each reads one part of the message into its record
// of the tree and returns false at the first value it refuses, with the
// refusal on top of the stack. Nothing is computed and nothing is chosen: the
// message states every value and the tree takes it.

#include <velk/core/result/stack.hpp>
#include <velk/erp/tarn/nfe/detail/protobuf/NotaFiscal.pb.h>
#include <velk/erp/tarn/nfe/layout_4_00/layout_4_00.hpp>
#include <velk/erp/tarn/nfe/protobuf/detail/conversao.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace grupo = layout_4_00::grupo;

// The whole tree but versao: Id, every group the message holds, in the
// layout's order; false at the first refusal, which ends the reading.
bool montar_nota(mensagem::NotaFiscal const& nota, layout_4_00::layout_4_00& arvore, core::result::stack& stack);

bool montar_ide(mensagem::NotaFiscal const& nota, grupo::ide& ide, core::result::stack& stack);
bool montar_emit(mensagem::Emitente const& emitente, grupo::emit& emit, core::result::stack& stack);
bool montar_dest(mensagem::Destinatario const& destinatario, grupo::dest& dest, core::result::stack& stack);
void montar_retirada(mensagem::IdentificacaoLocalRetirada const& local, grupo::retirada& retirada);
void montar_entrega(mensagem::IdentificacaoLocalEntrega const& local, grupo::entrega& entrega);
// prod, imposto, impostoDevol and infAdProd of one item; nItem is the caller's.
bool montar_det(mensagem::Produto const& produto, grupo::det& det, core::result::stack& stack);
bool montar_ICMS(mensagem::Produto const& produto, grupo::ICMS& icms, core::result::stack& stack);
bool montar_PIS(mensagem::TributacaoPISCofins const& tributacao, core::optional<grupo::PIS>& pis,
                core::result::stack& stack);
bool montar_COFINS(mensagem::TributacaoPISCofins const& tributacao, core::optional<grupo::COFINS>& cofins,
                   core::result::stack& stack);
void montar_total(mensagem::NotaFiscal const& nota, grupo::total& total);
bool montar_transp(mensagem::InformacoesTransporte const& transporte, grupo::transp& transp,
                   core::result::stack& stack);
bool montar_pag(mensagem::InformacoesPagamento const& pagamento, grupo::pag& pag, core::result::stack& stack);
void montar_infIntermed(mensagem::InformacoesIntermediador const& intermediador, grupo::infIntermed& infIntermed);
bool montar_infAdic(mensagem::InformacoesAdicionais const& adicionais, grupo::infAdic& infAdic,
                    core::result::stack& stack);
void montar_infRespTec(mensagem::InformacoesResponsavelTecnico const& responsavel, grupo::infRespTec& infRespTec);

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

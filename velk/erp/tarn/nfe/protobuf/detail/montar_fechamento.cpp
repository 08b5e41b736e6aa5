// The groups that close the note: totals, transport, payment, marketplace,
// additional information and the technical manager.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

constexpr std::uint16_t modFrete[] = {0, 1, 2, 9, 3, 4};
// Not specified (the first enumerator) leaves indPag out.
constexpr std::uint16_t indPag[] = {0, 0, 1};
constexpr std::uint16_t tPag[] = {1, 2, 3, 4, 5, 10, 11, 12, 13, 99, 14, 15, 90, 16, 17, 18, 19};
constexpr std::uint8_t tpIntegra[] = {1, 2};
constexpr std::uint8_t tBand[] = {1,  2,  3,  4,  99, 5,  6,  7,  8,  9,  10, 11, 12, 13,
                                  14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27};
// "Without payment", the one detPag of a note that has none.
constexpr std::uint16_t tPag_sem_pagamento = 90;

// ICMSTot from the totals of goods, in either of the message's forms, which
// share their fields.
template <class Totais>
void montar_ICMSTot(Totais const& t, grupo::ICMSTot& tot)
{
    atribuir(t.has_base_normal(), t.base_normal(), tot.vBC);
    atribuir(t.has_icms_normal(), t.icms_normal(), tot.vICMS);
    atribuir(t.has_desonerado(), t.desonerado(), tot.vICMSDeson);
    atribuir(t.has_icms_fcp_destino(), t.icms_fcp_destino(), tot.vFCPUFDest);
    atribuir(t.has_icms_destino(), t.icms_destino(), tot.vICMSUFDest);
    atribuir(t.has_icms_remetente(), t.icms_remetente(), tot.vICMSUFRemet);
    atribuir(t.has_fcp(), t.fcp(), tot.vFCP);
    atribuir(t.has_base_st(), t.base_st(), tot.vBCST);
    atribuir(t.has_retido(), t.retido(), tot.vST);
    atribuir(t.has_fcp_st_retido(), t.fcp_st_retido(), tot.vFCPST);
    atribuir(t.has_fcp_st_retido_anteriormente(), t.fcp_st_retido_anteriormente(), tot.vFCPSTRet);
    atribuir(t.has_produtos(), t.produtos(), tot.vProd);
    atribuir(t.has_frete(), t.frete(), tot.vFrete);
    atribuir(t.has_seguro(), t.seguro(), tot.vSeg);
    atribuir(t.has_desconto(), t.desconto(), tot.vDesc);
    atribuir(t.has_imposto_importacao(), t.imposto_importacao(), tot.vII);
    atribuir(t.has_ipi(), t.ipi(), tot.vIPI);
    atribuir(t.has_ipi_devolvido(), t.ipi_devolvido(), tot.vIPIDevol);
    atribuir(t.has_impostos_pis(), t.impostos_pis(), tot.vPIS);
    atribuir(t.has_impostos_cofins(), t.impostos_cofins(), tot.vCOFINS);
    atribuir(t.has_despesas_acessorias(), t.despesas_acessorias(), tot.vOutro);
    atribuir(t.has_nota(), t.nota(), tot.vNF);
    atribuir(t.has_tributos_item(), t.tributos_item(), tot.vTotTrib);
}

void montar_ISSQNtot(mensagem::TotalNFeISSQN const& t, grupo::ISSQNtot& tot)
{
    atribuir(t.has_valor_servico(), t.valor_servico(), tot.vServ);
    atribuir(t.has_bc(), t.bc(), tot.vBC);
    atribuir(t.has_iss(), t.iss(), tot.vISS);
    atribuir(t.has_pis(), t.pis(), tot.vPIS);
    atribuir(t.has_cofins(), t.cofins(), tot.vCOFINS);
    tot.dCompet = date_de(t.prestacao_servico());
    atribuir(t.has_iss_retido(), t.iss_retido(), tot.vISSRet);
}

void montar_retTrib(mensagem::TotalNFeRetencaoTributos const& t, grupo::retTrib& ret)
{
    atribuir(t.has_pis_retido(), t.pis_retido(), ret.vRetPIS);
    atribuir(t.has_cofins_retido(), t.cofins_retido(), ret.vRetCOFINS);
    atribuir(t.has_csll_retido(), t.csll_retido(), ret.vRetCSLL);
    atribuir(t.has_bc_irrf(), t.bc_irrf(), ret.vBCIRRF);
    atribuir(t.has_irrf(), t.irrf(), ret.vIRRF);
    atribuir(t.has_bc_retencao_previdencia(), t.bc_retencao_previdencia(), ret.vBCRetPrev);
    atribuir(t.has_retencao_previdencia(), t.retencao_previdencia(), ret.vRetPrev);
}

bool montar_transporta(mensagem::GrupoTransportador const& transportador, grupo::transporta& transporta,
                       core::result::stack& stack)
{
    std::uint64_t numero = 0;
    if (transportador.has_cnpj()) {
        if (!documento_de_texto(transportador.cnpj().value(), numero, stack)) {
            return recusar<codigo::cnpj_transportador_invalido>(stack, transportador.cnpj().value());
        }
        transporta.documento = grupo::CNPJ{numero};
    } else if (transportador.has_cpf()) {
        if (!documento_de_texto(transportador.cpf().value(), numero, stack)) {
            return recusar<codigo::cpf_transportador_invalido>(stack, transportador.cpf().value());
        }
        transporta.documento = grupo::CPF{numero};
    }
    transporta.xNome = texto(transportador.has_razao_social(), transportador.razao_social());
    transporta.IE = texto(transportador.has_inscricao_estadual(), transportador.inscricao_estadual());
    transporta.xEnder = texto(transportador.has_endereco(), transportador.endereco());
    transporta.xMun = texto(transportador.has_municipio(), transportador.municipio());
    transporta.UF = texto(transportador.has_uf(), transportador.uf());
    return true;
}

bool montar_card(mensagem::TransacaoTEF const& transacao, grupo::card& card, core::result::stack& stack)
{
    if (!mapear<codigo::tipo_integracao_invalido>(transacao.tipo_integracao(), tpIntegra, card.tpIntegra, stack)) {
        return false;
    }
    card.CNPJ = texto(transacao.has_cnpj(), transacao.cnpj());
    if (!mapear<codigo::bandeira_cartao_invalida>(transacao.bandeira(), tBand, card.tBand, stack)) {
        return false;
    }
    card.cAut = texto(transacao.has_numero_autorizacao(), transacao.numero_autorizacao());
    return true;
}

bool montar_detPag(mensagem::DetalhesPagamento const& detalhes, grupo::detPag& detPag, core::result::stack& stack)
{
    if (detalhes.indicador_forma_pagamento() != mensagem::DetalhesPagamento::NaoEspecificado &&
        !mapear<codigo::forma_pagamento_invalida>(detalhes.indicador_forma_pagamento(), indPag, detPag.indPag,
                                                  stack)) {
        return false;
    }
    if (!mapear<codigo::tipo_pagamento_invalido>(detalhes.meio_pagamento(), tPag, detPag.tPag, stack)) {
        return false;
    }
    detPag.xPag = texto(detalhes.has_descricao_meio_pagamento(), detalhes.descricao_meio_pagamento());
    atribuir(detalhes.has_valor_pagamento(), detalhes.valor_pagamento(), detPag.vPag);
    return !detalhes.has_informacoes_cartao() || montar_card(detalhes.informacoes_cartao(), detPag.card.emplace(), stack);
}

}  // namespace

// The totals of goods from the three groups of total when it is given, else
// from the older totais; the services and the withheld taxes only from total.
void montar_total(mensagem::NotaFiscal const& nota, grupo::total& total)
{
    if (!nota.has_total()) {
        // The older form stays readable for the callers that still send it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
        montar_ICMSTot(nota.totais(), total.ICMSTot);
#pragma GCC diagnostic pop
        return;
    }
    montar_ICMSTot(nota.total().total_nfe_icms(), total.ICMSTot);
    if (nota.total().has_total_nfe_issqn()) {
        montar_ISSQNtot(nota.total().total_nfe_issqn(), total.ISSQNtot.emplace());
    }
    if (nota.total().has_total_nfe_retencao_tributos()) {
        montar_retTrib(nota.total().total_nfe_retencao_tributos(), total.retTrib.emplace());
    }
}

bool montar_transp(mensagem::InformacoesTransporte const& transporte, grupo::transp& transp,
                   core::result::stack& stack)
{
    if (!mapear<codigo::modalidade_frete_invalida>(transporte.modalidade(), modFrete, transp.modFrete, stack)) {
        return false;
    }
    if (transporte.has_grupo_transportador() &&
        !montar_transporta(transporte.grupo_transportador(), transp.transporta.emplace(), stack)) {
        return false;
    }
    for (mensagem::Volumes const& volume : transporte.volumes()) {
        transp.vol.emplace_back().qVol = volume.quantidade();
    }
    return true;
}

// A note without any payment has the one detPag of "without payment", of
// value zero: the layout wants at least one.
bool montar_pag(mensagem::InformacoesPagamento const& pagamento, grupo::pag& pag, core::result::stack& stack)
{
    for (mensagem::DetalhesPagamento const& detalhes : pagamento.detalhes_pagamento()) {
        if (!montar_detPag(detalhes, pag.detPag.emplace_back(), stack)) {
            return false;
        }
    }
    if (pag.detPag.empty()) {
        pag.detPag.emplace_back().tPag = tPag_sem_pagamento;
    }
    atribuir(pagamento.has_valor_total_troco(), pagamento.valor_total_troco(), pag.vTroco);
    return true;
}

void montar_infIntermed(mensagem::InformacoesIntermediador const& intermediador, grupo::infIntermed& infIntermed)
{
    infIntermed.CNPJ = intermediador.cnpj();
    infIntermed.idCadIntTran = intermediador.indicador_cadastrado();
}

// indProc keeps the number of its origin; the numbers the layout has no code
// for are refused.
bool montar_infAdic(mensagem::InformacoesAdicionais const& adicionais, grupo::infAdic& infAdic,
                    core::result::stack& stack)
{
    infAdic.infAdFisco = texto(adicionais.has_fisco(), adicionais.fisco());
    infAdic.infCpl = texto(adicionais.has_complementares(), adicionais.complementares());
    for (mensagem::GrupoProcessoReferenciado const& processo : adicionais.grupo_processo_referenciado()) {
        int const origem = processo.indicador_origem();
        if (!mensagem::GrupoProcessoReferenciado::IndicadorOrigem_IsValid(origem)) {
            return recusar<codigo::origem_processo_invalida>(stack, static_cast<unsigned int>(origem));
        }
        infAdic.procRef.push_back(grupo::procRef{processo.identificador_processo(), static_cast<std::uint16_t>(origem)});
    }
    return true;
}

void montar_infRespTec(mensagem::InformacoesResponsavelTecnico const& responsavel, grupo::infRespTec& infRespTec)
{
    infRespTec.CNPJ = responsavel.cnpj();
    infRespTec.xContato = responsavel.nome_pessoa_a_ser_contatada();
    infRespTec.email = responsavel.email();
    infRespTec.fone = responsavel.telefone();
    if (responsavel.has_informacoes_codigo_seguranca()) {
        mensagem::InformacoesCodigoSeguranca const& codigo = responsavel.informacoes_codigo_seguranca();
        infRespTec.CSRT = grupo::CSRT{limitado<std::uint16_t>(codigo.identificador_csrt()), codigo.hash_csrt()};
    }
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

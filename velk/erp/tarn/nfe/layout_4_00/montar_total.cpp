// The totals of the note, as the model gives them: nothing is added up here.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The codes of the special tax regime of services, 1 to 6.
constexpr std::uint16_t cRegTrib_maior = 6;

bool montar_ISSQNtot(fiscal::total_nfe_issqn const& issqn, grupo::ISSQNtot& tot, core::result::stack& stack)
{
    tot.vServ = issqn.get_valor_servico();
    tot.vBC = issqn.get_valor_base_calculo();
    tot.vISS = issqn.get_valor_iss();
    tot.vPIS = issqn.get_valor_pis();
    tot.vCOFINS = issqn.get_valor_cofins();
    tot.dCompet = issqn.get_data_prestacao_servico();
    tot.vDeducao = issqn.get_valor_deducao();
    tot.vOutro = issqn.get_valor_outras_retencoes();
    tot.vDescIncond = issqn.get_valor_desconto_incondicionado();
    tot.vDescCond = issqn.get_valor_desconto_condicionado();
    tot.vISSRet = issqn.get_valor_iss_retido();
    // The code of the special regime is the layout's already; one outside
    // the layout's is refused as a tax regime is.
    tot.cRegTrib = issqn.get_codigo_regime_tributacao();
    if (tot.cRegTrib && (*tot.cRegTrib == 0 || *tot.cRegTrib > cRegTrib_maior)) {
        return recusar<21>(stack, static_cast<unsigned int>(*tot.cRegTrib));
    }
    return true;
}

grupo::retTrib montar_retTrib(fiscal::total_nfe_retencao_tributos const& retencao)
{
    return grupo::retTrib{retencao.get_valor_pis_retido(),
                          retencao.get_valor_cofins_retido(),
                          retencao.get_valor_csll_retido(),
                          retencao.get_valor_base_calculo_irrf(),
                          retencao.get_valor_irrf(),
                          retencao.get_valor_bc_retencao_previdencia(),
                          retencao.get_valor_retencao_previdencia()};
}

}  // namespace

bool montar_total(fiscal::total_nfe const& total_nfe, grupo::total& total, core::result::stack& stack)
{
    fiscal::total_nfe_icms const icms = total_nfe.get_total_icms();
    grupo::ICMSTot& tot = total.ICMSTot;
    tot.vBC = icms.get_total_base_normal();
    tot.vICMS = icms.get_total_icms_normal();
    tot.vICMSDeson = icms.get_total_desonerado();
    tot.vFCPUFDest = icms.get_total_icms_fcp();
    tot.vICMSUFDest = icms.get_total_icms_destino();
    tot.vICMSUFRemet = icms.get_total_icms_remetente();
    tot.vFCP = icms.get_total_fcp();
    tot.vBCST = icms.get_total_base_st();
    tot.vST = icms.get_total_retido();
    tot.vFCPST = icms.get_total_fcp_retido();
    tot.vFCPSTRet = icms.get_total_fcp_retido_anteriormente();
    tot.vProd = icms.get_valor_total_dos_produtos_da_nota();
    tot.vFrete = icms.get_total_frete();
    tot.vSeg = icms.get_total_seguro();
    tot.vDesc = icms.get_valor_total_do_desconto_da_nota();
    tot.vII = icms.get_total_imposto_de_importacao();
    tot.vIPI = icms.get_total_ipi();
    tot.vIPIDevol = icms.get_total_ipi_devolvido();
    tot.vPIS = icms.get_total_imposto_pis();
    tot.vCOFINS = icms.get_total_imposto_confins();
    tot.vOutro = icms.get_total_despesas_acessorias();
    tot.vNF = icms.get_total_da_nota();
    tot.vTotTrib = icms.get_total_dos_tributos_do_item();
    if (auto const issqn = total_nfe.get_total_issqn();
        issqn && !montar_ISSQNtot(*issqn, total.ISSQNtot.emplace(), stack)) {
        return false;
    }
    if (auto const retencao = total_nfe.get_total_nfe_retencao_tributos()) {
        total.retTrib = montar_retTrib(*retencao);
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

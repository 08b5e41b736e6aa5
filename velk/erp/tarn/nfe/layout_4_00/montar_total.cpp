// The totals of the note, for now: ICMSTot only. ISSQNtot and retTrib come
// with the closing groups, which replace this file.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

bool montar_total(fiscal::total_nfe const& total_nfe, grupo::total& total, core::result::stack&)
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
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

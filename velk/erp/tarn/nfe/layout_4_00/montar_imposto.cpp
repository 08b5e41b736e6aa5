// The taxes of an item: ICMS or ISSQN, IPI, import tax, PIS, COFINS and the
// ICMS of the state of destination. Every value is the model's; nothing is
// computed.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

#include <variant>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// CST of IPI, indexed by the enumerator of the model, and whether that
// situation is taxed (IPITrib) or not (IPINT). The choice follows the model's
// value, not the code it maps to.
constexpr std::uint16_t CST_IPI[] = {0, 1, 2, 3, 4, 5, 49, 50, 51, 52, 53, 54, 55, 99};
constexpr bool IPI_tributado[] = {true, false, false, false, false, false, true,
                                  true, false, false, false, false, false, true};
static_assert(std::size(CST_IPI) == std::size(IPI_tributado));

// The calculation by rate is preferred to the one by unit; with neither, the
// default calculation stays, with zero values.
bool montar_calculo(fiscal::produto const& produto, fiscal::tributacao_ipi const& tributacao, grupo::IPITrib& ipi,
                    core::result::stack& stack)
{
    if (auto const aliquota = tributacao.get_tributacao_ipi_calculo_aliquota()) {
        grupo::IPI_aliquota calculo;
        if (!exigir<54>(aliquota->get_aliquota_ipi(), calculo.pIPI, "O valor pIPI é obrigatório para o cálculo do IPI",
                        stack) ||
            !exigir<50>(aliquota->get_valor_bc_ipi(), calculo.vBC, "O valor vBC é obrigatório para o cálculo do IPI",
                        stack)) {
            return false;
        }
        ipi.calculo = calculo;
    } else if (auto const valor = tributacao.get_tributacao_ipi_calculo_valor()) {
        grupo::IPI_unidade calculo;
        if (!exigir<63>(valor->get_valor_unidade_tributavel(), calculo.vUnid, "null", stack) ||
            !exigir<61>(produto.get_quantidade_tributavel(), calculo.qUnid, "null", stack)) {
            return false;
        }
        ipi.calculo = calculo;
    }
    return true;
}

// The indicators of ISSQN are the layout's codes already: indISS 1 to 7,
// indIncentivo 1 or 2. Another value makes the group unfit, code 65.
constexpr std::uint16_t indISS_maior = 7;
constexpr std::uint16_t indIncentivo_maior = 2;

bool montar_ISSQN(fiscal::issqn const& issqn, grupo::ISSQN& registro, core::result::stack& stack)
{
    registro.vBC = issqn.get_valor_bc();
    registro.vAliq = issqn.get_valor_aliquota();
    registro.vISSQN = issqn.get_valor_issqn();
    registro.cMunFG = issqn.get_codigo_municio_de_ocorrencia();
    registro.cListServ = issqn.get_item_lista_servicos();
    registro.vDeducao = issqn.get_valor_deducao();
    registro.vOutro = issqn.get_valor_outras_retencoes();
    registro.vDescIncond = issqn.get_valor_desconto_incondicionado();
    registro.vDescCond = issqn.get_valor_desconto_condicionado();
    registro.vISSRet = issqn.get_valor_retencao_iss();
    registro.indISS = issqn.get_indicador_iss();
    registro.cServico = issqn.get_codigo_servico();
    registro.cMun = issqn.get_codigo_municipio_incidencia();
    registro.cPais = issqn.get_codigo_pais();
    registro.nProcesso = issqn.get_numero_processo();
    registro.indIncentivo = issqn.get_indicador_incentivo();
    if (registro.indISS == 0 || registro.indISS > indISS_maior || registro.indIncentivo == 0 ||
        registro.indIncentivo > indIncentivo_maior) {
        return recusar<65>(stack);
    }
    return true;
}

bool montar_ICMS_ou_ISSQN(fiscal::tributacao_produto const& tributacao, grupo::imposto& imposto,
                          core::result::stack& stack)
{
    return core::visit(
        [&](auto const& classe) {
            if constexpr (std::is_same_v<std::decay_t<decltype(classe)>, fiscal::issqn>) {
                grupo::ISSQN issqn;
                if (!montar_ISSQN(classe, issqn, stack)) {
                    return false;
                }
                imposto.ICMS_ou_ISSQN = std::move(issqn);
                return true;
            } else {
                grupo::ICMS icms;
                if (!montar_ICMS(classe, icms, stack)) {
                    return false;
                }
                imposto.ICMS_ou_ISSQN = std::move(icms);
                return true;
            }
        },
        tributacao);
}

grupo::II montar_II(fiscal::tributacao_imposto_importacao const& importacao)
{
    grupo::II ii;
    ii.vBC = importacao.get_valor_bc_imposto_importacao();
    ii.vDespAdu = importacao.get_valor_despesas_aduaneiras();
    ii.vII = importacao.get_valor_imposto_importacao();
    // vIOF is always written: zero when the model has none.
    aberto(importacao.get_valor_imposto_operacoes_financeiras(), ii.vIOF);
    return ii;
}

grupo::ICMSUFDest montar_ICMSUFDest(fiscal::tributacao_icms_uf_destino const& destino)
{
    grupo::ICMSUFDest registro;
    registro.vBCUFDest = destino.get_valor_bc();
    registro.vBCFCPUFDest = destino.get_valor_bc_fcp();
    registro.pFCPUFDest = destino.get_percentual_fundo_combate_pobreza();
    registro.pICMSUFDest = destino.get_aliquota_interna();
    registro.pICMSInter = destino.get_aliquota_interestadual();
    registro.pICMSInterPart = destino.get_percentual_partilha();
    registro.vFCPUFDest = destino.get_valor_icms_fundo_combate_pobreza();
    registro.vICMSUFDest = destino.get_valor_icms_uf_destino();
    registro.vICMSUFRemet = destino.get_valor_icms_uf_remetente();
    return registro;
}

bool montar_PIS_COFINS(core::optional<fiscal::tributacao_pis_cofins> const& tributacao, grupo::imposto& imposto,
                       core::result::stack& stack)
{
    if (!tributacao) {
        return true;
    }
    if (auto const pis = tributacao->get_grupo_tributacao_pis();
        pis && !montar_PIS(*pis, imposto.PIS.emplace(), stack)) {
        return false;
    }
    auto const cofins = tributacao->get_grupo_tributacao_cofins();
    return !cofins || montar_COFINS(*cofins, imposto.COFINS.emplace(), stack);
}

}  // namespace

bool montar_IPI(fiscal::produto const& produto, fiscal::tributacao_ipi const& tributacao, grupo::IPI& ipi,
                core::result::stack& stack)
{
    if (auto const cnpj = tributacao.get_cnpj_produtor();
        cnpj && !ler_numero<75>(*cnpj, ipi.CNPJProd.emplace(), stack)) {
        return false;
    }
    ipi.cSelo = tributacao.get_codigo_selo_controle_ipi();
    ipi.qSelo = tributacao.get_quantidade_selo_controle();
    std::uint16_t CST = 0;
    if (!ler_numero<76>(tributacao.get_classe_enquadramento_ipi(), ipi.cEnq, stack) ||
        !mapear<43>(tributacao.get_cst_ipi(), CST_IPI, CST, stack)) {
        return false;
    }
    if (!IPI_tributado[static_cast<unsigned int>(tributacao.get_cst_ipi())]) {
        ipi.tributacao = grupo::IPINT{CST};
        return true;
    }
    grupo::IPITrib tributado;
    tributado.CST = CST;
    if (!montar_calculo(produto, tributacao, tributado, stack)) {
        return false;
    }
    // A taxed IPI without its value is a defect of whoever filled the model:
    // reading it ends the process.
    tributado.vIPI = tributacao.get_valor_ipi().value();
    ipi.tributacao = std::move(tributado);
    return true;
}

bool montar_imposto(fiscal::produto const& produto, grupo::imposto& imposto, core::result::stack& stack)
{
    imposto.vTotTrib = produto.get_valor_total_tributos();
    if (!montar_ICMS_ou_ISSQN(produto.get_tributacao(), imposto, stack)) {
        return false;
    }
    if (auto const ipi = produto.get_tributacao_ipi();
        ipi && !montar_IPI(produto, *ipi, imposto.IPI.emplace(), stack)) {
        return false;
    }
    if (auto const importacao = produto.get_tributacao_importacao()) {
        // A service under ISSQN is not imported: the layout has no II beside it.
        if (std::holds_alternative<grupo::ISSQN>(imposto.ICMS_ou_ISSQN.base())) {
            return recusar<65>(stack);
        }
        imposto.II = montar_II(*importacao);
    }
    if (!montar_PIS_COFINS(produto.get_tributacao_pis_cofins(), imposto, stack)) {
        return false;
    }
    if (auto const destino = produto.get_tributacao_icms_uf_destino()) {
        imposto.ICMSUFDest = montar_ICMSUFDest(*destino);
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

// PIS and COFINS of an item. Their tax situations map to the same codes, but
// each has its own refusals, and some of their words differ on purpose: the
// missing rate of PISOutr is reported with the code whose words speak of the
// IPI, and the missing base of COFINSOutr with a sentence without "é".

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// Codes of the layout, indexed by the enumerator of the model.
constexpr std::uint16_t CST_aliquota[] = {1, 2};
constexpr std::uint16_t CST_nao_tributado[] = {4, 5, 6, 7, 8, 9};
constexpr std::uint16_t CST_outras_operacoes[] = {49, 50, 51, 52, 53, 54, 55, 56, 60, 61, 62, 63,
                                                  64, 65, 66, 67, 70, 71, 72, 73, 74, 75, 98, 99};

// The refusals of one tax: the codes of its three tax situations and of its
// missing values, with the sentences that go with them.
struct recusas_do_tributo {
    char const* base_aliquota;
    char const* aliquota_aliquota;
    char const* base_outras;
    char const* aliquota_outras;
};

constexpr recusas_do_tributo recusas_pis{
    "O valor vBC referente ao PIS é obrigatório",
    "O valor pPIS é obrigatório",
    "O valor vBC é obrigatório para o cálculo do PIS",
    "O valor pPIS é obrigatório para o cálculo do PIS",
};

constexpr recusas_do_tributo recusas_cofins{
    "O valor vBC é obrigatório para o cálculo da COFINS",
    "O valor pCOFINS é obrigatório para o cálculo da COFINS",
    "O valor vBC obrigatório para o cálculo da COFINS",
    "O valor pCOFINS é obrigatório para o cálculo da COFINS",
};

bool montar_grupo(fiscal::grupo_tributacao_pis_aliquota const& g, grupo::PIS& pis, core::result::stack& stack)
{
    grupo::PISAliq r;
    if (!mapear<codigo::cst_pis_invalido>(g.get_cst_pis(), CST_aliquota, r.CST, stack) ||
        !exigir<codigo::base_pis_invalida>(g.get_valor_bc_pis(), r.vBC, recusas_pis.base_aliquota, stack) ||
        !exigir<codigo::aliquota_pis_invalida>(g.get_percentual_aliquota_pis(), r.pPIS, recusas_pis.aliquota_aliquota,
                                               stack)) {
        return false;
    }
    r.vPIS = g.get_valor_pis();
    pis = r;
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_pis_nt const& g, grupo::PIS& pis, core::result::stack& stack)
{
    grupo::PISNT r;
    if (!mapear<codigo::cst_pis_nao_tributado_invalido>(g.get_cst_pis(), CST_nao_tributado, r.CST, stack)) {
        return false;
    }
    pis = r;
    return true;
}

// Other operations always take the calculation by base and rate.
bool montar_grupo(fiscal::grupo_tributacao_pis_outros const& g, grupo::PIS& pis, core::result::stack& stack)
{
    grupo::PISOutr r;
    grupo::PIS_aliquota calculo;
    if (!mapear<codigo::cst_pis_outras_invalido>(g.get_cst_pis(), CST_outras_operacoes, r.CST, stack) ||
        !exigir<codigo::base_pis_invalida>(g.get_valor_bc_pis(), calculo.vBC, recusas_pis.base_outras, stack) ||
        !exigir<codigo::aliquota_ipi_invalida>(g.get_percentual_aliquota_pis(), calculo.pPIS,
                                               recusas_pis.aliquota_outras, stack)) {
        return false;
    }
    r.calculo = calculo;
    r.vPIS = g.get_valor_pis();
    pis = r;
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_cofins_aliquota const& g, grupo::COFINS& cofins, core::result::stack& stack)
{
    grupo::COFINSAliq r;
    if (!mapear<codigo::cst_cofins_invalido>(g.get_cst_cofins(), CST_aliquota, r.CST, stack) ||
        !exigir<codigo::base_cofins_invalida>(g.get_valor_bc_cofins(), r.vBC, recusas_cofins.base_aliquota, stack) ||
        !exigir<codigo::aliquota_cofins_invalida>(g.get_percentual_aliquota_cofins(), r.pCOFINS,
                                                  recusas_cofins.aliquota_aliquota, stack)) {
        return false;
    }
    r.vCOFINS = g.get_valor_cofins();
    cofins = r;
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_cofins_nt const& g, grupo::COFINS& cofins, core::result::stack& stack)
{
    grupo::COFINSNT r;
    if (!mapear<codigo::cst_cofins_nao_tributado_invalido>(g.get_cst_cofins(), CST_nao_tributado, r.CST, stack)) {
        return false;
    }
    cofins = r;
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_cofins_outros const& g, grupo::COFINS& cofins, core::result::stack& stack)
{
    grupo::COFINSOutr r;
    grupo::COFINS_aliquota calculo;
    if (!mapear<codigo::cst_cofins_outras_invalido>(g.get_cst_cofins(), CST_outras_operacoes, r.CST, stack) ||
        !exigir<codigo::base_cofins_invalida>(g.get_valor_bc_cofins(), calculo.vBC, recusas_cofins.base_outras,
                                              stack) ||
        !exigir<codigo::aliquota_cofins_invalida>(g.get_percentual_aliquota_cofins(), calculo.pCOFINS,
                                                  recusas_cofins.aliquota_outras, stack)) {
        return false;
    }
    r.calculo = calculo;
    r.vCOFINS = g.get_valor_cofins();
    cofins = r;
    return true;
}

}  // namespace

bool montar_PIS(fiscal::grupo_tributacao_pis const& tributacao, grupo::PIS& pis, core::result::stack& stack)
{
    return core::visit([&](auto const& classe) { return montar_grupo(classe, pis, stack); }, tributacao);
}

bool montar_COFINS(fiscal::grupo_tributacao_cofins const& tributacao, grupo::COFINS& cofins, core::result::stack& stack)
{
    return core::visit([&](auto const& classe) { return montar_grupo(classe, cofins, stack); }, tributacao);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

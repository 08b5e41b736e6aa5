// PIS and COFINS of an item: each one-of chooses the group with a rate, the
// group without taxation or the group of other operations.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

using Tributacao = mensagem::TributacaoPISCofins;

// The tax situations, indexed by the enumerator: the enumerators are named
// after them (CSTPIS01 is 01), and PIS and COFINS share them.
constexpr std::uint16_t CST_aliquota[] = {1, 2};
constexpr std::uint16_t CST_nao_tributado[] = {4, 5, 6, 7, 8, 9};
constexpr std::uint16_t CST_outras[] = {49, 50, 51, 52, 53, 54, 55, 56, 60, 61, 62, 63,
                                        64, 65, 66, 67, 70, 71, 72, 73, 74, 75, 98, 99};

// The base, the rate and the value of a group, into the tags of the tax.
template <class Grupo>
void montar_valores(Grupo const& g, core::decimal& vBC, core::decimal& aliquota, core::decimal& valor)
{
    atribuir(g.has_valor_bc(), g.valor_bc(), vBC);
    atribuir(g.has_percentual_aliquota(), g.percentual_aliquota(), aliquota);
    atribuir(g.has_valor(), g.valor(), valor);
}

}  // namespace

bool montar_PIS(Tributacao const& tributacao, core::optional<grupo::PIS>& pis, core::result::stack& stack)
{
    switch (tributacao.GrupoTributacaoPIS_case()) {
    case Tributacao::kGrupoPis00: {
        auto& PISAliq = pis.emplace().emplace<grupo::PISAliq>();
        montar_valores(tributacao.grupo_pis_00(), PISAliq.vBC, PISAliq.pPIS, PISAliq.vPIS);
        return mapear<codigo::cst_pis_invalido>(tributacao.grupo_pis_00().cst(), CST_aliquota, PISAliq.CST, stack);
    }
    case Tributacao::kGrupoPis01:
        return mapear<codigo::cst_pis_nao_tributado_invalido>(tributacao.grupo_pis_01().cst(), CST_nao_tributado,
                                                               pis.emplace().emplace<grupo::PISNT>().CST, stack);
    case Tributacao::kGrupoPis02: {
        auto& PISOutr = pis.emplace().emplace<grupo::PISOutr>();
        auto& aliquota = PISOutr.calculo.emplace<grupo::PIS_aliquota>();
        montar_valores(tributacao.grupo_pis_02(), aliquota.vBC, aliquota.pPIS, PISOutr.vPIS);
        return mapear<codigo::cst_pis_outras_invalido>(tributacao.grupo_pis_02().cst(), CST_outras, PISOutr.CST,
                                                        stack);
    }
    case Tributacao::GRUPOTRIBUTACAOPIS_NOT_SET: return true;
    }
    return true;
}

bool montar_COFINS(Tributacao const& tributacao, core::optional<grupo::COFINS>& cofins, core::result::stack& stack)
{
    switch (tributacao.GrupoTributacaoCofins_case()) {
    case Tributacao::kGrupoCofins00: {
        auto& COFINSAliq = cofins.emplace().emplace<grupo::COFINSAliq>();
        montar_valores(tributacao.grupo_cofins_00(), COFINSAliq.vBC, COFINSAliq.pCOFINS, COFINSAliq.vCOFINS);
        return mapear<codigo::cst_cofins_invalido>(tributacao.grupo_cofins_00().cst(), CST_aliquota, COFINSAliq.CST,
                                                   stack);
    }
    case Tributacao::kGrupoCofins01:
        return mapear<codigo::cst_cofins_nao_tributado_invalido>(tributacao.grupo_cofins_01().cst(),
                                                                  CST_nao_tributado,
                                                                  cofins.emplace().emplace<grupo::COFINSNT>().CST, stack);
    case Tributacao::kGrupoCofins02: {
        auto& COFINSOutr = cofins.emplace().emplace<grupo::COFINSOutr>();
        auto& aliquota = COFINSOutr.calculo.emplace<grupo::COFINS_aliquota>();
        montar_valores(tributacao.grupo_cofins_02(), aliquota.vBC, aliquota.pCOFINS, COFINSOutr.vCOFINS);
        return mapear<codigo::cst_cofins_outras_invalido>(tributacao.grupo_cofins_02().cst(), CST_outras,
                                                           COFINSOutr.CST, stack);
    }
    case Tributacao::GRUPOTRIBUTACAOCOFINS_NOT_SET: return true;
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

// The ICMS of an item: the group the message chose, its fields into the tags
// of the same meaning.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

#include <algorithm>
#include <initializer_list>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

using Produto = mensagem::Produto;

// Codes of the layout, indexed by the enumerator of the message.
constexpr std::uint16_t orig[] = {0, 1, 2, 3, 4, 5, 6, 7, 8};
constexpr std::uint16_t CST[] = {0, 10, 20, 30, 40, 41, 50, 51, 60, 70, 90};
constexpr std::uint16_t CSOSN[] = {101, 102, 103, 201, 202, 203, 300, 400, 500, 900};
constexpr std::uint16_t modBC[] = {0, 1, 2, 3};
constexpr std::uint16_t modBCST[] = {0, 1, 2, 3, 4, 5};

// The tax situations each group of the layout admits: any other is refused,
// since the schema would refuse the document.
template <class Registro>
constexpr std::initializer_list<std::uint16_t> situacoes = {};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS00> = {0};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS10> = {10};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS20> = {20};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS30> = {30};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS40> = {40, 41, 50};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS51> = {51};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS60> = {60};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS70> = {70};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMS90> = {90};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSST> = {41, 60};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN101> = {101};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN102> = {102, 103, 300, 400};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN201> = {201};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN202> = {202, 203};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN500> = {500};
template <>
constexpr std::initializer_list<std::uint16_t> situacoes<grupo::ICMSSN900> = {900};

template <class Registro>
bool admitida(std::uint16_t situacao)
{
    auto const& lista = situacoes<Registro>;
    return std::find(lista.begin(), lista.end(), situacao) != lista.end();
}

// The sub-groups that stand among the tags of their group.
template <class Destino>
void montar_FCP(mensagem::GrupoFCP const& fcp, Destino& destino)
{
    grupo::FCP& FCP = destino.emplace();
    atribuir(fcp.has_valor_bc_fcp(), fcp.valor_bc_fcp(), FCP.vBCFCP);
    atribuir(fcp.has_percentual_fcp(), fcp.percentual_fcp(), FCP.pFCP);
    atribuir(fcp.has_valor_fcp(), fcp.valor_fcp(), FCP.vFCP);
}

template <class Destino>
void montar_FCPST(mensagem::GrupoFCPSTRetido const& fcp, Destino& destino)
{
    grupo::FCPST& FCPST = destino.emplace();
    atribuir(fcp.has_valor_bc_fcp_st_retido(), fcp.valor_bc_fcp_st_retido(), FCPST.vBCFCPST);
    atribuir(fcp.has_percentual_fcp_st_retido(), fcp.percentual_fcp_st_retido(), FCPST.pFCPST);
    atribuir(fcp.has_valor_fcp_st_retido(), fcp.valor_fcp_st_retido(), FCPST.vFCPST);
}

template <class Destino>
void montar_FCPSTRet(mensagem::GrupoFCPSTRetidoAnteriormente const& fcp, Destino& destino)
{
    grupo::FCPSTRet& FCPSTRet = destino.emplace();
    atribuir(fcp.has_valor_bc_fcp_st_retido_anteriormente(), fcp.valor_bc_fcp_st_retido_anteriormente(),
             FCPSTRet.vBCFCPSTRet);
    atribuir(fcp.has_percentual_fcp_st_retido_anteriormente(), fcp.percentual_fcp_st_retido_anteriormente(),
             FCPSTRet.pFCPSTRet);
    atribuir(fcp.has_valor_fcp_st_retido_anteriormente(), fcp.valor_fcp_st_retido_anteriormente(),
             FCPSTRet.vFCPSTRet);
}

template <class Destino>
void montar_ICMSDeson(mensagem::GrupoICMSDesonerado const& desonerado, Destino& destino)
{
    grupo::ICMSDeson& ICMSDeson = destino.emplace();
    atribuir(desonerado.has_valor_icms_desonerado(), desonerado.valor_icms_desonerado(), ICMSDeson.vICMSDeson);
    ICMSDeson.motDesICMS = limitado<std::uint16_t>(desonerado.motivo_desoneracao());
}

template <class Destino>
void montar_ICMSSTRet(mensagem::GrupoICMSSTRetido const& retido, Destino& destino)
{
    grupo::ICMSSTRet& ICMSSTRet = destino.emplace();
    atribuir(retido.has_valor_bc_icms_retido(), retido.valor_bc_icms_retido(), ICMSSTRet.vBCSTRet);
    atribuir(retido.has_aliquota_suportada_consumidor_final(), retido.aliquota_suportada_consumidor_final(),
             ICMSSTRet.pST);
    atribuir(retido.has_valor_icms_proprio_substituto(), retido.valor_icms_proprio_substituto(),
             ICMSSTRet.vICMSSubstituto);
    atribuir(retido.has_valor_icms_retido(), retido.valor_icms_retido(), ICMSSTRet.vICMSSTRet);
}

template <class Destino>
void montar_ICMSEfet(mensagem::GrupoInformacoesICMSEfetivo const& efetivo, Destino& destino)
{
    grupo::ICMSEfet& ICMSEfet = destino.emplace();
    atribuir(efetivo.has_percentual_reducao_bc(), efetivo.percentual_reducao_bc(), ICMSEfet.pRedBCEfet);
    atribuir(efetivo.has_valor_bc(), efetivo.valor_bc(), ICMSEfet.vBCEfet);
    atribuir(efetivo.has_aliquota(), efetivo.aliquota(), ICMSEfet.pICMSEfet);
    atribuir(efetivo.has_valor(), efetivo.valor(), ICMSEfet.vICMSEfet);
}

// A Decimal into its tag when both the message's group and the layout's have
// the field; the tag's kind says whether absence leaves it out or writes 0.
#define VELK_DECIMAL(campo, tag)                                   \
    if constexpr (requires { g.campo(); r.tag; }) {                \
        atribuir(g.has_##campo(), g.campo(), r.tag);               \
    }
#define VELK_SUBGRUPO(campo, tag, montar)                          \
    if constexpr (requires { g.campo(); r.tag; }) {                \
        if (g.has_##campo()) {                                     \
            montar(g.campo(), r.tag);                              \
        }                                                          \
    }

// The own ICMS and the ICMS by substitution of a group, or of a block of
// ICMS90 and ICMSSN900, in which the required tags are required as a whole.
template <class Grupo, class Registro>
bool montar_calculo(Grupo const& g, Registro& r, core::result::stack& stack)
{
    if constexpr (requires { g.modalidade_bc_icms(); }) {
        if (!mapear<codigo::modalidade_bc_icms_invalida>(g.modalidade_bc_icms(), modBC, r.modBC, stack)) {
            return false;
        }
    }
    VELK_DECIMAL(percentual_reducao, pRedBC)
    VELK_DECIMAL(valor_bc_icms, vBC)
    VELK_DECIMAL(aliquota_icms, pICMS)
    VELK_DECIMAL(valor_icms_operacao, vICMSOp)
    VELK_DECIMAL(percentual_diferimento, pDif)
    VELK_DECIMAL(valor_icms_diferido, vICMSDif)
    VELK_DECIMAL(valor_icms, vICMS)
    if constexpr (requires { g.modalidade_bc_icms_st(); }) {
        if (!mapear<codigo::modalidade_bc_st_invalida>(g.modalidade_bc_icms_st(), modBCST, r.modBCST, stack)) {
            return false;
        }
    }
    VELK_DECIMAL(percentual_mva, pMVAST)
    VELK_DECIMAL(percentual_reducao_st, pRedBCST)
    VELK_DECIMAL(valor_bc_icms_st, vBCST)
    VELK_DECIMAL(aliquota_icms_st, pICMSST)
    VELK_DECIMAL(valor_icms_st, vICMSST)
    VELK_DECIMAL(percentual_sn, pCredSN)
    VELK_DECIMAL(credito_sn, vCredICMSSN)
    return true;
}

// A block of ICMS90 or ICMSSN900: within a present block every tag that the
// layout requires of it is written, 0 when absent.
template <class Bloco, class Registro>
bool montar_bloco(Bloco const& bloco, Registro& r, core::result::stack& stack)
{
    auto obrigatorio = [](core::optional<core::decimal>& tag) {
        if (!tag) {
            tag = core::decimal();
        }
    };
    if (!montar_calculo(bloco, r, stack)) {
        return false;
    }
    if constexpr (requires { bloco.valor_bc_icms(); }) {
        obrigatorio(r.vBC);
        obrigatorio(r.pICMS);
        obrigatorio(r.vICMS);
    }
    if constexpr (requires { bloco.valor_bc_icms_st(); }) {
        obrigatorio(r.vBCST);
        obrigatorio(r.pICMSST);
        obrigatorio(r.vICMSST);
    }
    if constexpr (requires { bloco.credito_sn(); }) {
        obrigatorio(r.pCredSN);
        obrigatorio(r.vCredICMSSN);
    }
    return true;
}

// CST or CSOSN, which must be one that the group admits.
template <class Registro>
bool montar_situacao(Registro& r, int bruto, core::result::stack& stack)
{
    if constexpr (requires { r.CSOSN; }) {
        if (!mapear<codigo::csosn_invalido>(bruto, CSOSN, r.CSOSN, stack)) {
            return false;
        }
        return admitida<Registro>(r.CSOSN) || recusar<codigo::csosn_invalido>(stack, static_cast<unsigned int>(bruto));
    } else {
        if (!mapear<codigo::cst_icms_invalido>(bruto, CST, r.CST, stack)) {
            return false;
        }
        return admitida<Registro>(r.CST) || recusar<codigo::cst_icms_invalido>(stack, static_cast<unsigned int>(bruto));
    }
}

template <class Registro, class Grupo>
bool montar_grupo(Grupo const& g, grupo::ICMS& icms, core::result::stack& stack)
{
    Registro& r = icms.emplace<Registro>();
    if (!mapear<codigo::origem_mercadoria_invalida>(g.origem_mercadoria(), orig, r.orig, stack)) {
        return false;
    }
    int situacao = 0;
    if constexpr (requires { g.csosn(); }) {
        situacao = g.csosn();
    } else if constexpr (requires { g.tributacao_icms(); }) {
        situacao = g.tributacao_icms();
    } else {
        situacao = g.cst();
    }
    if (!montar_situacao(r, situacao, stack) || !montar_calculo(g, r, stack)) {
        return false;
    }
    if constexpr (requires { g.tributacao_normal(); }) {
        if (g.has_tributacao_normal() && !montar_bloco(g.tributacao_normal(), r, stack)) {
            return false;
        }
        if (g.has_tributacao_st() && !montar_bloco(g.tributacao_st(), r, stack)) {
            return false;
        }
    }
    if constexpr (requires { g.tributacao_sn(); }) {
        if (g.has_tributacao_sn() && !montar_bloco(g.tributacao_sn(), r, stack)) {
            return false;
        }
    }
    VELK_SUBGRUPO(fcp, FCP, montar_FCP)
    VELK_SUBGRUPO(fcp_st_retido, FCPST, montar_FCPST)
    VELK_SUBGRUPO(fcp_st_retido_anteriormente, FCPSTRet, montar_FCPSTRet)
    VELK_SUBGRUPO(grupo_icms_desonerado, ICMSDeson, montar_ICMSDeson)
    VELK_SUBGRUPO(icms_st_retido, ICMSSTRet, montar_ICMSSTRet)
    VELK_SUBGRUPO(informacoes_icms_efetivo, ICMSEfet, montar_ICMSEfet)
    // ICMS passed on to the state of destination.
    VELK_DECIMAL(valor_bc_icms_st_retido, vBCSTRet)
    VELK_DECIMAL(aliquota_suportada_consumidor_final, pST)
    VELK_DECIMAL(valor_icms_proprio_substituto, vICMSSubstituto)
    VELK_DECIMAL(valor_icms_st_retido, vICMSSTRet)
    VELK_DECIMAL(valor_bc_icms_st_destino, vBCSTDest)
    VELK_DECIMAL(valor_icms_st_destino, vICMSSTDest)
    return true;
}

#undef VELK_DECIMAL
#undef VELK_SUBGRUPO

}  // namespace

// The group by the member of the one-of that is set. Without one the item has
// no ICMS; a service under ISSQN is not written from this message.
bool montar_ICMS(Produto const& produto, grupo::ICMS& icms, core::result::stack& stack)
{
    switch (produto.Tributos_case()) {
    case Produto::kGrupoIcms00: return montar_grupo<grupo::ICMS00>(produto.grupo_icms_00(), icms, stack);
    case Produto::kGrupoIcms01: return montar_grupo<grupo::ICMS10>(produto.grupo_icms_01(), icms, stack);
    case Produto::kGrupoIcms02: return montar_grupo<grupo::ICMS20>(produto.grupo_icms_02(), icms, stack);
    case Produto::kGrupoIcms03: return montar_grupo<grupo::ICMS30>(produto.grupo_icms_03(), icms, stack);
    case Produto::kGrupoIcms04: return montar_grupo<grupo::ICMS40>(produto.grupo_icms_04(), icms, stack);
    case Produto::kGrupoIcms05: return montar_grupo<grupo::ICMS51>(produto.grupo_icms_05(), icms, stack);
    case Produto::kGrupoIcms06: return montar_grupo<grupo::ICMS60>(produto.grupo_icms_06(), icms, stack);
    case Produto::kGrupoIcms07: return montar_grupo<grupo::ICMS70>(produto.grupo_icms_07(), icms, stack);
    case Produto::kGrupoIcms08: return montar_grupo<grupo::ICMS90>(produto.grupo_icms_08(), icms, stack);
    case Produto::kGrupoIcms09: return montar_grupo<grupo::ICMSSN101>(produto.grupo_icms_09(), icms, stack);
    case Produto::kGrupoIcms10: return montar_grupo<grupo::ICMSSN102>(produto.grupo_icms_10(), icms, stack);
    case Produto::kGrupoIcms11: return montar_grupo<grupo::ICMSSN201>(produto.grupo_icms_11(), icms, stack);
    case Produto::kGrupoIcms12: return montar_grupo<grupo::ICMSSN202>(produto.grupo_icms_12(), icms, stack);
    case Produto::kGrupoIcms13: return montar_grupo<grupo::ICMSSN500>(produto.grupo_icms_13(), icms, stack);
    case Produto::kGrupoIcms14: return montar_grupo<grupo::ICMSSN900>(produto.grupo_icms_14(), icms, stack);
    case Produto::kGrupoRepasseIcmsSt:
        return montar_grupo<grupo::ICMSST>(produto.grupo_repasse_icms_st(), icms, stack);
    case Produto::TRIBUTOS_NOT_SET: return recusar<codigo::sem_tributacao_icms>(stack);
    case Produto::kIssqn: return recusar<codigo::issqn_nao_suportado>(stack);
    }
    return recusar<codigo::grupo_tributacao_invalido>(stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

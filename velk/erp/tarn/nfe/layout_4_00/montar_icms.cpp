// The ICMS group of an item. The class of the model chooses the group and
// nothing else does; a CST, CSOSN or reason of relief that the group does not
// admit is refused as out of range (codes 32, 31 and 46, with the model's
// value), since the authority would refuse the document.
//
// Each group reads its enumerations first (orig, CST or CSOSN, modBC,
// modBCST), then its values in the order of the tags. A required value that
// is absent ends the group with its code; only the first one is reported.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

#include <algorithm>
#include <iterator>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// Codes of the layout, indexed by the enumerator of the model.
constexpr std::uint16_t orig[] = {0, 1, 2, 3, 4, 5, 6, 7, 8};
constexpr std::uint16_t CST[] = {0, 10, 20, 30, 40, 41, 50, 51, 60, 70, 90};
constexpr std::uint16_t CSOSN[] = {101, 102, 103, 201, 202, 203, 300, 400, 500, 900};
constexpr std::uint16_t modBC[] = {0, 1, 2, 3};
constexpr std::uint16_t modBCST[] = {0, 1, 2, 3, 4, 5};
constexpr std::uint16_t motDesICMS[] = {1, 2, 3, 4, 5, 6, 7, 8, 9};

// The codes each group admits.
constexpr std::uint16_t CST_00[] = {0};
constexpr std::uint16_t CST_10[] = {10};
constexpr std::uint16_t CST_20[] = {20};
constexpr std::uint16_t CST_30[] = {30};
constexpr std::uint16_t CST_40[] = {40, 41, 50};
constexpr std::uint16_t CST_51[] = {51};
constexpr std::uint16_t CST_60[] = {60};
constexpr std::uint16_t CST_70[] = {70};
constexpr std::uint16_t CST_90[] = {90};
constexpr std::uint16_t CST_repasse[] = {41, 60};
constexpr std::uint16_t CSOSN_101[] = {101};
constexpr std::uint16_t CSOSN_102[] = {102, 103, 300, 400};
constexpr std::uint16_t CSOSN_201[] = {201};
constexpr std::uint16_t CSOSN_202[] = {202, 203};
constexpr std::uint16_t CSOSN_500[] = {500};
constexpr std::uint16_t CSOSN_900[] = {900};
// Reasons of relief: ICMS20, ICMS70 and ICMS90 admit the same three.
constexpr std::uint16_t motDesICMS_20_70_90[] = {3, 9, 12};
constexpr std::uint16_t motDesICMS_30[] = {6, 7, 9};
constexpr std::uint16_t motDesICMS_40[] = {1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 16, 90};

// The arguments of the refusals of absent values, each naming its tag.
constexpr char vBC_exigido[] = "O valor de vBC é obrigatório";
constexpr char vBCST_exigido[] = "O valor de vBCST é obrigatório";
constexpr char pICMS_exigido[] = "O valor de pICMS é obrigatório";
constexpr char pICMSST_exigido[] = "O valor de pICMSST é obrigatório";
constexpr char vICMS_exigido[] = "O valor de vICMS é obrigatório";
constexpr char vICMSST_exigido[] = "O valor de vICMSST é obrigatório";
constexpr char pCredSN_exigido[] = "O valor de pCredSN é obrigatório";
constexpr char vCredICMSSN_exigido[] = "O valor de vCredICMSSN é obrigatório";
constexpr char pRedBC_exigido[] = "O valor de pRedBC é obrigatório";

// Whether a value of a group is refused when absent or written as zero.
enum class regra { exigido, aberto };

template <int Codigo, regra Regra>
bool ler(core::optional<core::decimal> const& valor, core::decimal& destino, char const* argumento,
         core::result::stack& stack)
{
    if constexpr (Regra == regra::exigido) {
        return exigir<Codigo>(valor, destino, argumento, stack);
    } else {
        aberto(valor, destino);
        return true;
    }
}

// mapear, and then the code must be one the group admits; else the refusal
// is the same as for a value beyond the table.
template <int Codigo, class Enumeracao, std::size_t N, std::size_t M>
bool mapear_admitido(Enumeracao valor, std::uint16_t const (&tabela)[N], std::uint16_t const (&admitidos)[M],
                     std::uint16_t& destino, core::result::stack& stack)
{
    if (!mapear<Codigo>(valor, tabela, destino, stack)) {
        return false;
    }
    return std::find(std::begin(admitidos), std::end(admitidos), destino) != std::end(admitidos) ||
           recusar<Codigo>(stack, static_cast<unsigned int>(valor));
}

template <class Grupo, class Registro, std::size_t N>
bool montar_orig_CST(Grupo const& grupo, Registro& registro, std::uint16_t const (&admitidos)[N],
                     core::result::stack& stack)
{
    return mapear<28>(grupo.get_origem_mercadoria(), orig, registro.orig, stack) &&
           mapear_admitido<32>(grupo.get_cst(), CST, admitidos, registro.CST, stack);
}

template <class Grupo, class Registro, std::size_t N>
bool montar_orig_CSOSN(Grupo const& grupo, Registro& registro, std::uint16_t const (&admitidos)[N],
                       core::result::stack& stack)
{
    return mapear<28>(grupo.get_origem_mercadoria(), orig, registro.orig, stack) &&
           mapear_admitido<31>(grupo.get_csosn(), CSOSN, admitidos, registro.CSOSN, stack);
}

// The three sub-groups of a fund against poverty share their accessors.
template <class Registro, class Fundo>
core::optional<Registro> montar_fundo(core::optional<Fundo> const& fundo)
{
    if (!fundo) {
        return {};
    }
    return Registro{fundo->get_valor_bc(), fundo->get_percentual(), fundo->get_valor()};
}

template <std::size_t N>
bool montar_ICMSDeson(core::optional<fiscal::grupo_icms_desonerado> const& desonerado,
                      std::uint16_t const (&admitidos)[N], core::optional<grupo::ICMSDeson>& ICMSDeson,
                      core::result::stack& stack)
{
    if (!desonerado) {
        return true;
    }
    grupo::ICMSDeson& registro = ICMSDeson.emplace();
    registro.vICMSDeson = desonerado->get_valor_icms_desonerado();
    return mapear_admitido<46>(desonerado->get_motivo(), motDesICMS, admitidos, registro.motDesICMS, stack);
}

// ICMS retained before by substitution, its fund and the effective ICMS:
// the tail of ICMS60 and ICMSSN500.
template <class Grupo, class Registro>
void montar_retido_anteriormente(Grupo const& grupo, Registro& registro)
{
    if (auto const retido = grupo.get_icms_st_retido()) {
        registro.ICMSSTRet =
            grupo::ICMSSTRet{retido->get_valor_bc_icms_retido(), retido->get_aliquota_suportada_consumidor_final(),
                             retido->get_valor_icms_proprio_substituto(), retido->get_valor_icms_st_retido()};
    }
    registro.FCPSTRet = montar_fundo<grupo::FCPSTRet>(grupo.get_fcp_st_retido_anteriormente());
    if (auto const efetivo = grupo.get_informacoes_icms_efetivo()) {
        registro.ICMSEfet = grupo::ICMSEfet{efetivo->get_percentual_reducao_bc(), efetivo->get_valor_bc(),
                                            efetivo->get_aliquota(), efetivo->get_valor()};
    }
}

// vBC, pICMS and vICMS of the issuer's own ICMS.
template <regra Regra, class Grupo, class Registro>
bool montar_proprio(Grupo const& grupo, Registro& registro, core::result::stack& stack)
{
    return ler<47, Regra>(grupo.get_valor_bc_icms(), registro.vBC, vBC_exigido, stack) &&
           ler<51, Regra>(grupo.get_aliquota_icms(), registro.pICMS, pICMS_exigido, stack) &&
           ler<55, Regra>(grupo.get_valor_icms(), registro.vICMS, vICMS_exigido, stack);
}

// From pMVAST to the fund of the ICMS by substitution; modBCST is read with
// the enumerations. The base is always required, the rate and the value as
// the group says.
template <regra Aliquota, regra Valor, class Grupo, class Registro>
bool montar_ST(Grupo const& grupo, Registro& registro, core::result::stack& stack)
{
    registro.pMVAST = grupo.get_percentual_margem_valor_adicionado_icms_st();
    registro.pRedBCST = grupo.get_percentual_reducao_bc_icms_st();
    if (!exigir<47>(grupo.get_valor_bc_icms_st(), registro.vBCST, vBCST_exigido, stack) ||
        !ler<51, Aliquota>(grupo.get_aliquota_icms_st(), registro.pICMSST, pICMSST_exigido, stack) ||
        !ler<55, Valor>(grupo.get_valor_icms_st(), registro.vICMSST, vICMSST_exigido, stack)) {
        return false;
    }
    registro.FCPST = montar_fundo<grupo::FCPST>(grupo.get_fcp_st_retido());
    return true;
}

// The optional parts of ICMS90 and ICMSSN900: each sub-object of the model is
// written whole or not at all. A present one requires its base, rate and
// value, with the codes of the groups where they are always required.
template <class Normal, class Registro>
bool montar_normal_opcional(core::optional<Normal> const& normal, Registro& registro, core::result::stack& stack)
{
    if (!normal) {
        return true;
    }
    registro.pRedBC = normal->get_percentual_reducao_bc_icms();
    return mapear<29>(normal->get_modalidade_bc_icms(), modBC, registro.modBC.emplace(), stack) &&
           exigir<47>(normal->get_valor_bc_icms(), registro.vBC.emplace(), vBC_exigido, stack) &&
           exigir<51>(normal->get_aliquota_icms(), registro.pICMS.emplace(), pICMS_exigido, stack) &&
           exigir<55>(normal->get_valor_icms(), registro.vICMS.emplace(), vICMS_exigido, stack);
}

template <class ST, class Registro>
bool montar_ST_opcional(core::optional<ST> const& st, Registro& registro, core::result::stack& stack)
{
    if (!st) {
        return true;
    }
    registro.pMVAST = st->get_percentual_margem_valor_adicionado_icms_st();
    registro.pRedBCST = st->get_percentual_reducao_bc_icms_st();
    registro.FCPST = montar_fundo<grupo::FCPST>(st->get_fcp_st_retido());
    return mapear<30>(st->get_modalidade_bc_icms_st(), modBCST, registro.modBCST.emplace(), stack) &&
           exigir<47>(st->get_valor_bc_icms_st(), registro.vBCST.emplace(), vBCST_exigido, stack) &&
           exigir<51>(st->get_aliquota_icms_st(), registro.pICMSST.emplace(), pICMSST_exigido, stack) &&
           exigir<55>(st->get_valor_icms_st(), registro.vICMSST.emplace(), vICMSST_exigido, stack);
}

// The credit of the Simples Nacional: rate and value together, or neither.
bool montar_credito_opcional(core::optional<fiscal::tributacao_credito_sn_icms_900> const& credito,
                             grupo::ICMSSN900& registro, core::result::stack& stack)
{
    if (!credito || (!credito->get_aliquota_de_credito_sn() && !credito->get_valor_de_credito_sn())) {
        return true;
    }
    return exigir<56>(credito->get_aliquota_de_credito_sn(), registro.pCredSN.emplace(), pCredSN_exigido, stack) &&
           exigir<57>(credito->get_valor_de_credito_sn(), registro.vCredICMSSN.emplace(), vCredICMSSN_exigido,
                      stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_00 const& g, grupo::ICMS00& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_00, stack) || !mapear<29>(g.get_modalidade_bc_icms(), modBC, r.modBC, stack) ||
        !montar_proprio<regra::exigido>(g, r, stack)) {
        return false;
    }
    r.FCP = montar_fundo<grupo::FCP>(g.get_fcp());
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_icms_10 const& g, grupo::ICMS10& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_10, stack) || !mapear<29>(g.get_modalidade_bc_icms(), modBC, r.modBC, stack) ||
        !mapear<30>(g.get_modalidade_bc_icms_st(), modBCST, r.modBCST, stack) ||
        !montar_proprio<regra::exigido>(g, r, stack)) {
        return false;
    }
    r.FCP = montar_fundo<grupo::FCP>(g.get_fcp());
    return montar_ST<regra::exigido, regra::exigido>(g, r, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_20 const& g, grupo::ICMS20& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_20, stack) || !mapear<29>(g.get_modalidade_bc_icms(), modBC, r.modBC, stack) ||
        !exigir<62>(g.get_percentual_reducao_bc_icms(), r.pRedBC, pRedBC_exigido, stack) ||
        !montar_proprio<regra::exigido>(g, r, stack)) {
        return false;
    }
    r.FCP = montar_fundo<grupo::FCP>(g.get_fcp());
    return montar_ICMSDeson(g.get_grupo_icms_desonerado(), motDesICMS_20_70_90, r.ICMSDeson, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_30 const& g, grupo::ICMS30& r, core::result::stack& stack)
{
    return montar_orig_CST(g, r, CST_30, stack) &&
           mapear<30>(g.get_modalidade_bc_icms_st(), modBCST, r.modBCST, stack) &&
           montar_ST<regra::exigido, regra::exigido>(g, r, stack) &&
           montar_ICMSDeson(g.get_grupo_icms_desonerado(), motDesICMS_30, r.ICMSDeson, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_40 const& g, grupo::ICMS40& r, core::result::stack& stack)
{
    return montar_orig_CST(g, r, CST_40, stack) &&
           montar_ICMSDeson(g.get_grupo_icms_desonerado(), motDesICMS_40, r.ICMSDeson, stack);
}

// In ICMS51 every value is optional; modBC is always set, since the model
// always has one.
bool montar_grupo(fiscal::grupo_tributacao_icms_51 const& g, grupo::ICMS51& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_51, stack) ||
        !mapear<29>(g.get_modalidade_bc_icms(), modBC, r.modBC.emplace(), stack)) {
        return false;
    }
    r.pRedBC = g.get_percentual_reducao_bc_icms();
    r.vBC = g.get_valor_bc_icms();
    r.pICMS = g.get_aliquota_icms();
    r.vICMSOp = g.get_valor_icms_operacao();
    r.pDif = g.get_percentual_diferimento();
    r.vICMSDif = g.get_valor_icms_diferido();
    r.vICMS = g.get_valor_icms();
    r.FCP = montar_fundo<grupo::FCP>(g.get_fcp());
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_icms_60 const& g, grupo::ICMS60& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_60, stack)) {
        return false;
    }
    montar_retido_anteriormente(g, r);
    return true;
}

// ICMS70 requires only the reduction and the base and value by substitution;
// its other values are written as zero when absent.
bool montar_grupo(fiscal::grupo_tributacao_icms_70 const& g, grupo::ICMS70& r, core::result::stack& stack)
{
    if (!montar_orig_CST(g, r, CST_70, stack) || !mapear<29>(g.get_modalidade_bc_icms(), modBC, r.modBC, stack) ||
        !mapear<30>(g.get_modalidade_bc_icms_st(), modBCST, r.modBCST, stack) ||
        !exigir<62>(g.get_percentual_reducao_bc_icms(), r.pRedBC, pRedBC_exigido, stack)) {
        return false;
    }
    montar_proprio<regra::aberto>(g, r, stack);
    r.FCP = montar_fundo<grupo::FCP>(g.get_fcp());
    return montar_ST<regra::aberto, regra::exigido>(g, r, stack) &&
           montar_ICMSDeson(g.get_grupo_icms_desonerado(), motDesICMS_20_70_90, r.ICMSDeson, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_90 const& g, grupo::ICMS90& r, core::result::stack& stack)
{
    auto const normal = g.get_tributacao_normal_icms_90();
    if (!montar_orig_CST(g, r, CST_90, stack) || !montar_normal_opcional(normal, r, stack)) {
        return false;
    }
    if (normal) {
        r.FCP = montar_fundo<grupo::FCP>(normal->get_fcp());
    }
    return montar_ST_opcional(g.get_tributacao_st_icms_90(), r, stack) &&
           montar_ICMSDeson(g.get_grupo_icms_desonerado(), motDesICMS_20_70_90, r.ICMSDeson, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_101 const& g, grupo::ICMSSN101& r, core::result::stack& stack)
{
    return montar_orig_CSOSN(g, r, CSOSN_101, stack) &&
           exigir<56>(g.get_aliquota_de_credito_sn(), r.pCredSN, pCredSN_exigido, stack) &&
           exigir<57>(g.get_valor_de_credito_sn(), r.vCredICMSSN, vCredICMSSN_exigido, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_102 const& g, grupo::ICMSSN102& r, core::result::stack& stack)
{
    return montar_orig_CSOSN(g, r, CSOSN_102, stack);
}

// ICMSSN201 names pCredSN also when vCredICMSSN is the value missing.
bool montar_grupo(fiscal::grupo_tributacao_icms_201 const& g, grupo::ICMSSN201& r, core::result::stack& stack)
{
    return montar_orig_CSOSN(g, r, CSOSN_201, stack) &&
           mapear<30>(g.get_modalidade_bc_icms_st(), modBCST, r.modBCST, stack) &&
           montar_ST<regra::exigido, regra::aberto>(g, r, stack) &&
           exigir<56>(g.get_aliquota_de_credito_sn(), r.pCredSN, pCredSN_exigido, stack) &&
           exigir<57>(g.get_valor_de_credito_sn(), r.vCredICMSSN, pCredSN_exigido, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_202 const& g, grupo::ICMSSN202& r, core::result::stack& stack)
{
    return montar_orig_CSOSN(g, r, CSOSN_202, stack) &&
           mapear<30>(g.get_modalidade_bc_icms_st(), modBCST, r.modBCST, stack) &&
           montar_ST<regra::exigido, regra::exigido>(g, r, stack);
}

bool montar_grupo(fiscal::grupo_tributacao_icms_500 const& g, grupo::ICMSSN500& r, core::result::stack& stack)
{
    if (!montar_orig_CSOSN(g, r, CSOSN_500, stack)) {
        return false;
    }
    montar_retido_anteriormente(g, r);
    return true;
}

bool montar_grupo(fiscal::grupo_tributacao_icms_900 const& g, grupo::ICMSSN900& r, core::result::stack& stack)
{
    return montar_orig_CSOSN(g, r, CSOSN_900, stack) &&
           montar_normal_opcional(g.get_tributacao_normal_icms_900(), r, stack) &&
           montar_ST_opcional(g.get_tributacao_st_icms_900(), r, stack) &&
           montar_credito_opcional(g.get_tributacao_credito_sn_icms_900(), r, stack);
}

// ICMS by substitution passed on to another state.
bool montar_grupo(fiscal::grupo_repasse_icms_st const& g, grupo::ICMSST& r, core::result::stack& stack)
{
    if (!mapear<28>(g.get_origem_mercadoria(), orig, r.orig, stack) ||
        !mapear_admitido<32>(g.get_tributacao_icms(), CST, CST_repasse, r.CST, stack)) {
        return false;
    }
    r.vBCSTRet = g.get_valor_bc_icms_st_retido();
    r.pST = g.get_aliquota_suportada_consumidor_final();
    r.vICMSSubstituto = g.get_valor_icms_proprio_substituto();
    r.vICMSSTRet = g.get_valor_icms_st_retido();
    r.FCPSTRet = montar_fundo<grupo::FCPSTRet>(g.get_fcp_st_retido_anteriormente());
    r.vBCSTDest = g.get_valor_bc_icms_st_destino();
    r.vICMSSTDest = g.get_valor_icms_st_destino();
    if (auto const efetivo = g.get_informacoes_icms_efetivo()) {
        r.ICMSEfet = grupo::ICMSEfet{efetivo->get_percentual_reducao_bc(), efetivo->get_valor_bc(),
                                     efetivo->get_aliquota(), efetivo->get_valor()};
    }
    return true;
}

// The group's record is the one its builder fills; when the group is built,
// it replaces the alternative that the ICMS record held.
template <class Classe, class Registro>
bool substituir(bool (*montar)(Classe const&, Registro&, core::result::stack&), Classe const& classe, grupo::ICMS& icms,
                core::result::stack& stack)
{
    Registro registro;
    if (!montar(classe, registro, stack)) {
        return false;
    }
    icms = std::move(registro);
    return true;
}

}  // namespace

bool montar_ICMS(fiscal::grupo_tributacao_icms const& tributacao, grupo::ICMS& icms, core::result::stack& stack)
{
    return core::visit(
        [&](auto const& classe) {
            return substituir<std::decay_t<decltype(classe)>>(montar_grupo, classe, icms, stack);
        },
        tributacao);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

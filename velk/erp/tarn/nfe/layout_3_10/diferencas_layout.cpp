#include <velk/erp/tarn/nfe/layout_3_10/diferencas_layout.hpp>

#include <velk/xml/node.hpp>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <string>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

namespace {

constexpr char const* infNFe_4_00[] = {"infIntermed", "infRespTec"};
constexpr char const* ide_4_00[] = {"indIntermed"};
constexpr char const* local_4_00[] = {"xNome", "CEP", "cPais", "xPais", "fone", "email", "IE"};
constexpr char const* prod_4_00[] = {"indEscala", "CNPJFab", "cBenef", "rastro"};
constexpr char const* med_4_00[] = {"cProdANVISA", "xMotivoIsencao"};
constexpr char const* comb_4_00[] = {"descANP", "pGLP", "pGNn", "pGNi", "vPart"};
// The poverty fund (FCP) of the ICMS groups, and the effective ICMS of the
// groups of tax already withheld.
constexpr char const* fcp_4_00[] = {"vBCFCP", "pFCP", "vFCP"};
constexpr char const* fcp_st_4_00[] = {"vBCFCPST", "pFCPST", "vFCPST"};
constexpr char const* fcp_e_st_4_00[] = {"vBCFCP", "pFCP", "vFCP", "vBCFCPST", "pFCPST", "vFCPST"};
constexpr char const* retido_4_00[] = {"pST",       "vICMSSubstituto", "vBCFCPSTRet", "pFCPSTRet", "vFCPSTRet",
                                       "pRedBCEfet", "vBCEfet",         "pICMSEfet",   "vICMSEfet"};
constexpr char const* uf_dest_4_00[] = {"vBCFCPUFDest"};
constexpr char const* icms_tot_4_00[] = {"vFCP", "vFCPST", "vFCPSTRet", "vIPIDevol"};

constexpr tags_do_grupo so_no_4_00[] = {
    {"infNFe", infNFe_4_00},     {"ide", ide_4_00},           {"retirada", local_4_00},
    {"entrega", local_4_00},     {"prod", prod_4_00},         {"med", med_4_00},
    {"comb", comb_4_00},         {"ICMS00", fcp_4_00},        {"ICMS20", fcp_4_00},
    {"ICMS51", fcp_4_00},        {"ICMS10", fcp_e_st_4_00},   {"ICMS70", fcp_e_st_4_00},
    {"ICMS90", fcp_e_st_4_00},   {"ICMS30", fcp_st_4_00},     {"ICMSSN201", fcp_st_4_00},
    {"ICMSSN202", fcp_st_4_00},  {"ICMSSN900", fcp_st_4_00},  {"ICMS60", retido_4_00},
    {"ICMSST", retido_4_00},     {"ICMSSN500", retido_4_00},  {"ICMSUFDest", uf_dest_4_00},
    {"ICMSTot", icms_tot_4_00},
};

constexpr char const* ide_3_10[] = {"indPag"};
constexpr char const* ipi_3_10[] = {"clEnq"};
constexpr char const* med_3_10[] = {"nLote", "qLote", "dFab", "dVal"};
constexpr char const* comb_3_10[] = {"pMixGN"};

constexpr tags_do_grupo so_no_3_10[] = {
    {"ide", ide_3_10}, {"IPI", ipi_3_10}, {"med", med_3_10}, {"comb", comb_3_10}};

// Amounts that 3.10 writes only when not zero, by group.
constexpr char const* fat_sem_zero[] = {"vOrig", "vDesc", "vLiq"};
constexpr tags_do_grupo sem_zero_no_3_10[] = {{"fat", fat_sem_zero}};

// An item without GTIN: "SEM GTIN" in 4.00, an empty tag in 3.10.
constexpr char const* gtin[] = {"cEAN", "cEANTrib"};
constexpr char sem_gtin_4_00[] = "SEM GTIN";

// The payment's tags that 3.10 has not.
constexpr char const* det_pag_4_00[] = {"indPag", "xPag"};

bool contem(std::span<char const* const> tags, std::string const& nome)
{
    return std::any_of(tags.begin(), tags.end(), [&nome](char const* tag) { return nome == tag; });
}

std::span<char const* const> tags_de(std::span<tags_do_grupo const> tabela, std::string const& grupo)
{
    auto const it = std::find_if(tabela.begin(), tabela.end(),
                                 [&grupo](tags_do_grupo const& linha) { return grupo == linha.grupo; });
    return it == tabela.end() ? std::span<char const* const>() : it->tags;
}

bool zero(xml::element const& valor)
{
    std::string const texto = valor.get_contents();
    return !texto.empty() && texto.find_first_not_of("0.") == std::string::npos;
}

// Takes out of the element and of all below it the tags of 4.00 only and the
// zero amounts that 3.10 leaves out; empties the GTIN of an item without.
void retirar_tags_do_4_00(xml::element& elemento)
{
    std::span<char const* const> const retirar = tags_de(so_no_4_00, elemento.get_name());
    std::span<char const* const> const sem_zero = tags_de(sem_zero_no_3_10, elemento.get_name());
    auto filhos = elemento.get_node_range();
    for (auto it = filhos.begin(); it != filhos.end();) {
        xml::element* filho = it->as_element();
        if (filho != nullptr &&
            (contem(retirar, filho->get_name()) || (contem(sem_zero, filho->get_name()) && zero(*filho)))) {
            it = filhos.erase(it);
            continue;
        }
        if (filho != nullptr && contem(gtin, filho->get_name()) && filho->get_contents() == sem_gtin_4_00) {
            filho->set_contents("");
        } else if (filho != nullptr) {
            retirar_tags_do_4_00(*filho);
        }
        ++it;
    }
}

// One pag per payment in place of the one pag of the later layout.
void repetir_pag(xml::element& inf_nfe)
{
    auto filhos = inf_nfe.get_node_range();
    auto const pag = std::find_if(filhos.begin(), filhos.end(), [](xml::node& filho) {
        return filho.as_element() != nullptr && filho.as_element()->get_name() == "pag";
    });
    if (pag == filhos.end()) {
        return;
    }
    for (xml::node& filho : pag->as_element()->get_node_range()) {
        xml::element* det_pag = filho.as_element();
        if (det_pag == nullptr || det_pag->get_name() != "detPag") {
            continue;
        }
        xml::element pagamento("pag");
        for (xml::node& tag : det_pag->get_node_range()) {
            if (tag.as_element() == nullptr || !contem(det_pag_4_00, tag.as_element()->get_name())) {
                pagamento.append_node(std::move(tag));
            }
        }
        filhos.insert(pag, std::move(pagamento));
    }
    filhos.erase(pag);
}

}  // namespace

std::span<tags_do_grupo const> tags_so_no_4_00() { return so_no_4_00; }
std::span<tags_do_grupo const> tags_so_no_3_10() { return so_no_3_10; }

void adaptar_ao_layout_3_10(xml::element& nfe)
{
    retirar_tags_do_4_00(nfe);
    if (xml::element* inf_nfe = nfe.find_child("infNFe")) {
        repetir_pag(*inf_nfe);
    }
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

#include <velk/erp/tarn/nfe/layout_3_10/montar_layout_3_10.hpp>

#include <velk/core/variant.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/montar_layout_4_00.hpp>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_3_10 {

namespace {

namespace grupo = layout_4_00::grupo;
using layout_4_00::codigo;
using layout_4_00::mapear;

// Codes of 3.10, indexed by the enumerator of the model.
constexpr std::uint16_t indPag[] = {0, 1, 2};
constexpr std::uint16_t indPres[] = {0, 1, 2, 3, 4, 1, 9};

// The means of payment and card brands of 3.10; any other is "other".
constexpr std::uint16_t tPag_3_10[] = {1, 2, 3, 4, 5, 10, 11, 12, 13};
constexpr std::uint8_t tBand_3_10[] = {1, 2, 3, 4};
constexpr unsigned outros = 99;

// Own transport (3 by the sender, 4 by the recipient) came after 3.10, whose
// issuers declared it as freight of the sender (0) or of the recipient (1).
constexpr std::uint16_t modFrete_3_10[] = {0, 1, 2, 0, 1};

// ICMSST of 3.10 is the tax passed on to the state of destination only (CST
// 41); the later layout also holds CST 60 there.
constexpr std::uint16_t cst_repasse_3_10 = 41;

// The plates 3.10 admits: two or three letters and four digits, or three or
// four letters and three digits. The Mercosul plate (ABC1D23) is later.
bool placa_3_10(std::string const& placa)
{
    auto const letras = static_cast<std::size_t>(
        std::find_if(placa.begin(), placa.end(), [](char c) { return c < 'A' || c > 'Z'; }) - placa.begin());
    bool const digitos = std::all_of(placa.begin() + static_cast<std::ptrdiff_t>(letras), placa.end(),
                                     [](char c) { return c >= '0' && c <= '9'; });
    std::size_t const numeros = placa.size() - letras;
    return digitos && ((letras >= 2 && letras <= 3 && numeros == 4) || (letras >= 3 && letras <= 4 && numeros == 3));
}

template <class Codigo, std::size_t N>
Codigo conhecido_ou_outros(Codigo codigo_4_00, Codigo const (&conhecidos)[N])
{
    return std::find(std::begin(conhecidos), std::end(conhecidos), codigo_4_00) == std::end(conhecidos)
               ? static_cast<Codigo>(outros)
               : codigo_4_00;
}

// The note without what 3.10 never reads from the model.
fiscal::nota_fiscal so_o_que_3_10_le(fiscal::nota_fiscal nota)
{
    std::vector<fiscal::produto> produtos = nota.get_produtos();
    for (fiscal::produto& produto : produtos) {
        produto.set_medicamentos({}).set_armas({}).set_tributos_devolvidos({});
    }
    nota.set_produtos(std::move(produtos));
    nota.set_informacoes_intermediador({});
    nota.set_indicador_intermediador({});
    nota.set_informacoes_responsavel_tecnico({});
    return nota;
}

// The ICMS group of an item in 3.10: ICMSSN900 without the credit the
// builder of 3.10 never read.
void icms_3_10(grupo::imposto& imposto)
{
    auto* icms = std::get_if<grupo::ICMS>(&imposto.ICMS_ou_ISSQN.base());
    auto* sn900 = icms == nullptr ? nullptr : std::get_if<grupo::ICMSSN900>(&icms->base());
    if (sn900 != nullptr) {
        sn900->pCredSN.reset();
        sn900->vCredICMSSN.reset();
    }
}

// The vehicles whose plate 3.10 cannot hold are left out: the groups are
// optional there, the plate is not.
void veiculos_3_10(grupo::transp& transp)
{
    if (transp.veicTransp && !placa_3_10(transp.veicTransp->placa)) {
        transp.veicTransp.reset();
    }
    std::erase_if(transp.reboque, [](grupo::veicTransp const& reboque) { return !placa_3_10(reboque.placa); });
}

// IPI's clEnq and the GLP mix of comb, read only here.
void montar_item_3_10(fiscal::produto const& produto, grupo::det& det)
{
    auto const ipi = produto.get_tributacao_ipi();
    if (ipi && det.imposto.IPI) {
        det.imposto.IPI->clEnq = ipi->get_classe_enquadramento_ipi_cigarros_bebidas();
    }
    auto const combustiveis = produto.get_combustiveis();
    auto* comb = det.prod.especifico ? std::get_if<grupo::comb>(&det.prod.especifico->base()) : nullptr;
    if (combustiveis && comb != nullptr) {
        if (auto const glp = combustiveis->get_informacoes_glp()) {
            comb->pMixGN = glp->get_percentual_gas_natural_importado().value_or(core::decimal()) +
                           glp->get_percentual_gas_natural_nacional().value_or(core::decimal());
        }
    }
    icms_3_10(det.imposto);
}

bool montar_3_10(fiscal::nota_fiscal const& nota, layout_3_10& arvore, core::result::stack& stack)
{
    arvore.versao = "3.10";
    if (!mapear<codigo::forma_pagamento_invalida>(nota.get_indice_pagamento(), indPag, arvore.ide.indPag.emplace(),
                                                  stack) ||
        !mapear<codigo::presenca_invalida>(nota.get_indicador_presenca(), indPres, arvore.ide.indPres, stack)) {
        return false;
    }
    arvore.emit.IM.reset();
    arvore.emit.CNAE.reset();
    std::vector<fiscal::produto> const produtos = nota.get_produtos();
    for (std::size_t i = 0; i < produtos.size() && i < arvore.det.size(); ++i) {
        montar_item_3_10(produtos[i], arvore.det[i]);
    }
    arvore.total.retTrib.reset();
    if (arvore.infAdic) {
        arvore.infAdic->procRef.clear();
    }
    // A note without payments has no pag in 3.10, where the later layout
    // writes one "without payment".
    if (nota.get_informacoes_pagamento().get_detalhes_pagamento().empty()) {
        arvore.pag.detPag.clear();
    }
    return codigos_do_3_10(arvore, stack);
}

}  // namespace

bool codigos_do_3_10(layout_3_10& arvore, core::result::stack& stack)
{
    for (grupo::det const& det : arvore.det) {
        auto const* icms = std::get_if<grupo::ICMS>(&det.imposto.ICMS_ou_ISSQN.base());
        auto const* repasse = icms == nullptr ? nullptr : std::get_if<grupo::ICMSST>(&icms->base());
        if (repasse != nullptr && repasse->CST != cst_repasse_3_10) {
            return layout_4_00::recusar<codigo::cst_icms_invalido>(stack, static_cast<unsigned int>(repasse->CST));
        }
    }
    if (arvore.transp.modFrete < std::size(modFrete_3_10)) {
        arvore.transp.modFrete = modFrete_3_10[arvore.transp.modFrete];
    }
    veiculos_3_10(arvore.transp);
    for (grupo::detPag& pagamento : arvore.pag.detPag) {
        pagamento.tPag = conhecido_ou_outros(pagamento.tPag, tPag_3_10);
        if (pagamento.card && pagamento.card->tBand) {
            pagamento.card->tBand = conhecido_ou_outros(*pagamento.card->tBand, tBand_3_10);
        }
    }
    return true;
}

layout_3_10 montar_layout_3_10(fiscal::nota_fiscal const& nota, core::result::stack& stack)
{
    fiscal::nota_fiscal const lida = so_o_que_3_10_le(nota);
    layout_3_10 arvore = layout_4_00::montar_layout_4_00(lida, stack);
    if (stack.has_failed() || !montar_3_10(lida, arvore, stack)) {
        return {};
    }
    return arvore;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_3_10

#include <velk/erp/tarn/nfe/protobuf/generate_document.hpp>

#include <velk/erp/tarn/nfe/layout_3_10/escrever_layout_3_10.hpp>
#include <velk/erp/tarn/nfe/layout_3_10/montar_layout_3_10.hpp>
#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf {

namespace {

using namespace detail;

// Codes of 3.10, indexed by the enumerator of the message.
constexpr std::uint16_t indPag[] = {0, 1, 2};
// The sale outside the establishment (the last enumerator) came after 3.10,
// whose issuers declared it in person.
constexpr std::uint16_t indPres[] = {0, 1, 2, 3, 4, 9, 1};

// The note without what 3.10 has no place for.
mensagem::NotaFiscal so_o_que_3_10_le(mensagem::NotaFiscal const& nota)
{
    mensagem::NotaFiscal lida = nota;
    lida.clear_identificacao_local_retirada();
    lida.clear_identificacao_local_entrega();
    lida.clear_informacoes_responsavel_tecnico();
    lida.clear_informacoes_intermediador();
    lida.clear_indicador_intermediador();
    return lida;
}

// The share of natural gas in a GLP mix, in the one tag 3.10 has for it.
void montar_pMixGN(mensagem::Produto const& produto, grupo::det& det)
{
    auto* comb = det.prod.especifico ? std::get_if<grupo::comb>(&det.prod.especifico->base()) : nullptr;
    if (comb == nullptr || !produto.grupo_detalhamento_combustivel().has_informacoes_glp()) {
        return;
    }
    mensagem::InformacoesCombustivelGlp const& glp = produto.grupo_detalhamento_combustivel().informacoes_glp();
    core::decimal importado;
    core::decimal nacional;
    atribuir(glp.has_percentual_gas_natural_importado(), glp.percentual_gas_natural_importado(), importado);
    atribuir(glp.has_percentual_gas_natural_nacional(), glp.percentual_gas_natural_nacional(), nacional);
    comb->pMixGN = importado + nacional;
}

bool montar_3_10(mensagem::NotaFiscal const& nota, layout_3_10::layout_3_10& arvore, core::result::stack& stack)
{
    arvore.versao = "3.10";
    if (!montar_nota(nota, arvore, stack) ||
        !mapear<codigo::forma_pagamento_invalida>(nota.indice_pagamento(), indPag, arvore.ide.indPag, stack) ||
        !mapear<codigo::presenca_invalida>(nota.indicador_presenca(), indPres, arvore.ide.indPres, stack)) {
        return false;
    }
    for (int i = 0; i < nota.produtos_size(); ++i) {
        montar_pMixGN(nota.produtos(i), arvore.det[static_cast<std::size_t>(i)]);
    }
    // 3.10 has no "without payment": a note without payments has no pag.
    if (nota.informacoes_pagamento().detalhes_pagamento().empty()) {
        arvore.pag.detPag.clear();
    }
    return layout_3_10::codigos_do_3_10(arvore, stack);
}

}  // namespace

xml::document generate_document_3_10(mensagem::NotaFiscal const& nota, core::result::stack& stack)
{
    layout_3_10::layout_3_10 arvore;
    if (!montar_3_10(so_o_que_3_10_le(nota), arvore, stack)) {
        return {};
    }
    return layout_3_10::escrever_layout_3_10(arvore, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf

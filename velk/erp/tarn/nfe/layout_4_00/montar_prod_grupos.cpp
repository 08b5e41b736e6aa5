#include <velk/erp/tarn/nfe/layout_4_00/montar_prod_grupos.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t tpViaTransp[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
constexpr std::uint16_t tpIntermedio[] = {1, 2, 3};
constexpr std::uint16_t tpArma[] = {0, 1};

grupo::adi montar_adi(fiscal::adicao const& adicao)
{
    grupo::adi adi;
    adi.nAdicao = adicao.get_numero_adicao();
    adi.nSeqAdic = adicao.get_numero_sequencial_da_adicao();
    adi.cFabricante = adicao.get_codigo_fabricante_estrangeiro();
    adi.vDescDI = adicao.get_valor_desconto();
    adi.nDraw = adicao.get_ato_concessorio_drawback();
    return adi;
}

grupo::med montar_med(fiscal::medicamento const& medicamento)
{
    grupo::med med;
    // A medicine without registration is written "ISENTO", with the reason.
    core::visit(
        [&med](auto const& codigo) {
            if constexpr (std::is_same_v<std::decay_t<decltype(codigo)>, fiscal::medicamento_isento>) {
                med.cProdANVISA = "ISENTO";
                med.xMotivoIsencao = codigo.get_motivo();
            } else {
                med.cProdANVISA = codigo;
            }
        },
        medicamento.get_codigo_anvisa());
    med.vPMC = medicamento.get_preco_maximo_consumidor();
    return med;
}

bool montar_arma(fiscal::arma const& arma, grupo::arma& registro, core::result::stack& stack)
{
    if (!mapear<81>(arma.get_tipo(), tpArma, registro.tpArma, stack)) {
        return false;
    }
    registro.nSerie = arma.get_numero_serie_arma();
    registro.nCano = arma.get_numero_serie_cano();
    registro.descr = arma.get_descricao();
    return true;
}

grupo::comb montar_comb(fiscal::combustiveis const& combustivel)
{
    grupo::comb comb;
    comb.cProdANP = combustivel.get_codigo_produto_anp();
    comb.descANP = combustivel.get_descricao_produto_anp();
    if (auto const glp = combustivel.get_informacoes_glp()) {
        comb.pGLP = glp->get_percentual_derivado_do_petroleo();
        comb.pGNn = glp->get_percentual_gas_natural_nacional();
        comb.pGNi = glp->get_percentual_gas_natural_importado();
        comb.vPart = glp->get_valor_partida();
    }
    comb.CODIF = combustivel.get_codigo_autorizacao_codif();
    comb.qTemp = combustivel.get_quantidade_faturada_temperatura_ambiente();
    comb.UFCons = combustivel.get_uf_consumo();
    if (auto const cide = combustivel.get_informacoes_cide_combustiveis()) {
        comb.CIDE = grupo::CIDE{cide->get_base_de_calculo(), cide->get_valor_aliquota(), cide->get_valor_cide()};
    }
    if (auto const encerrante = combustivel.get_encerrante_bomba_combustiveis()) {
        comb.encerrante = grupo::encerrante{encerrante->get_identificacao_bico(), encerrante->get_identificacao_bomba(),
                                            encerrante->get_identificacao_tanque(), encerrante->get_valor_inicial(),
                                            encerrante->get_valor_final()};
    }
    return comb;
}

}  // namespace

bool montar_DI(fiscal::declaracao_importacao const& declaracao, grupo::DI& di, core::result::stack& stack)
{
    di.nDI = declaracao.get_numero_documento_importacao();
    di.dDI = declaracao.get_data_registro();
    di.xLocDesemb = declaracao.get_local_desembaraco();
    di.UFDesemb = declaracao.get_uf_desembaraco();
    di.dDesemb = declaracao.get_data_desembaraco();
    if (!mapear<26>(declaracao.get_via_transporte(), tpViaTransp, di.tpViaTransp, stack)) {
        return false;
    }
    di.vAFRMM = declaracao.get_valor_afrmm();
    if (!mapear<27>(declaracao.get_forma_intermedio_importacao(), tpIntermedio, di.tpIntermedio, stack)) {
        return false;
    }
    if (auto const cnpj = declaracao.get_cnpj_importador();
        cnpj && !ler_numero<74>(*cnpj, di.CNPJ.emplace(), stack)) {
        return false;
    }
    di.UFTerceiro = declaracao.get_uf_importador();
    di.cExportador = declaracao.get_codigo_exportador();
    for (fiscal::adicao const& adicao : declaracao.get_adicoes()) {
        di.adi.push_back(montar_adi(adicao));
    }
    return true;
}

// The indirect export names the note received for export, its registration
// and the quantity exported: all three or none. An entry without any of them
// has no exportInd; one with only some of them is an incomplete reference to
// that note, refused with code 58 and the first tag missing.
bool montar_detExport(fiscal::grupo_exportacao const& exportacao, grupo::detExport& detExport,
                      core::result::stack& stack)
{
    detExport.nDraw = exportacao.get_numero_ato_concessorio_drawback();
    grupo::exportInd exportInd{exportacao.get_numero_registro_exportacao(), exportacao.get_chave_acesso_nfe_recebida(),
                               exportacao.get_quantidade_exportada()};
    if (!exportInd.nRE && !exportInd.chNFe && !exportInd.qExport) {
        return true;
    }
    if (!exportInd.nRE || !exportInd.chNFe || !exportInd.qExport) {
        char const* const tag = !exportInd.nRE ? "nRE" : !exportInd.chNFe ? "chNFe" : "qExport";
        return recusar<58>(stack, std::string("O valor de ") + tag + " é obrigatório");
    }
    detExport.exportInd = std::move(exportInd);
    return true;
}

grupo::rastro montar_rastro(fiscal::informacoes_rastreabilidade const& lote)
{
    return grupo::rastro{lote.numero_lote(), lote.quantidade_de_produto_no_lote(), lote.data_fabricacao(),
                         lote.data_validade(), lote.codigo_agregacao()};
}

bool montar_especifico(fiscal::produto const& produto, core::optional<grupo::tipo_produto>& especifico,
                       core::result::stack& stack)
{
    if (auto const medicamentos = produto.get_medicamentos()) {
        std::vector<grupo::med> med;
        for (fiscal::medicamento const& medicamento : *medicamentos) {
            med.push_back(montar_med(medicamento));
        }
        especifico = std::move(med);
    }
    if (auto const armas = produto.get_armas()) {
        std::vector<grupo::arma> arma(armas->size());
        for (std::size_t indice = 0; indice < armas->size(); ++indice) {
            if (!montar_arma((*armas)[indice], arma[indice], stack)) {
                return false;
            }
        }
        especifico = std::move(arma);
    }
    if (auto const combustivel = produto.get_combustiveis()) {
        especifico = montar_comb(*combustivel);
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

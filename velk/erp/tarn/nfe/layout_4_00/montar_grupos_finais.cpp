// The optional closing groups: the bill, the marketplace, additional
// information, export and the technical manager.

#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// indProc keeps its value, but the layout has no code from 4 to 8.
constexpr std::uint16_t sem_codigo = 0xFFFF;
constexpr std::uint16_t indProc[] = {0, 1, 2, 3, sem_codigo, sem_codigo, sem_codigo, sem_codigo, sem_codigo, 9};

bool montar_procRef(fiscal::grupo_processo_referenciado const& processo, grupo::procRef& procRef,
                    core::result::stack& stack)
{
    procRef.nProc = processo.get_identificador();
    auto const bruto = static_cast<unsigned int>(processo.get_indicador_da_origem());
    if (bruto >= std::size(indProc) || indProc[bruto] == sem_codigo) {
        return recusar<77>(stack, bruto);
    }
    procRef.indProc = indProc[bruto];
    return true;
}

}  // namespace

// With a bill present, fat is always written, even with all its tags absent.
bool montar_cobr(fiscal::cobranca const& cobranca, grupo::cobr& cobr, core::result::stack&)
{
    cobr.fat = grupo::fat{cobranca.get_numero_fatura(), cobranca.get_valor_original_fatura(),
                          cobranca.get_valor_desconto(), cobranca.get_valor_liquido()};
    for (fiscal::duplicata const& duplicata : cobranca.get_duplicatas()) {
        cobr.dup.push_back(grupo::dup{duplicata.get_numero_duplicata(), duplicata.get_data_vencimento(),
                                      duplicata.get_valor_duplicata()});
    }
    return true;
}

bool montar_infIntermed(fiscal::informacoes_intermediador const& intermediador, grupo::infIntermed& infIntermed,
                        core::result::stack&)
{
    infIntermed.CNPJ = intermediador.get_cnpj();
    infIntermed.idCadIntTran = intermediador.get_identificador_cadastrado();
    return true;
}

bool montar_infAdic(fiscal::informacoes_adicionais const& adicionais, grupo::infAdic& infAdic,
                    core::result::stack& stack)
{
    infAdic.infAdFisco = adicionais.get_informacoes_adicionais_fisco();
    infAdic.infCpl = adicionais.get_informacoes_complementares();
    for (fiscal::grupo_processo_referenciado const& processo : adicionais.get_grupo_processo_referenciado()) {
        if (!montar_procRef(processo, infAdic.procRef.emplace_back(), stack)) {
            return false;
        }
    }
    return true;
}

bool montar_exporta(fiscal::informacoes_comercio_exterior const& comercio_exterior, grupo::exporta& exporta,
                    core::result::stack&)
{
    exporta.UFSaidaPais = comercio_exterior.get_uf_saida();
    exporta.xLocExporta = comercio_exterior.get_local_embarque();
    exporta.xLocDespacho = comercio_exterior.get_local_despacho();
    return true;
}

// The hash of the security code comes made: it is passed on as text.
bool montar_infRespTec(fiscal::informacoes_responsavel_tecnico const& responsavel, grupo::infRespTec& infRespTec,
                       core::result::stack&)
{
    infRespTec.CNPJ = responsavel.get_cnpj();
    infRespTec.xContato = responsavel.get_nome_pessoa_contatada();
    infRespTec.email = responsavel.get_email();
    infRespTec.fone = responsavel.get_telefone();
    if (auto const codigo = responsavel.get_informacoes_codigo_seguranca()) {
        infRespTec.CSRT = grupo::CSRT{codigo->get_identificador_csrt(), codigo->get_hash_csrt()};
    }
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

// Codes of the layout, indexed by the enumerator of the message.
constexpr std::uint16_t tpNF[] = {0, 1};
constexpr std::uint16_t idDest[] = {1, 2, 3};
constexpr std::uint16_t tpEmis[] = {1, 2, 3, 4, 5, 6, 7, 9};
// Production is the first enumerator of the message, and code 1 of the layout.
constexpr std::uint16_t tpAmb[] = {1, 2};
constexpr std::uint16_t finNFe[] = {1, 2, 3, 4};
constexpr std::uint16_t indFinal[] = {0, 1};
// The message names the sale outside the shop (5) after the other sale not in
// person (9).
constexpr std::uint16_t indPres[] = {0, 1, 2, 3, 4, 9, 5};
constexpr std::uint16_t indIntermed[] = {0, 1};

// Where the key ends the check digit stands: its 44th character. The key is
// not read otherwise: it is the caller's, and only its last digit is written.
bool montar_cDV(std::string const& chave, std::uint16_t& cDV, core::result::stack& stack)
{
    if (chave.size() < 44 || !numero_de_texto(chave.substr(43, 1), cDV)) {
        return recusar<codigo::chave_acesso_invalida>(stack, chave);
    }
    return true;
}

}  // namespace

// The model and the series come as text. One that holds no number is refused
// with the code of its tag: a point of sale that sends an empty series learns
// it on the stack, not through an exception.
bool montar_ide(mensagem::NotaFiscal const& nota, grupo::ide& ide, core::result::stack& stack)
{
    ide.cUF = limitado<std::uint16_t>(nota.ibge_uf_emissao());
    ide.cNF = nota.codigo_nf();
    ide.natOp = nota.natureza_operacao();
    if (!numero_de_texto(nota.modelo_emissao(), ide.mod)) {
        return recusar<codigo::modelo_invalido>(stack, nota.modelo_emissao());
    }
    if (!numero_de_texto(nota.serie(), ide.serie)) {
        return recusar<codigo::serie_invalida>(stack, nota.serie());
    }
    ide.nNF = nota.numero();
    ide.dhEmi = datetime_de(nota.data_emissao());
    if (nota.has_data_saida_entrada()) {
        ide.dhSaiEnt = datetime_de(nota.data_saida_entrada());
    }
    ide.cMunFG = nota.ibge_municipio_emissao();
    // The receipt form is printed whatever the model.
    ide.tpImp = 4;
    ide.procEmi = 0;
    ide.verProc = "2.02";
    if (!mapear<codigo::tipo_operacao_invalido>(nota.tipo_operacao(), tpNF, ide.tpNF, stack) ||
        !mapear<codigo::destino_operacao_invalido>(nota.indicador_operacao(), idDest, ide.idDest, stack) ||
        !mapear<codigo::tipo_emissao_invalido>(nota.tipo_emissao(), tpEmis, ide.tpEmis, stack) ||
        !montar_cDV(nota.chave_acesso(), ide.cDV, stack) ||
        !mapear<codigo::ambiente_invalido>(nota.indicador_ambiente(), tpAmb, ide.tpAmb, stack) ||
        !mapear<codigo::finalidade_emissao_invalida>(nota.indicador_finalidade_emissao(), finNFe, ide.finNFe,
                                                     stack) ||
        !mapear<codigo::consumidor_final_invalido>(nota.operacao_para_consumidor_final(), indFinal, ide.indFinal,
                                                   stack) ||
        !mapear<codigo::presenca_invalida>(nota.indicador_presenca(), indPres, ide.indPres, stack)) {
        return false;
    }
    if (nota.has_indicador_intermediador() &&
        !mapear<codigo::intermediador_invalido>(nota.indicador_intermediador(), indIntermed, ide.indIntermed,
                                                stack)) {
        return false;
    }
    if (nota.has_data_hora_contingencia()) {
        ide.dhCont = datetime_de(nota.data_hora_contingencia());
    }
    ide.xJust = texto(nota.has_justificativa_contingencia(), nota.justificativa_contingencia());
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

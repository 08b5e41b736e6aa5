#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t CRT[] = {1, 2, 3};

bool montar_enderEmit(fiscal::emitente const& emitente, grupo::enderEmit& ender, core::result::stack& stack)
{
    fiscal::endereco const endereco = emitente.get_endereco();
    montar_logradouro(endereco, ender);
    auto const cep = endereco.get_cep();
    if (!cep) {
        return recusar<codigo::cep_emitente_invalido>(stack, "null");
    }
    ender.CEP = *cep;
    ender.cPais = endereco.get_ibge_pais();
    ender.xPais = endereco.get_pais();
    auto const fone = emitente.get_telefone();
    return !fone || ler_numero<codigo::telefone_emitente_invalido>(*fone, ender.fone.emplace(), stack);
}

}  // namespace

bool montar_emit(fiscal::emitente const& emitente, grupo::emit& emit, core::result::stack& stack)
{
    auto const cnpj = emitente.get_cnpj();
    if (!cnpj) {
        return recusar<codigo::sem_documento_emitente>(stack);
    }
    if (!ler_documento_cnpj(*cnpj, emit.documento, stack)) {
        return recusar<codigo::cnpj_emitente_invalido>(stack, *cnpj);
    }
    emit.xNome = emitente.get_razao_social();
    emit.xFant = emitente.get_nome_fantasia();
    if (!montar_enderEmit(emitente, emit.enderEmit, stack)) {
        return false;
    }
    emit.IE = emitente.get_ie();
    emit.IEST = emitente.get_iest();
    emit.IM = emitente.get_inscricao_municipal();
    emit.CNAE = emitente.get_cnae();
    return mapear<codigo::regime_tributario_invalido>(emitente.get_regime_fiscal(), CRT, emit.CRT, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

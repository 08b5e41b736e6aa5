// The parties: the issuer, the recipient and the places of pick-up and
// delivery.

#include <velk/erp/tarn/nfe/protobuf/detail/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

constexpr std::uint16_t CRT[] = {1, 2, 3};
constexpr std::uint16_t indIEDest[] = {1, 2, 9};

// The tags of an address of the issuer or the recipient; the CEP and the
// telephone are the caller's, since each group reads them its own way.
template <class Ender>
void montar_endereco(mensagem::Endereco const& endereco, Ender& ender)
{
    ender.xLgr = endereco.logadouro();
    ender.nro = endereco.numero();
    ender.xCpl = texto(endereco.has_complemento(), endereco.complemento());
    ender.xBairro = endereco.bairro();
    ender.cMun = endereco.ibge_municipio();
    ender.xMun = endereco.nome_municipio();
    ender.UF = endereco.uf();
    if (endereco.has_ibge_pais()) {
        ender.cPais = limitado<std::uint16_t>(endereco.ibge_pais().value());
    }
    ender.xPais = texto(endereco.has_pais(), endereco.pais());
}

// The optional texts of a place are empty when absent where the tag is required.
std::string ou_vazio(bool presente, google::protobuf::StringValue const& valor)
{
    return presente ? valor.value() : std::string();
}

// A place of pick-up or delivery: numbers are written when non-zero, texts
// when present. The message holds no foreigner's document.
template <class Local, class Registro>
void montar_local(Local const& local, Registro& registro)
{
    if (local.cnpj() != 0) {
        registro.documento = grupo::CNPJ{local.cnpj()};
    } else {
        registro.documento = grupo::CPF{local.cpf()};
    }
    registro.xNome = texto(local.has_nome_expedidor(), local.nome_expedidor());
    registro.xLgr = ou_vazio(local.has_logradouro(), local.logradouro());
    registro.nro = ou_vazio(local.has_numero(), local.numero());
    registro.xCpl = texto(local.has_complemento(), local.complemento());
    registro.xBairro = ou_vazio(local.has_bairro(), local.bairro());
    registro.cMun = local.codigo_municipio();
    registro.xMun = ou_vazio(local.has_nome_municinio(), local.nome_municinio());
    registro.UF = ou_vazio(local.has_sigla_uf(), local.sigla_uf());
    if (local.cep() != 0) {
        registro.CEP = limitado<std::uint32_t>(local.cep());
    }
    if (local.codigo_pais() != 0) {
        registro.cPais = limitado<std::uint16_t>(local.codigo_pais());
    }
    registro.xPais = texto(local.has_nome_pais(), local.nome_pais());
    if (local.telefone() != 0) {
        registro.fone = local.telefone();
    }
    registro.email = texto(local.has_email(), local.email());
    if (local.inscricao_estadual() != 0) {
        registro.IE = local.inscricao_estadual();
    }
}

bool montar_documento_dest(mensagem::Destinatario const& destinatario, grupo::cpf_cnpj_ou_estrangeiro& documento,
                           core::result::stack& stack)
{
    std::uint64_t numero = 0;
    if (destinatario.has_cnpj()) {
        if (!documento_de_texto(destinatario.cnpj().value(), numero, stack)) {
            return recusar<codigo::cnpj_destinatario_invalido>(stack, destinatario.cnpj().value());
        }
        documento = grupo::CNPJ{numero};
        return true;
    }
    if (destinatario.has_cpf()) {
        // The refusal of a CPF names the CNPJ's text, which is empty here.
        if (!documento_de_texto(destinatario.cpf().value(), numero, stack)) {
            return recusar<codigo::cpf_destinatario_invalido>(stack, destinatario.cnpj().value());
        }
        documento = grupo::CPF{numero};
        return true;
    }
    if (destinatario.has_indicador_de_estrangeiro()) {
        documento = grupo::idEstrangeiro{destinatario.indicador_de_estrangeiro().value()};
        return true;
    }
    return recusar<codigo::sem_documento_destinatario>(stack);
}

}  // namespace

// The CNPJ of the issuer is read even when absent, as 0. One that is no number
// is refused with code 59, whose words speak of the CEP: callers of this road
// know that failure by its number. A telephone that is no number is refused
// as well.
bool montar_emit(mensagem::Emitente const& emitente, grupo::emit& emit, core::result::stack& stack)
{
    std::uint64_t cnpj = 0;
    if (!documento_de_texto(emitente.cnpj().value(), cnpj, stack)) {
        return recusar<codigo::cep_emitente_invalido>(stack, emitente.cnpj().value());
    }
    emit.documento = grupo::CNPJ{cnpj};
    emit.xNome = emitente.razao_social();
    emit.xFant = texto(emitente.has_nome_fantasia(), emitente.nome_fantasia());
    montar_endereco(emitente.endereco(), emit.enderEmit);
    emit.enderEmit.CEP = emitente.endereco().cep().value();
    if (emitente.has_telefone() &&
        !documento_de_texto(emitente.telefone().value(), emit.enderEmit.fone.emplace(), stack)) {
        return recusar<codigo::telefone_emitente_invalido>(stack, emitente.telefone().value());
    }
    emit.IE = emitente.inscricao_estadual();
    emit.IEST = texto(emitente.has_inscricao_estadual_st(), emitente.inscricao_estadual_st());
    emit.IM = texto(emitente.has_inscricao_municipal(), emitente.inscricao_municipal());
    if (emitente.has_cnae()) {
        emit.CNAE = emitente.cnae().value();
    }
    return mapear<codigo::regime_tributario_invalido>(emitente.regime_fiscal(), CRT, emit.CRT, stack);
}

// A telephone of the recipient that is no number is refused with the code of
// the recipient's telephone.
bool montar_dest(mensagem::Destinatario const& destinatario, grupo::dest& dest, core::result::stack& stack)
{
    if (!montar_documento_dest(destinatario, dest.documento, stack)) {
        return false;
    }
    dest.xNome = texto(destinatario.has_razao_social(), destinatario.razao_social());
    if (destinatario.has_endereco()) {
        grupo::enderDest& ender = dest.enderDest.emplace();
        montar_endereco(destinatario.endereco(), ender);
        if (destinatario.endereco().has_cep()) {
            ender.CEP = destinatario.endereco().cep().value();
        }
        if (destinatario.has_telefone() &&
            !numero_longo_de_texto(destinatario.telefone().value(), ender.fone.emplace())) {
            return recusar<codigo::telefone_destinatario_invalido>(stack, destinatario.telefone().value());
        }
    }
    if (!mapear<codigo::indicador_ie_invalido>(destinatario.indicador_ie(), indIEDest, dest.indIEDest, stack)) {
        return false;
    }
    dest.IE = texto(destinatario.has_inscricao_estadual(), destinatario.inscricao_estadual());
    dest.email = texto(destinatario.has_email(), destinatario.email());
    return true;
}

void montar_retirada(mensagem::IdentificacaoLocalRetirada const& local, grupo::retirada& retirada)
{
    montar_local(local, retirada);
}

void montar_entrega(mensagem::IdentificacaoLocalEntrega const& local, grupo::entrega& entrega)
{
    montar_local(local, entrega);
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail

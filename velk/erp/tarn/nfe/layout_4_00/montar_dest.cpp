#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

constexpr std::uint16_t indIEDest[] = {1, 2, 9};

// The CPF goes first: a recipient with both is written with the CPF.
bool montar_documento(fiscal::destinatario const& destinatario, grupo::cpf_cnpj_ou_estrangeiro& documento,
                      core::result::stack& stack)
{
    if (auto const cpf = destinatario.get_cpf()) {
        return ler_documento_cpf(*cpf, documento, stack) || recusar<codigo::cpf_destinatario_invalido>(stack, *cpf);
    }
    if (auto const cnpj = destinatario.get_cnpj()) {
        return ler_documento_cnpj(*cnpj, documento, stack) || recusar<codigo::cnpj_destinatario_invalido>(stack, *cnpj);
    }
    if (auto const estrangeiro = destinatario.get_indicador_estrangeiro()) {
        documento = grupo::idEstrangeiro{*estrangeiro};
        return true;
    }
    return recusar<codigo::sem_documento_destinatario>(stack);
}

// The phone belongs to the address group: it is checked in any case, and
// written only with an address.
bool montar_enderDest(fiscal::destinatario const& destinatario, core::optional<grupo::enderDest>& ender,
                      core::result::stack& stack)
{
    if (auto const endereco = destinatario.get_endereco()) {
        grupo::enderDest& registro = ender.emplace();
        montar_logradouro(*endereco, registro);
        registro.CEP = endereco->get_cep();
        registro.cPais = endereco->get_ibge_pais();
        registro.xPais = endereco->get_pais();
    }
    auto const fone = destinatario.get_telefone();
    if (!fone) {
        return true;
    }
    std::uint64_t numero = 0;
    if (!ler_numero<codigo::telefone_destinatario_invalido>(*fone, numero, stack)) {
        return false;
    }
    if (ender) {
        ender->fone = numero;
    }
    return true;
}

}  // namespace

bool montar_dest(fiscal::destinatario const& destinatario, grupo::dest& dest, core::result::stack& stack)
{
    if (!montar_documento(destinatario, dest.documento, stack)) {
        return false;
    }
    dest.xNome = destinatario.get_razao_social();
    if (!montar_enderDest(destinatario, dest.enderDest, stack) ||
        !mapear<codigo::indicador_ie_invalido>(destinatario.get_indicador_de_ie(), indIEDest, dest.indIEDest, stack)) {
        return false;
    }
    dest.IE = destinatario.get_ie();
    dest.ISUF = destinatario.get_inscricao_suframa();
    dest.email = destinatario.get_email();
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

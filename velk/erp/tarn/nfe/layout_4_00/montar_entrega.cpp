#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// The CPF goes first, as for the recipient.
bool montar_documento(fiscal::local_entrega const& local, grupo::cpf_cnpj_ou_estrangeiro& documento,
                      core::result::stack& stack)
{
    if (auto const cpf = local.get_cpf()) {
        return ler_documento_cpf(*cpf, documento, stack) || recusar<codigo::cpf_entrega_invalido>(stack, *cpf);
    }
    if (auto const cnpj = local.get_cnpj()) {
        return ler_documento_cnpj(*cnpj, documento, stack) || recusar<codigo::cnpj_entrega_invalido>(stack, *cnpj);
    }
    return recusar<codigo::sem_documento_entrega>(stack);
}

}  // namespace

bool montar_entrega(fiscal::local_entrega const& local, grupo::entrega& entrega, core::result::stack& stack)
{
    if (!montar_documento(local, entrega.documento, stack)) {
        return false;
    }
    montar_logradouro(local.get_endereco(), entrega);
    return true;
}

// A document that can't be read stops the note with the reader's items alone:
// no refusal of its own exists for it.
bool montar_autXML(fiscal::autorizacao_acesso_xml const& autorizacao, grupo::cpf_cnpj_ou_estrangeiro& autXML,
                   core::result::stack& stack)
{
    if (auto const cnpj = autorizacao.get_cnpj()) {
        return ler_documento_cnpj(*cnpj, autXML, stack);
    }
    if (auto const cpf = autorizacao.get_cpf()) {
        return ler_documento_cpf(*cpf, autXML, stack);
    }
    return recusar<codigo::documento_acesso_xml_invalido>(stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

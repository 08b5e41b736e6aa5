#include <velk/erp/tarn/nfe/layout_4_00/escrita.hpp>

#include <velk/erp/tarn/nfe/layout_4_00/escrever_valor.hpp>


namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

bool escrever_alternativa(xml::element& pai, grupo::CNPJ const& documento, core::result::stack& stack)
{
    return cnpj(pai, documento.valor, stack);
}

bool escrever_alternativa(xml::element& pai, grupo::CPF const& documento, core::result::stack& stack)
{
    return cpf(pai, documento.valor, stack);
}

bool escrever_alternativa(xml::element& pai, grupo::idEstrangeiro const& documento, core::result::stack& stack)
{
    return txt(pai, "idEstrangeiro", documento.valor, stack);
}

template <class Documento>
bool escrever_um_documento(xml::element& pai, Documento const& documento, core::result::stack& stack)
{
    return core::visit([&](auto const& alternativa) { return escrever_alternativa(pai, alternativa, stack); },
                       documento);
}

template <class Cep>
bool escrever_endereco(xml::element& pai, std::string_view tag, grupo::endereco<Cep> const& endereco,
                       core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        txt(e, "xLgr", endereco.xLgr, stack) && txt(e, "nro", endereco.nro, stack) &&
        txt(e, "xCpl", endereco.xCpl, stack) && txt(e, "xBairro", endereco.xBairro, stack) &&
        u(e, "cMun", endereco.cMun, stack, 7) && txt(e, "xMun", endereco.xMun, stack) &&
        txt(e, "UF", endereco.UF, stack) && u(e, "CEP", endereco.CEP, stack, 8) &&
        u(e, "cPais", endereco.cPais, stack, 4) && txt(e, "xPais", endereco.xPais, stack) &&
        u(e, "fone", endereco.fone, stack, 0);
    return fechar(pai, escrito);
}

template <class Documento>
bool escrever_local(xml::element& pai, std::string_view tag, grupo::local<Documento> const& local,
                    core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        escrever_documento(e, local.documento, stack) && txt(e, "xNome", local.xNome, stack) &&
        txt(e, "xLgr", local.xLgr, stack) && txt(e, "nro", local.nro, stack) && txt(e, "xCpl", local.xCpl, stack) &&
        txt(e, "xBairro", local.xBairro, stack) && u(e, "cMun", local.cMun, stack, 7) &&
        txt(e, "xMun", local.xMun, stack) && txt(e, "UF", local.UF, stack) && u(e, "CEP", local.CEP, stack, 8) &&
        u(e, "cPais", local.cPais, stack, 4) && txt(e, "xPais", local.xPais, stack) &&
        u(e, "fone", local.fone, stack, 0) && txt(e, "email", local.email, stack) && u(e, "IE", local.IE, stack, 0);
    return fechar(pai, escrito);
}

}  // namespace

bool escrever_documento(xml::element& pai, grupo::cnpj_ou_cpf const& documento, core::result::stack& stack)
{
    return escrever_um_documento(pai, documento, stack);
}

bool escrever_documento(xml::element& pai, grupo::cpf_cnpj_ou_estrangeiro const& documento,
                        core::result::stack& stack)
{
    return escrever_um_documento(pai, documento, stack);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::emit const& emit, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        escrever_documento(e, emit.documento, stack) && txt(e, "xNome", emit.xNome, stack) &&
        txt(e, "xFant", emit.xFant, stack) && escrever(e, "enderEmit", emit.enderEmit, stack) &&
        txt(e, "IE", emit.IE, stack) && txt(e, "IEST", emit.IEST, stack) && txt(e, "IM", emit.IM, stack) &&
        u(e, "CNAE", emit.CNAE, stack, 7) && u(e, "CRT", emit.CRT, stack, 0);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::enderEmit const& endereco,
              core::result::stack& stack)
{
    return escrever_endereco(pai, tag, endereco, stack);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::enderDest const& endereco,
              core::result::stack& stack)
{
    return escrever_endereco(pai, tag, endereco, stack);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::dest const& dest, core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito =
        escrever_documento(e, dest.documento, stack) && txt(e, "xNome", dest.xNome, stack) &&
        escrever(e, "enderDest", dest.enderDest, stack) && u(e, "indIEDest", dest.indIEDest, stack, 0) &&
        txt(e, "IE", dest.IE, stack) && txt(e, "ISUF", dest.ISUF, stack) && txt(e, "IM", dest.IM, stack) &&
        txt(e, "email", dest.email, stack);
    return fechar(pai, escrito);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::retirada const& retirada, core::result::stack& stack)
{
    return escrever_local(pai, tag, retirada, stack);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::entrega const& entrega, core::result::stack& stack)
{
    return escrever_local(pai, tag, entrega, stack);
}

bool escrever(xml::element& pai, std::string_view tag, grupo::cpf_cnpj_ou_estrangeiro const& documento,
              core::result::stack& stack)
{
    xml::element& e = pai.append_element(tag);
    bool const escrito = escrever_documento(e, documento, stack);
    return fechar(pai, escrito);
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

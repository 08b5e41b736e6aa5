#include <velk/erp/tarn/nfe/sefaz_data/requisicao/inutilizacao.hpp>

#include <velk/erp/tarn/nfe/detail/assinatura.hpp>
#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>

#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "inutilizacao";

// What the schema of inutNFe admits: a year of 2 digits, a CNPJ of 14, a
// series of 3 at most, document numbers from 1 to 9 digits, a justification
// of 15 to 255 characters.
constexpr unsigned ano_digits = 2;
constexpr unsigned cnpj_digits = 14;
constexpr unsigned serie_max_digits = 3;
constexpr unsigned numero_max_digits = 9;
constexpr unsigned justificativa_min_chars = 15;
constexpr unsigned justificativa_max_chars = 255;

// A document number of the tag: none is 0.
bool escrever_numero_documento(std::string& destino, unsigned int numero, char const* field_name,
                               core::result::stack& stack)
{
    return numero == 0 ? detail::recusar(request_name, field_name, stack)
                       : detail::escrever_numero(destino, numero, 1, numero_max_digits, request_name, field_name,
                                                 stack);
}

}  // namespace

struct inutilizacao::dados {
    versao versao_layout = versao::versao_3_10;
    ambiente tipo_ambiente = ambiente::homologacao;
    std::string justificativa;
    estado uf = estado::ac;
    modelo modelo_documento = modelo::nfe;
    unsigned int ano = 0;
    unsigned int serie = 0;
    unsigned int numero_inicial = 0;
    unsigned int numero_final = 0;
    unsigned long long cnpj = 0;
    xml::element xml;

    // The identifier of infInut, "ID" and the pieces in their widths. A piece
    // without text is code 9 naming its field.
    bool escrever_identificador(std::string& id, core::result::stack& stack) const
    {
        id = "ID";
        return detail::escrever_codigo(id, get_codigo_ibge(uf), 2, request_name, "estado", stack) &&
               detail::escrever_numero(id, ano, 2, detail::sem_limite, request_name, "ano", stack) &&
               detail::escrever_numero(id, cnpj, 14, detail::sem_limite, request_name, "cnpj", stack) &&
               detail::escrever_codigo(id, get_codigo_modelo(modelo_documento), 2, request_name, "modelo", stack) &&
               detail::escrever_numero(id, serie, 3, detail::sem_limite, request_name, "serie", stack) &&
               detail::escrever_numero(id, numero_inicial, 9, detail::sem_limite, request_name, "numero_inicial",
                                       stack) &&
               detail::escrever_numero(id, numero_final, 9, detail::sem_limite, request_name, "numero_final", stack);
    }
};

inutilizacao::inutilizacao() = default;
inutilizacao::inutilizacao(inutilizacao const& other) = default;
inutilizacao::inutilizacao(inutilizacao&& other) noexcept = default;
inutilizacao& inutilizacao::operator=(inutilizacao const& other) = default;
inutilizacao& inutilizacao::operator=(inutilizacao&& other) noexcept = default;
inutilizacao::~inutilizacao() = default;

inutilizacao inutilizacao::from_data(versao versao_layout, ambiente tipo_ambiente, std::string const& justificativa,
                                     estado uf, modelo modelo_documento, unsigned int ano, unsigned int serie,
                                     unsigned int numero_inicial, unsigned int numero_final, unsigned long long cnpj,
                                     core::result::stack& stack)
{
    dados campos{versao_layout, tipo_ambiente, justificativa, uf,           modelo_documento,
                 ano,           serie,         numero_inicial, numero_final, cnpj,
                 xml::element("inutNFe")};
    xml::element& root = campos.xml;
    std::string versao_text;
    if (!root.append_namespace(xml::namespace_id("", namespace_nfe), stack) ||
        !detail::escrever_campo(versao_text, versao_layout, request_name, "versao", stack) ||
        !root.append_attribute(xml::attribute("versao", versao_text), stack)) {
        return {};
    }
    std::string ambiente_text;
    std::string uf_text;
    std::string ano_text;
    std::string cnpj_text;
    std::string modelo_text;
    std::string serie_text;
    std::string inicial_text;
    std::string final_text;
    std::string justificativa_text;
    if (!detail::escrever_ambiente(ambiente_text, tipo_ambiente, request_name, stack) ||
        !detail::escrever_codigo(uf_text, get_codigo_ibge(uf), 2, request_name, "estado", stack) ||
        !detail::escrever_numero(ano_text, ano, ano_digits, ano_digits, request_name, "ano", stack) ||
        !detail::escrever_numero(cnpj_text, cnpj, cnpj_digits, cnpj_digits, request_name, "cnpj", stack) ||
        !detail::escrever_codigo(modelo_text, get_codigo_modelo(modelo_documento), 2, request_name, "modelo",
                                 stack) ||
        !detail::escrever_numero(serie_text, serie, 1, serie_max_digits, request_name, "serie", stack) ||
        !escrever_numero_documento(inicial_text, numero_inicial, "numero_inicial", stack) ||
        !escrever_numero_documento(final_text, numero_final, "numero_final", stack) ||
        !detail::escrever_texto(justificativa_text, justificativa, justificativa_min_chars, justificativa_max_chars,
                                request_name, "justificativa", stack)) {
        return {};
    }
    std::string id;
    xml::element inf_inut("infInut");
    if (!campos.escrever_identificador(id, stack) || !inf_inut.append_attribute(xml::attribute("Id", id), stack)) {
        return {};
    }
    inf_inut.append_node(xml::element("tpAmb", xml::text(ambiente_text)));
    inf_inut.append_node(xml::element("xServ", xml::text("INUTILIZAR")));
    inf_inut.append_node(xml::element("cUF", xml::text(uf_text)));
    inf_inut.append_node(xml::element("ano", xml::text(ano_text)));
    inf_inut.append_node(xml::element("CNPJ", xml::text(cnpj_text)));
    inf_inut.append_node(xml::element("mod", xml::text(modelo_text)));
    inf_inut.append_node(xml::element("serie", xml::text(serie_text)));
    inf_inut.append_node(xml::element("nNFIni", xml::text(inicial_text)));
    inf_inut.append_node(xml::element("nNFFin", xml::text(final_text)));
    inf_inut.append_node(xml::element("xJust", xml::text(justificativa_text)));
    root.append_node(std::move(inf_inut));

    inutilizacao result;
    *result.dados_ = std::move(campos);
    return result;
}

inutilizacao inutilizacao::from_xml(xml::element const& elemento, core::result::stack& stack)
{
    inutilizacao result;
    if (elemento.get_name() != "inutNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "inutNFe");
        return result;
    }
    dados& campos = *result.dados_;
    if (!read_required_attribute(elemento, "versao", "inutNFe/versao", campos.versao_layout, stack)) {
        return result;
    }
    auto const found = find_elements_by_path(
        elemento, {"infInut/tpAmb", "infInut/xJust", "infInut/cUF", "infInut/mod", "infInut/ano", "infInut/serie",
                   "infInut/nNFIni", "infInut/nNFFin", "infInut/CNPJ"});
    auto const read = [&found, &stack](char const* path, auto& value) {
        return read_required(lookup(found, path), std::string("inutNFe/") + path, value, stack);
    };
    if (read("infInut/tpAmb", campos.tipo_ambiente) && read("infInut/xJust", campos.justificativa) &&
        read("infInut/cUF", campos.uf) && read("infInut/mod", campos.modelo_documento) &&
        read("infInut/ano", campos.ano) && read("infInut/serie", campos.serie) &&
        read("infInut/nNFIni", campos.numero_inicial) && read("infInut/nNFFin", campos.numero_final) &&
        read("infInut/CNPJ", campos.cnpj)) {
        campos.xml = elemento;
    }
    return result;
}

void inutilizacao::assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    dados const& campos = *dados_;
    auto const identificador = [&campos](std::string& id, core::result::stack& pieces) {
        return campos.escrever_identificador(id, pieces);
    };
    nfe::detail::assinar_raiz(dados_->xml, identificador, certificado, stack);
}

versao inutilizacao::get_versao() const { return dados_->versao_layout; }
ambiente inutilizacao::get_ambiente() const { return dados_->tipo_ambiente; }
std::string inutilizacao::get_justificativa() const { return dados_->justificativa; }
estado inutilizacao::get_estado() const { return dados_->uf; }
modelo inutilizacao::get_modelo() const { return dados_->modelo_documento; }
unsigned int inutilizacao::get_ano() const { return dados_->ano; }
unsigned int inutilizacao::get_serie() const { return dados_->serie; }
unsigned int inutilizacao::get_numero_inicial() const { return dados_->numero_inicial; }
unsigned int inutilizacao::get_numero_final() const { return dados_->numero_final; }
unsigned long long inutilizacao::get_cnpj() const { return dados_->cnpj; }
xml::element inutilizacao::get_xml() const { return dados_->xml; }

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao

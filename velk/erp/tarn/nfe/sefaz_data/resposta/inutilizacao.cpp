#include <velk/erp/tarn/nfe/sefaz_data/resposta/inutilizacao.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct inutilizacao::dados {
    unsigned int codigo_status = 0;
    std::string motivo;
    versao versao_layout = versao::versao_3_10;
    ambiente tipo_ambiente = ambiente::homologacao;
    estado uf = estado::ac;
    std::string versao_aplicativo;
    core::optional<unsigned int> ano;
    core::optional<unsigned long long> cnpj;
    core::optional<modelo> modelo_documento;
    core::optional<unsigned int> serie;
    core::optional<unsigned int> numero_inicial;
    core::optional<unsigned int> numero_final;
    core::optional<core::datetime> data_recebimento;
    core::optional<unsigned long long> protocolo;
    xml::element xml;
};

inutilizacao::inutilizacao() = default;
inutilizacao::inutilizacao(inutilizacao const& other) = default;
inutilizacao::inutilizacao(inutilizacao&& other) noexcept = default;
inutilizacao& inutilizacao::operator=(inutilizacao const& other) = default;
inutilizacao& inutilizacao::operator=(inutilizacao&& other) noexcept = default;
inutilizacao::~inutilizacao() = default;

versao inutilizacao::get_versao() const { return dados_->versao_layout; }
ambiente inutilizacao::get_ambiente() const { return dados_->tipo_ambiente; }
unsigned int inutilizacao::get_codigo_status() const { return dados_->codigo_status; }
std::string inutilizacao::get_motivo() const { return dados_->motivo; }
estado inutilizacao::get_estado() const { return dados_->uf; }
std::string inutilizacao::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
core::optional<unsigned int> inutilizacao::get_ano() const { return dados_->ano; }
core::optional<unsigned long long> inutilizacao::get_cnpj() const { return dados_->cnpj; }
core::optional<modelo> inutilizacao::get_modelo() const { return dados_->modelo_documento; }
core::optional<unsigned int> inutilizacao::get_serie() const { return dados_->serie; }
core::optional<unsigned int> inutilizacao::get_numero_inicial() const { return dados_->numero_inicial; }
core::optional<unsigned int> inutilizacao::get_numero_final() const { return dados_->numero_final; }
core::optional<core::datetime> inutilizacao::get_data_recebimento() const { return dados_->data_recebimento; }
core::optional<unsigned long long> inutilizacao::get_protocolo() const { return dados_->protocolo; }
xml::element inutilizacao::get_xml() const { return dados_->xml; }

inutilizacao inutilizacao::from_xml(xml::element const& root, core::result::stack& stack)
{
    inutilizacao resposta;
    dados& campos = *resposta.dados_;
    campos.xml = root;
    if (root.get_name() != "retInutNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "retInutNFe");
        return resposta;
    }
    if (!read_required_attribute(root, "versao", "retInutNFe/versao", campos.versao_layout, stack)) {
        return resposta;
    }
    auto const found = find_elements_by_path(
        root, {"infInut/cStat", "infInut/xMotivo", "infInut/dhRecbto", "infInut/nProt", "infInut/verAplic",
               "infInut/tpAmb", "infInut/cUF", "infInut/ano", "infInut/CNPJ", "infInut/mod", "infInut/serie",
               "infInut/nNFIni", "infInut/nNFFin"});
    auto const required = [&found, &stack](char const* path, auto& value) {
        return read_required(lookup(found, path), std::string("retInutNFe/") + path, value, stack);
    };
    // The optional tags are named by their path alone, without the root.
    auto const optional = [&found, &stack](char const* path, auto& value) {
        return read_optional(lookup(found, path), path, value, stack);
    };
    xml::element const* const ambiente_tag = lookup(found, "infInut/tpAmb");
    if (!required("infInut/cStat", campos.codigo_status) || !required("infInut/xMotivo", campos.motivo)) {
        return resposta;
    }
    // A tpAmb that does not read has always been reported with this spelling.
    if (ambiente_tag == nullptr ? !required("infInut/tpAmb", campos.tipo_ambiente)
                                : !read_required(ambiente_tag, "retInutNFe/infInut/tpAMb", campos.tipo_ambiente,
                                                 stack)) {
        return resposta;
    }
    if (!required("infInut/cUF", campos.uf)) {
        return resposta;
    }
    if (xml::element const* const aplicativo = lookup(found, "infInut/verAplic")) {
        campos.versao_aplicativo = aplicativo->get_contents();
    }
    optional("infInut/ano", campos.ano) && optional("infInut/CNPJ", campos.cnpj) &&
        optional("infInut/mod", campos.modelo_documento) && optional("infInut/serie", campos.serie) &&
        optional("infInut/nNFIni", campos.numero_inicial) && optional("infInut/nNFFin", campos.numero_final) &&
        optional("infInut/dhRecbto", campos.data_recebimento) && optional("infInut/nProt", campos.protocolo);
    return resposta;
}

inutilizacao inutilizacao::from_xml(xml::document const& document, core::result::stack& stack)
{
    return read_root<inutilizacao>(document, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta

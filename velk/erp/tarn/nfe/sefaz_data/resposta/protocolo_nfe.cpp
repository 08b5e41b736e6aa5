#include <velk/erp/tarn/nfe/sefaz_data/resposta/protocolo_nfe.hpp>

#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta {

struct protocolo_nfe::dados {
    unsigned int codigo_status = 0;
    std::string motivo;
    std::string versao_aplicativo;
    core::datetime data_recebimento;
    chave_acesso chave;
    core::optional<unsigned long long> numero_protocolo;
    xml::element xml;
    core::optional<mensagem_sefaz> mensagem;
};

namespace {

// cMsg and xMsg: both absent is no message, xMsg alone a message without
// code, a code without text a failure.
bool read_message(xml::element const* codigo_tag, xml::element const* texto_tag,
                  core::optional<mensagem_sefaz>& mensagem, core::result::stack& stack)
{
    core::optional<unsigned int> codigo;
    if (!read_optional(codigo_tag, "protNFe/infProt/cMsg", codigo, stack)) {
        return false;
    }
    if (texto_tag == nullptr) {
        if (codigo) {
            core::result::fresh<result_category::elemento_ausente>(stack, "protNFe/infProt/xMsg");
            return false;
        }
        return true;
    }
    mensagem_sefaz read;
    read.set_codigo(codigo);
    read.set_mensagem(texto_tag->get_contents());
    mensagem = std::move(read);
    return true;
}

}  // namespace

protocolo_nfe::protocolo_nfe() = default;
protocolo_nfe::protocolo_nfe(protocolo_nfe const& other) = default;
protocolo_nfe::protocolo_nfe(protocolo_nfe&& other) noexcept = default;
protocolo_nfe& protocolo_nfe::operator=(protocolo_nfe const& other) = default;
protocolo_nfe& protocolo_nfe::operator=(protocolo_nfe&& other) noexcept = default;
protocolo_nfe::~protocolo_nfe() = default;

unsigned int protocolo_nfe::get_codigo_status() const { return dados_->codigo_status; }
std::string protocolo_nfe::get_motivo() const { return dados_->motivo; }
std::string protocolo_nfe::get_versao_aplicativo() const { return dados_->versao_aplicativo; }
core::datetime protocolo_nfe::get_data_recebimento() const { return dados_->data_recebimento; }
chave_acesso protocolo_nfe::get_chave_acesso() const { return dados_->chave; }
core::optional<unsigned long long> protocolo_nfe::get_numero_protocolo() const { return dados_->numero_protocolo; }
core::optional<mensagem_sefaz> protocolo_nfe::get_mensagem_sefaz() const { return dados_->mensagem; }
xml::element protocolo_nfe::get_xml() const { return dados_->xml; }

protocolo_nfe protocolo_nfe::from_xml(xml::element const& root, core::result::stack& stack)
{
    protocolo_nfe resposta;
    dados& campos = *resposta.dados_;
    campos.xml = root;
    if (root.get_name() != "protNFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "protNFe");
        return resposta;
    }
    xml::attribute const* versao_tag = root.find_attribute("", "versao");
    if (versao_tag == nullptr) {
        core::result::fresh<result_category::atributo_ausente>(stack, "protNFe/versao");
        return resposta;
    }
    // The version is only checked: a protocol of layout 2.00 is kept as its
    // XML and not read.
    versao versao_layout = versao::versao_3_10;
    if (!core::read_value(versao_layout, versao_tag->get_value(), stack) || versao_layout == versao::versao_2_00) {
        return resposta;
    }
    auto const found =
        find_elements_by_path(root, {"infProt/cStat", "infProt/xMotivo", "infProt/verAplic", "infProt/dhRecbto",
                                     "infProt/chNFe", "infProt/nProt", "infProt/cMsg", "infProt/xMsg"});
    auto const required = [&found, &stack](char const* path, auto& value) {
        return read_required(lookup(found, path), std::string("protNFe/") + path, value, stack);
    };
    if (required("infProt/cStat", campos.codigo_status) && required("infProt/xMotivo", campos.motivo) &&
        required("infProt/verAplic", campos.versao_aplicativo) &&
        required("infProt/dhRecbto", campos.data_recebimento) && required("infProt/chNFe", campos.chave) &&
        read_optional(lookup(found, "infProt/nProt"), "protNFe/infProt/nProt", campos.numero_protocolo, stack)) {
        read_message(lookup(found, "infProt/cMsg"), lookup(found, "infProt/xMsg"), campos.mensagem, stack);
    }
    return resposta;
}

protocolo_nfe protocolo_nfe::from_xml(xml::document const& document, core::result::stack& stack)
{
    return read_root<protocolo_nfe>(document, stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::resposta

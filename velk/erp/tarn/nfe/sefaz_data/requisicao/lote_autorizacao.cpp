#include <velk/erp/tarn/nfe/sefaz_data/requisicao/lote_autorizacao.hpp>

#include <velk/erp/tarn/nfe/namespace_nfe.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/xml/node.hpp>

#include <vector>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

constexpr char request_name[] = "lote_autorizacao";

// What the schema of enviNFe admits: an identifier of 15 digits at most, and
// from 1 to 50 documents.
constexpr unsigned id_max_digits = 15;
constexpr std::size_t max_documentos = 50;

}  // namespace

struct lote_autorizacao::dados {
    unsigned long long id = 0;
    versao versao_layout = versao::versao_3_10;
    bool indicador_sincrono = true;
    std::vector<xml::element> documentos;
};

lote_autorizacao::lote_autorizacao() = default;
lote_autorizacao::lote_autorizacao(lote_autorizacao const& other) = default;
lote_autorizacao::lote_autorizacao(lote_autorizacao&& other) noexcept = default;
lote_autorizacao& lote_autorizacao::operator=(lote_autorizacao const& other) = default;
lote_autorizacao& lote_autorizacao::operator=(lote_autorizacao&& other) noexcept = default;
lote_autorizacao::~lote_autorizacao() = default;

unsigned long long lote_autorizacao::get_id() const { return dados_->id; }
void lote_autorizacao::set_id(unsigned long long id) { dados_->id = id; }
versao lote_autorizacao::get_versao() const { return dados_->versao_layout; }
void lote_autorizacao::set_versao(versao versao_layout) { dados_->versao_layout = versao_layout; }
bool lote_autorizacao::get_indicador_sincrono() const { return dados_->indicador_sincrono; }
void lote_autorizacao::set_indicador_sincrono(bool sincrono) { dados_->indicador_sincrono = sincrono; }

void lote_autorizacao::append_documento_fiscal(documento_fiscal const& documento, core::result::stack& stack)
{
    if (documento.get_versao() != dados_->versao_layout) {
        core::result::fresh<result_category::versao_diferente>(stack);
        return;
    }
    dados_->documentos.push_back(documento.get_xml());
}

void lote_autorizacao::append_documento_fiscal(xml::document const& documento, core::result::stack& stack)
{
    documento_fiscal const read = documento_fiscal::from_xml(documento, stack);
    if (!stack.has_failed()) {
        append_documento_fiscal(read, stack);
    }
}

void lote_autorizacao::append_documento_fiscal(fiscal::nota_fiscal const& nota, core::result::stack& stack)
{
    documento_fiscal const generated = documento_fiscal::from_nota_fiscal(nota, dados_->versao_layout, stack);
    if (!stack.has_failed()) {
        append_documento_fiscal(generated, stack);
    }
}

documento_fiscal lote_autorizacao::get_primeiro_documento(core::result::stack& stack) const
{
    if (dados_->documentos.empty()) {
        core::result::fresh<result_category::sem_documento>(stack);
        return {};
    }
    documento_fiscal first = documento_fiscal::from_xml(dados_->documentos.front(), stack);
    if (stack.has_failed()) {
        return {};
    }
    return first;
}

documento_fiscal lote_autorizacao::get_documento_fiscal(chave_acesso const& chave, core::result::stack& stack) const
{
    for (xml::element const& documento : dados_->documentos) {
        if (documento.get_name() != "NFe") {
            continue;
        }
        xml::element const* inf_nfe = find_child_element(documento, "infNFe");
        if (inf_nfe == nullptr) {
            continue;
        }
        xml::attribute const* id = inf_nfe->find_attribute("", "Id");
        if (id == nullptr) {
            core::result::fresh<result_category::atributo_ausente>(stack, "enviNFe/NFe/Id");
            return {};
        }
        std::string wanted = "NFe";
        if (!detail::escrever_campo(wanted, chave, request_name, "chave_acesso", stack)) {
            return {};
        }
        if (id->get_value() == wanted) {
            documento_fiscal found = documento_fiscal::from_xml(documento, stack);
            if (stack.has_failed()) {
                return {};
            }
            return found;
        }
    }
    core::result::fresh<result_category::sem_documento>(stack);
    return {};
}

xml::element lote_autorizacao::get_xml(core::result::stack& stack) const
{
    xml::element root("enviNFe");
    std::string versao_text;
    if (!detail::escrever_campo(versao_text, dados_->versao_layout, request_name, "versao", stack) ||
        !root.append_attribute(xml::attribute("versao", versao_text), stack) ||
        !root.append_namespace(xml::namespace_id("", namespace_nfe), stack)) {
        return root;
    }
    std::string id_text;
    if (!detail::escrever_numero(id_text, dados_->id, 1, id_max_digits, request_name, "id_lote", stack)) {
        return root;
    }
    root.append_node(xml::element("idLote", xml::text(id_text)));
    root.append_node(xml::element("indSinc", xml::text(dados_->indicador_sincrono ? "1" : "0")));
    if (dados_->documentos.empty()) {
        core::result::fresh<result_category::sem_documento>(stack);
        return root;
    }
    if (dados_->documentos.size() > max_documentos) {
        core::result::fresh<result_category::valor_requisicao_invalido>(stack, request_name, "documentos");
        return root;
    }
    for (xml::element const& documento : dados_->documentos) {
        root.append_node(documento);
    }
    return root;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao

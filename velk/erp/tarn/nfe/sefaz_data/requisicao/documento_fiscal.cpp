#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <velk/core/binary_encoder.hpp>
#include <velk/core/fatal.hpp>
#include <velk/cryptography/cryptographic_hash.hpp>
#include <velk/cryptography/xml/canonical_digest.hpp>
#include <velk/erp/tarn/nfe/detail/assinatura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/detail/path_set.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/leitura.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/campo.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/detail/documento_fiscal_dados.hpp>
#include <velk/xml/node.hpp>

#include <array>
#include <string_view>
#include <utility>

namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao {

namespace {

// The paths read below, relative to NFe, by their index in wanted_paths.
// Failures name them with "NFe/" in front.
enum path : std::size_t {
    inf_nfe,
    tp_amb, mod, c_uf, dh_emi, serie, c_nf, n_nf,
    dest_email, dest_cpf, dest_cnpj, dest_id_estrangeiro,
    v_nf, v_icms,
    qr_code, url_chave,
    path_count
};

// One path for every index above, in the same order.
constexpr auto wanted_names = std::to_array<std::string_view>({
    "infNFe",
    "infNFe/ide/tpAmb", "infNFe/ide/mod", "infNFe/ide/cUF", "infNFe/ide/dhEmi",
    "infNFe/ide/serie", "infNFe/ide/cNF", "infNFe/ide/nNF",
    "infNFe/dest/email", "infNFe/dest/CPF", "infNFe/dest/CNPJ", "infNFe/dest/idEstrangeiro",
    "infNFe/total/ICMSTot/vNF", "infNFe/total/ICMSTot/vICMS",
    "infNFeSupl/qrCode", "infNFeSupl/urlChave",
});
static_assert(wanted_names.size() == path_count);

std::vector<std::string> const wanted_paths(wanted_names.begin(), wanted_names.end());

// The paths split once: every document read walks the same ones.
sefaz_data::detail::path_set const wanted(wanted_paths);

// The names failures give, made once.
std::vector<std::string> const failure_names = [] {
    std::vector<std::string> names;
    for (std::string const& value : wanted_paths) {
        names.push_back("NFe/" + value);
    }
    return names;
}();

using found_elements = std::vector<xml::element const*>;

// The destination is identified by the first of these that is present.
path const destination_identifiers[] = {dest_cpf, dest_cnpj, dest_id_estrangeiro};

constexpr std::size_t id_length = 47;  // "NFe" and the 44 digits of the key
constexpr char digest_path[] = "Signature/SignedInfo/Reference/DigestValue";

template <class T>
bool read_required_path(found_elements const& found, path index, T& value, core::result::stack& stack)
{
    return read_required(found[index], failure_names[index], value, stack);
}

template <class T>
bool read_optional_path(found_elements const& found, path index, core::optional<T>& value,
                        core::result::stack& stack)
{
    return read_optional(found[index], failure_names[index], value, stack);
}

// The attributes of infNFe: the key behind the three letters of the Id, and
// the layout version.
bool read_identification(xml::element const& inf_nfe, chave_acesso& chave, versao& versao_layout,
                         core::result::stack& stack)
{
    xml::attribute const* id = inf_nfe.find_attribute("", "Id");
    if (id == nullptr) {
        core::result::fresh<result_category::atributo_ausente>(stack, "NFe/infNFe/Id");
        return false;
    }
    std::string const& id_text = id->get_value();
    if (id_text.size() != id_length) {
        core::result::fresh<result_category::valor_atributo_invalido>(stack, "NFe/infNFe/Id", id_text);
        return false;
    }
    std::string_view const key_text = std::string_view(id_text).substr(3);
    if (!core::read_value(chave, key_text, stack)) {
        // The name is written "NFE" here, as it has always been reported.
        core::result::chain<result_category::valor_atributo_invalido>(stack, "NFE/infNFe/Id", std::string(key_text));
        return false;
    }
    xml::attribute const* version = inf_nfe.find_attribute("", "versao");
    if (version == nullptr) {
        core::result::fresh<result_category::atributo_ausente>(stack, "NFe/infNFe/versao");
        return false;
    }
    if (!core::read_value(versao_layout, version->get_value(), stack)) {
        core::result::chain<result_category::valor_atributo_invalido>(stack, "NFe/infNFe/versao", version->get_value());
        return false;
    }
    return true;
}

// Fields is documento_fiscal::dados::campos_lidos, a private type.
template <class Fields>
bool read_fields(found_elements const& found, Fields& campos, core::result::stack& stack)
{
    if (!read_required_path(found, tp_amb, campos.tipo_ambiente, stack) ||
        !read_required_path(found, mod, campos.modelo_documento, stack) ||
        !read_required_path(found, c_uf, campos.uf, stack) ||
        !read_optional_path(found, qr_code, campos.qrcode_value, stack) ||
        !read_optional_path(found, url_chave, campos.url_chave, stack) ||
        !read_required_path(found, dh_emi, campos.data_hora_emissao, stack) ||
        !read_required_path(found, serie, campos.serie, stack) ||
        !read_required_path(found, c_nf, campos.codigo_numerico, stack) ||
        !read_required_path(found, n_nf, campos.numero_nota_fiscal, stack) ||
        !read_optional_path(found, dest_email, campos.email_destinatario, stack)) {
        return false;
    }
    for (path const index : destination_identifiers) {
        if (xml::element const* identifier = found[index]) {
            campos.identificador_destinatario = identifier->get_contents();
            break;
        }
    }
    return read_required_path(found, v_nf, campos.valor_total, stack) &&
           read_required_path(found, v_icms, campos.valor_icms, stack);
}

// The child of `copy` at the position `child` has among the children of
// `original`, `copy` being a copy of `original`.
xml::element* same_child(xml::element& copy, xml::element const& original, xml::element const* child)
{
    auto copied = copy.get_node_range().begin();
    for (xml::node const& candidate : original.get_node_range()) {
        if (candidate.as_element() == child) {
            return copied->as_element();
        }
        ++copied;
    }
    return nullptr;
}

// The digest the signature will hold for infNFe: its canonical form in the
// context of NFe, hashed straight from the tree, as the signer does it.
std::string digest_of(xml::element const& nfe, xml::element const& inf_nfe)
{
    core::result::stack stack;
    core::byte_array const digest = cryptography::xml::canonical_digest(
        nfe, inf_nfe, cryptography::cryptographic_hash::algorithm::sha1, stack);
    if (stack.has_failed()) {
        return {};
    }
    return core::binary_encoder::encode(core::binary_encoding::base64, digest);
}

// The layout admits 990 items (det) in a document: one with more is refused
// by code 2 with their number, before anything else of it is read.
constexpr std::size_t most_items = 990;

bool within_items_limit(xml::element const& inf_nfe, core::result::stack& stack)
{
    std::size_t items = 0;
    for (xml::node const& child : inf_nfe.get_node_range()) {
        xml::element const* element = child.as_element();
        if (element != nullptr && element->get_name() == "det" && ++items > most_items) {
            core::result::fresh<result_category::valor_elemento_invalido>(stack, "NFe/infNFe/det",
                                                                           std::to_string(items));
            return false;
        }
    }
    return true;
}

}  // namespace

documento_fiscal::dados::dados(dados const& other)
    : campos(other.campos), xml(other.xml), inf_nfe(same_child(xml, other.xml, other.inf_nfe))
{
}

documento_fiscal::documento_fiscal() = default;
documento_fiscal::documento_fiscal(documento_fiscal const& other) = default;
documento_fiscal::documento_fiscal(documento_fiscal&& other) noexcept = default;
documento_fiscal& documento_fiscal::operator=(documento_fiscal const& other) = default;
documento_fiscal& documento_fiscal::operator=(documento_fiscal&& other) noexcept = default;
documento_fiscal::~documento_fiscal() = default;

documento_fiscal documento_fiscal::from_xml(xml::element const& elemento, core::result::stack& stack)
{
    return from_xml(xml::element(elemento), stack);
}

documento_fiscal documento_fiscal::from_xml(xml::element&& elemento, core::result::stack& stack)
{
    documento_fiscal result;
    dados& data = *result.dados_;
    data.xml = std::move(elemento);
    if (data.xml.get_name() != "NFe") {
        core::result::fresh<result_category::elemento_ausente>(stack, "NFe");
        return result;
    }
    // Looked up in the object's own tree, so the pointers stay good.
    found_elements const found = wanted.find_in(data.xml);
    if (found[inf_nfe] == nullptr) {
        core::result::fresh<result_category::elemento_ausente>(stack, "NFe/infNFe");
        return result;
    }
    data.inf_nfe = find_child_element(data.xml, "infNFe");
    if (!read_identification(*data.inf_nfe, data.campos.chave, data.campos.versao_layout, stack)) {
        return result;
    }
    // A document of layout 2.00 only travels as its XML.
    if (data.campos.versao_layout == versao::versao_2_00) {
        return result;
    }
    if (!within_items_limit(*data.inf_nfe, stack)) {
        return result;
    }
    read_fields(found, data.campos, stack);
    return result;
}

documento_fiscal documento_fiscal::from_xml(xml::document const& documento, core::result::stack& stack)
{
    xml::element const* root = documento.get_root_element();
    if (root == nullptr) {
        core::result::fresh<result_category::documento_invalido>(stack);
        return {};
    }
    return from_xml(*root, stack);
}

documento_fiscal documento_fiscal::from_xml(xml::document&& documento, core::result::stack& stack)
{
    xml::element* root = documento.get_root_element();
    if (root == nullptr) {
        core::result::fresh<result_category::documento_invalido>(stack);
        return {};
    }
    return from_xml(std::move(*root), stack);
}

void documento_fiscal::assinar(cryptography::pkcs12 const& certificado, core::result::stack& stack)
{
    chave_acesso const& chave = dados_->campos.chave;
    auto const identificador = [&chave](std::string& id, core::result::stack& pieces) {
        id = "NFe";
        return detail::escrever_campo(id, chave, "documento_fiscal", "chave_acesso", pieces);
    };
    nfe::detail::assinar_raiz(dados_->xml, identificador, certificado, stack);
}

chave_acesso documento_fiscal::get_chave_acesso() const { return dados_->campos.chave; }
versao documento_fiscal::get_versao() const { return dados_->campos.versao_layout; }
ambiente documento_fiscal::get_ambiente() const { return dados_->campos.tipo_ambiente; }
modelo documento_fiscal::get_modelo() const { return dados_->campos.modelo_documento; }
estado documento_fiscal::get_estado() const { return dados_->campos.uf; }
core::optional<std::string> documento_fiscal::get_qrcode_value() const { return dados_->campos.qrcode_value; }
core::optional<std::string> documento_fiscal::get_url_chave() const { return dados_->campos.url_chave; }
core::datetime documento_fiscal::get_data_hora_emissao() const { return dados_->campos.data_hora_emissao; }
core::optional<std::string> documento_fiscal::get_email_destinatario() const
{
    return dados_->campos.email_destinatario;
}
std::uint32_t documento_fiscal::get_serie() const { return dados_->campos.serie; }
std::uint32_t documento_fiscal::get_codigo_numerico() const { return dados_->campos.codigo_numerico; }
std::uint32_t documento_fiscal::get_numero_nota_fiscal() const { return dados_->campos.numero_nota_fiscal; }
std::string documento_fiscal::get_valor_total() const { return dados_->campos.valor_total; }
std::string documento_fiscal::get_valor_icms() const { return dados_->campos.valor_icms; }
core::optional<std::string> documento_fiscal::get_identificador_destinatario() const
{
    return dados_->campos.identificador_destinatario;
}

std::string documento_fiscal::get_digest_value() const
{
    std::unordered_map<std::string, xml::element const*> const found =
        find_elements_by_path(dados_->xml, {digest_path});
    if (xml::element const* digest = lookup(found, digest_path)) {
        return digest->get_contents();
    }
    if (dados_->inf_nfe == nullptr) {
        core::fatal_exit("Não foi possível obter o valor interno do infNFe na estrutura do documento fiscal");
    }
    return digest_of(dados_->xml, *dados_->inf_nfe);
}

xml::element documento_fiscal::get_xml() const
{
    return dados_->xml;
}

}  // namespace velk::erp::inline v4::tarn::nfe::sefaz_data::requisicao

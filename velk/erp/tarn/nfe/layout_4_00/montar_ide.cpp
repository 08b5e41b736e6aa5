#include <velk/erp/tarn/nfe/layout_4_00/montagem.hpp>

#include <velk/erp/estado.hpp>
#include <velk/erp/tarn/versao_biblioteca.hpp>

#include <algorithm>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00 {

namespace {

// Codes of the layout, indexed by the enumerator of the model.
constexpr std::uint16_t tpNF[] = {0, 1};
constexpr std::uint16_t idDest[] = {1, 2, 3};
constexpr std::uint16_t tpEmis[] = {1, 2, 3, 4, 5, 6, 7, 9};
constexpr std::uint16_t tpAmb[] = {1, 2};
constexpr std::uint16_t finNFe[] = {1, 2, 3, 4};
constexpr std::uint16_t indFinal[] = {0, 1};
constexpr std::uint16_t indPres[] = {0, 1, 2, 3, 4, 5, 9};
constexpr std::uint16_t indIntermed[] = {0, 1};
constexpr std::uint16_t mod_refNFP[] = {4, 1};
constexpr char const* mod_refECF[] = {"2B", "2C", "2D"};

// cUF is the IBGE code of the issuer's state, given by its address.
bool montar_cUF(fiscal::nota_fiscal const& nota, std::uint16_t& cUF, core::result::stack& stack)
{
    std::string const uf = nota.get_emitente().get_endereco().get_uf();
    estado valor{};
    if (!core::read_value(valor, uf, stack)) {
        return recusar<70>(stack, uf);
    }
    cUF = static_cast<std::uint16_t>(get_codigo_ibge(valor));
    return true;
}

// The check digit is the key's last character, as the model made it. The
// key must be 44 digits (the Id of infNFe and cDV admit nothing else); that
// the check digit is right is the model's business.
bool montar_cDV(std::string const& chave, std::uint16_t& cDV, core::result::stack& stack)
{
    if (chave.size() != 44 || !std::all_of(chave.begin(), chave.end(), [](char c) { return c >= '0' && c <= '9'; })) {
        return recusar<58>(stack, chave);
    }
    cDV = static_cast<std::uint16_t>(chave.back() - '0');
    return true;
}

bool montar_refNF(fiscal::nf_referenciada const& referencia, grupo::refNF& ref, core::result::stack& stack)
{
    ref.cUF = referencia.get_uf_emitente();
    ref.AAMM = referencia.get_ano_mes_emissao();
    std::string const cnpj = referencia.get_cnpj();
    if (!detail::ler_cnpj(cnpj, ref.CNPJ, stack)) {
        return recusar<67>(stack, cnpj);
    }
    ref.mod = referencia.get_modelo();
    if (!ler_numero<68>(referencia.get_serie(), ref.serie, stack)) {
        return false;
    }
    ref.nNF = referencia.get_numero();
    return true;
}

// Unlike the parties of the note, the producer's CNPJ goes before the CPF.
bool montar_produtor(fiscal::nfp_referenciada const& referencia, grupo::cnpj_ou_cpf& documento,
                     core::result::stack& stack)
{
    if (auto const cnpj = referencia.get_cnpj()) {
        return ler_documento_cnpj(*cnpj, documento, stack) || recusar<1>(stack, *cnpj);
    }
    if (auto const cpf = referencia.get_cpf()) {
        return ler_documento_cpf(*cpf, documento, stack) || recusar<2>(stack, *cpf);
    }
    return recusar<3>(stack);
}

bool montar_refNFP(fiscal::nfp_referenciada const& referencia, grupo::refNFP& ref, core::result::stack& stack)
{
    ref.cUF = referencia.get_uf_emitente();
    ref.AAMM = referencia.get_ano_mes_emissao();
    if (!montar_produtor(referencia, ref.documento, stack)) {
        return false;
    }
    ref.IE = referencia.get_ie();
    if (!mapear<19>(referencia.get_modelo(), mod_refNFP, ref.mod, stack)) {
        return false;
    }
    ref.nNF = referencia.get_numero();
    return ler_numero<69>(referencia.get_serie(), ref.serie, stack);
}

bool montar_refECF(fiscal::cupom_referenciado const& cupom, grupo::refECF& ref, core::result::stack& stack)
{
    ref.nECF = cupom.get_ecf();
    ref.nCOO = cupom.get_coo();
    return mapear<20>(cupom.get_modelo(), mod_refECF, ref.mod, stack);
}

// One entry per referenced document, all those of a kind before the next kind.
template <class Ref, class Referencia, class Montar>
bool montar_referencias(std::vector<Referencia> const& referencias, std::vector<grupo::NFref>& NFref, Montar montar,
                        core::result::stack& stack)
{
    for (Referencia const& referencia : referencias) {
        Ref ref;
        if (!montar(referencia, ref, stack)) {
            return false;
        }
        NFref.emplace_back(std::move(ref));
    }
    return true;
}

bool montar_NFref(fiscal::nota_fiscal const& nota, std::vector<grupo::NFref>& NFref, core::result::stack& stack)
{
    for (fiscal::nfe_referenciada const& referencia : nota.get_nfe_referenciadas()) {
        NFref.emplace_back(grupo::refNFe{referencia.get_chave_nfe()});
    }
    return montar_referencias<grupo::refNF>(nota.get_nf_referenciadas(), NFref, montar_refNF, stack) &&
           montar_referencias<grupo::refNFP>(nota.get_nfp_referenciadas(), NFref, montar_refNFP, stack) &&
           montar_referencias<grupo::refECF>(nota.get_cupons_referenciados(), NFref, montar_refECF, stack);
}

}  // namespace

bool montar_ide(fiscal::nota_fiscal const& nota, grupo::ide& ide, core::result::stack& stack)
{
    if (!montar_cUF(nota, ide.cUF, stack)) {
        return false;
    }
    ide.cNF = nota.get_codigo_nf();
    ide.natOp = nota.get_natureza_operacao();
    // Only the NF-e (55) and the NFC-e (65) are written in this layout.
    std::string const modelo = nota.get_modelo_emissao();
    if (!ler_numero<71>(modelo, ide.mod, stack)) {
        return false;
    }
    if (ide.mod != 55 && ide.mod != 65) {
        return recusar<71>(stack, modelo);
    }
    if (!ler_numero<72>(nota.get_serie(), ide.serie, stack)) {
        return false;
    }
    ide.nNF = nota.get_numero();
    ide.dhEmi = nota.get_data_emissao();
    ide.dhSaiEnt = nota.get_data_saida_entrada();
    if (!mapear<22>(nota.get_tipo_operacao(), tpNF, ide.tpNF, stack) ||
        !mapear<23>(nota.get_indicador_operacao(), idDest, ide.idDest, stack)) {
        return false;
    }
    ide.cMunFG = nota.get_ibge_municipio_emissao();
    if (!mapear<45>(nota.get_tipo_emissao(), tpEmis, ide.tpEmis, stack) ||
        !montar_cDV(nota.get_chave_44_digitos(), ide.cDV, stack) ||
        !mapear<16>(nota.get_indicador_ambiente(), tpAmb, ide.tpAmb, stack) ||
        !mapear<64>(nota.get_indicador_finalidade_emissao(), finNFe, ide.finNFe, stack) ||
        !mapear<17>(nota.get_operacao_consumidor_final(), indFinal, ide.indFinal, stack) ||
        !mapear<18>(nota.get_indicador_presenca(), indPres, ide.indPres, stack)) {
        return false;
    }
    if (auto const intermediador = nota.get_indicador_intermediador();
        intermediador && !mapear<78>(*intermediador, indIntermed, ide.indIntermed.emplace(), stack)) {
        return false;
    }
    ide.procEmi = 0;
    // Entering contingency has its time and its reason together, or neither;
    // either alone is refused as an issue type that is not complete.
    ide.dhCont = nota.get_data_contingencia();
    ide.xJust = nota.get_justificativa_entrada_contingencia();
    if (ide.dhCont.has_value() != ide.xJust.has_value()) {
        return recusar<45>(stack, static_cast<unsigned int>(nota.get_tipo_emissao()));
    }
    if (!montar_NFref(nota, ide.NFref, stack)) {
        return false;
    }
    ide.verProc = std::string("velkerp-") + get_versao_biblioteca();
    // The DANFE of an NFC-e is printed as a receipt; every other note as a
    // portrait page.
    ide.tpImp = modelo == "65" ? 4 : 1;
    return true;
}

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00

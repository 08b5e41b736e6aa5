#include <velk/erp/tarn/nfe/qrcode/detail/url_consulta_qrcode.hpp>

#include <velk/core/converter.hpp>
#include <velk/core/result/report.hpp>
#include <velk/erp/tarn/nfe/qrcode/processo_gerar_qrcode_result_category.hpp>

#include <array>

namespace velk::erp::inline v4::tarn::nfe::detail {

namespace {

// One page: scheme, host, port (0 for the scheme's own) and path with the
// character the QR string follows. A null host is no page.
struct pagina {
    char const* esquema;
    char const* host;
    unsigned porta;
    char const* caminho;

    constexpr bool existe() const { return host != nullptr; }
};

constexpr pagina nenhuma{nullptr, nullptr, 0, nullptr};

struct paginas_estado {
    estado uf;
    pagina producao;
    pagina homologacao;
    // PR alone publishes its page by layout version (paginas_pr).
    bool por_layout = false;
};

// The states' own published pages, in the order of the enumeration. Where a
// state serves both environments from one page, the two entries are equal.
constexpr std::array<paginas_estado, quantidade_estados> paginas = {{
    {estado::ac,
     {"http", "www.sefaznet.ac.gov.br", 0, "/nfce/qrcode?"},
     {"http", "www.hml.sefaznet.ac.gov.br", 0, "/nfce/qrcode?"}},
    {estado::al,
     {"http", "nfce.sefaz.al.gov.br", 0, "/QRCode/consultarNFCe.jsp?"},
     {"http", "nfce.sefaz.al.gov.br", 0, "/QRCode/consultarNFCe.jsp?"}},
    {estado::ap,
     {"https", "www.sefaz.ap.gov.br", 0, "/nfce/nfcep.php?"},
     {"https", "www.sefaz.ap.gov.br", 0, "/nfcehml/nfce.php?"}},
    {estado::am,
     {"http", "sistemas.sefaz.am.gov.br", 0, "/nfceweb/consultarNFCe.jsp?"},
     {"http", "homnfce.sefaz.am.gov.br", 0, "/nfceweb/consultarNFCe.jsp?"}},
    {estado::ba,
     {"http", "nfe.sefaz.ba.gov.br", 0, "/servicos/nfce/modulos/geral/NFCEC_consulta_chave_acesso.aspx?"},
     {"http", "hnfe.sefaz.ba.gov.br", 0, "/servicos/nfce/modulos/geral/NFCEC_consulta_chave_acesso.aspx?"}},
    {estado::ce,
     {"http", "nfce.sefaz.ce.gov.br", 0, "/pages/ShowNFCe.html?"},
     {"http", "nfceh.sefaz.ce.gov.br", 0, "/pages/ShowNFCe.html?"}},
    {estado::df,
     {"http", "dec.fazenda.df.gov.br", 0, "/ConsultarNFCe.aspx?"},
     {"http", "dec.fazenda.df.gov.br", 0, "/ConsultarNFCe.aspx?"}},
    // The QR string follows a "?" here too: the layout admits no other form.
    {estado::es,
     {"http", "app.sefaz.es.gov.br", 0, "/ConsultaNFCe/qrcode.aspx?"},
     {"http", "homologacao.sefaz.es.gov.br", 0, "/ConsultaNFCe/qrcode.aspx?"}},
    {estado::go,
     {"http", "nfe.sefaz.go.gov.br", 0, "/nfeweb/sites/nfce/danfeNFCe?"},
     {"http", "homolog.sefaz.go.gov.br", 0, "/nfeweb/sites/nfce/danfeNFCe?"}},
    // No homologation page, and no falling back on the production one.
    {estado::ma,
     {"http", "www.nfce.sefaz.ma.gov.br", 0, "/portal/consultarNFCe.jsp?"},
     nenhuma},
    {estado::ms,
     {"http", "www.dfe.ms.gov.br", 0, "/nfce/qrcode?"},
     {"http", "www.dfe.ms.gov.br", 0, "/nfce/qrcode?"}},
    {estado::mt,
     {"http", "www.sefaz.mt.gov.br", 0, "/nfce/consultanfce?"},
     {"http", "homologacao.sefaz.mt.gov.br", 0, "/nfce/consultanfce?"}},
    {estado::mg,
     {"https", "portalsped.fazenda.mg.gov.br", 0, "/portalnfce/sistema/qrcode.xhtml?"},
     {"https", "portalsped.fazenda.mg.gov.br", 0, "/portalnfce/sistema/qrcode.xhtml?"}},
    {estado::pa,
     {"https", "appnfc.sefa.pa.gov.br", 0, "/portal/view/consultas/nfce/nfceForm.seam?"},
     {"https", "appnfc.sefa.pa.gov.br", 0, "/portal-homologacao/view/consultas/nfce/nfceForm.seam?"}},
    {estado::pb,
     {"http", "www.sefaz.pb.gov.br", 0, "/nfce?"},
     {"http", "www.sefaz.pb.gov.br", 0, "/nfcehom?"}},
    {estado::pr, nenhuma, nenhuma, true},
    {estado::pe,
     {"http", "nfce.sefaz.pe.gov.br", 0, "/nfce/consulta?"},
     {"http", "nfcehomolog.sefaz.pe.gov.br", 0, "/nfce/consulta?"}},
    {estado::pi,
     {"http", "www.sefaz.pi.gov.br", 0, "/nfce/qrcode?"},
     {"http", "www.sefaz.pi.gov.br", 0, "/nfce/qrcode?"}},
    {estado::rj,
     {"http", "www4.fazenda.rj.gov.br", 0, "/consultaNFCe/QRCode?"},
     {"http", "www4.fazenda.rj.gov.br", 0, "/consultaNFCe/QRCode?"}},
    {estado::rn,
     {"http", "nfce.set.rn.gov.br", 0, "/consultarNFCe.aspx?"},
     {"http", "hom.nfce.set.rn.gov.br", 0, "/consultarNFCe.aspx?"}},
    {estado::rs,
     {"https", "www.sefaz.rs.gov.br", 0, "/NFCE/NFCE-COM.aspx?"},
     {"https", "www.sefaz.rs.gov.br", 0, "/NFCE/NFCE-COM.aspx?"}},
    {estado::ro,
     {"http", "www.nfce.sefin.ro.gov.br", 0, "/consultanfce/consulta.jsp?"},
     {"http", "www.nfce.sefin.ro.gov.br", 0, "/consultanfce/consulta.jsp?"}},
    // Homologation has no name: a numeric address, on the port of its own.
    {estado::rr,
     {"https", "www.sefaz.rr.gov.br", 0, "/nfce/servlet/qrcode?"},
     {"http", "200.174.88.103", 8080, "/nfce/servlet/qrcode?"}},
    {estado::sc,
     {"https", "sat.sef.sc.gov.br", 0, "/nfce/consulta?"},
     {"https", "hom.sat.sef.sc.gov.br", 0, "/nfce/consulta?"}},
    {estado::sp,
     {"https", "www.nfce.fazenda.sp.gov.br", 0, "/NFCeConsultaPublica/Paginas/ConsultaQRCode.aspx?"},
     {"https", "www.homologacao.nfce.fazenda.sp.gov.br", 0, "/NFCeConsultaPublica/Paginas/ConsultaQRCode.aspx?"}},
    {estado::se,
     {"http", "www.nfce.se.gov.br", 0, "/portal/consultarNFCe.jsp?"},
     {"http", "www.hom.nfe.se.gov.br", 0, "/portal/consultarNFCe.jsp?"}},
    {estado::to,
     {"http", "www.sefaz.to.gov.br", 0, "/nfce/qrcode?"},
     {"http", "homologacao.sefaz.to.gov.br", 0, "/nfce/qrcode?"}},
}};

constexpr bool na_ordem_da_enumeracao()
{
    for (std::size_t indice = 0; indice < paginas.size(); ++indice) {
        if (static_cast<std::size_t>(paginas[indice].uf) != indice) {
            return false;
        }
    }
    return true;
}
static_assert(na_ordem_da_enumeracao(), "the pages are looked up by the state's number");

struct pagina_layout {
    versao versao_layout;
    pagina endereco;
};

// PR: one page per layout version, the same in both environments. Layout
// 2.00 has none and is reported apart (code 9).
constexpr pagina_layout paginas_pr[] = {
    {versao::versao_3_10, {"http", "www.dfeportal.fazenda.pr.gov.br", 0, "/dfe-portal/rest/servico/consultaNFCe?"}},
    {versao::versao_4_00, {"http", "www.fazenda.pr.gov.br", 0, "/nfce/qrcode?"}},
};

std::string endereco(pagina const& encontrada)
{
    std::string texto = std::string(encontrada.esquema) + "://" + encontrada.host;
    if (encontrada.porta != 0) {
        texto += ":" + std::to_string(encontrada.porta);
    }
    return texto + encontrada.caminho;
}

pagina pagina_por_layout(versao versao_layout)
{
    for (pagina_layout const& linha : paginas_pr) {
        if (linha.versao_layout == versao_layout) {
            return linha.endereco;
        }
    }
    return nenhuma;
}

// Code 5 with the state's text, or the converter's failure when it has none.
void sem_pagina(estado uf, core::result::stack& stack)
{
    std::size_t const antes = stack.size();
    std::string const codigo_uf = core::make_string(uf, stack);
    if (stack.size() == antes) {
        core::result::fresh<processo_gerar_qrcode_result_category, 5>(stack, codigo_uf);
    }
}

}  // namespace

std::string obter_url_consulta_qrcode(ambiente tipo_ambiente, versao versao_layout, estado uf,
                                      core::result::stack& stack)
{
    if (tipo_ambiente != ambiente::producao && tipo_ambiente != ambiente::homologacao) {
        return {};
    }
    int const indice = static_cast<int>(uf);
    if (indice < 0 || indice >= quantidade_estados) {
        sem_pagina(uf, stack);
        return {};
    }
    paginas_estado const& linha = paginas[static_cast<std::size_t>(indice)];
    pagina encontrada = tipo_ambiente == ambiente::producao ? linha.producao : linha.homologacao;
    if (linha.por_layout) {
        if (versao_layout == versao::versao_2_00) {
            core::result::fresh<processo_gerar_qrcode_result_category, 9>(stack, "2.00");
            return {};
        }
        encontrada = pagina_por_layout(versao_layout);
    }
    if (!encontrada.existe()) {
        sem_pagina(uf, stack);
        return {};
    }
    return endereco(encontrada);
}

std::string obter_url_consulta_qrcode(sefaz_data::requisicao::documento_fiscal const& documento,
                                      core::result::stack& stack)
{
    return obter_url_consulta_qrcode(documento.get_ambiente(), documento.get_versao(), documento.get_estado(), stack);
}

}  // namespace velk::erp::inline v4::tarn::nfe::detail

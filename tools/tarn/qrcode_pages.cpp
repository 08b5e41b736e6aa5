#include "qrcode_pages.hpp"

namespace velk::tools::tarn {

bool qrcode_pages::load(std::filesystem::path const& file, std::string& error)
{
    return table_.load(file, error);
}

std::string qrcode_pages::page(erp::estado uf, erp::tarn::ambiente ambiente, erp::tarn::nfe::versao layout,
                               std::string& error) const
{
    std::string const sigla = erp::get_uf(uf);
    char const* const environment = ambiente == erp::tarn::ambiente::producao ? "producao" : "homologacao";
    char const* const version = layout == erp::tarn::nfe::versao::versao_3_10 ? "3.10" : "4.00";
    std::string found = table_.text_at({"paginas", sigla, environment});
    if (found.empty()) {
        found = table_.text_at({"paginas", sigla, "por_layout", version, environment});
    }
    if (found.empty()) {
        error = "não há página de consulta do QR code para " + sigla + " em " +
                (ambiente == erp::tarn::ambiente::producao ? "produção" : "homologação") + " (informe --url-qrcode)";
    }
    return found;
}

}  // namespace velk::tools::tarn

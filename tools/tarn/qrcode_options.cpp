#include "qrcode_options.hpp"

#include "command_error.hpp"
#include "option_values.hpp"
#include "secret_source.hpp"

namespace velk::tools::tarn {

namespace {

namespace nfe = erp::tarn::nfe;

secret_source const csc_source("csc-arquivo", "TARN_CSC");

}  // namespace

std::vector<option_row> qrcode_options::option_rows()
{
    return {
        {"token", "ID", "identificador do CSC (idToken) do QR code da NFC-e"},
        {"csc-arquivo", "ARQUIVO", "arquivo com o CSC (ou a variável TARN_CSC)"},
        {"versao-qrcode", "VERSAO", "2.00 (padrão) ou 1.00"},
        {"url-qrcode", "URL", "página de consulta do QR code (padrão: a da UF na tabela instalada)"},
        {"url-chave", "URL", "texto de urlChave, o endereço de consulta pela chave publicado pela UF"},
    };
}

qrcode_options::qrcode_options(option_table const& options, bool simulator)
    : version_(option_values::choose<nfe::versao_qrcode>(
          options, "versao-qrcode",
          {{"2.00", nfe::versao_qrcode::versao_200}, {"1.00", nfe::versao_qrcode::versao_100}},
          nfe::versao_qrcode::versao_200)),
      page_(options.value("url-qrcode")),
      url_chave_(options.value("url-chave")),
      simulator_(simulator)
{
    std::string error;
    csc_ = csc_source.read(options, error);
    if (!error.empty()) {
        throw command_error::usage("CSC", error);
    }
    token_ = options.value("token").value_or(std::string());
    if (simulator && !csc_) {
        csc_ = simulator_csc;
        if (token_.empty()) {
            token_ = simulator_token;
        }
    }
}

std::string qrcode_options::stand_in_url_chave(std::string const& page) const
{
    std::size_t const scheme = page.find("://");
    std::size_t const path = scheme == std::string::npos ? std::string::npos : page.find('/', scheme + 3);
    if (!simulator_ || path == std::string::npos) {
        throw command_error::usage("QR code", "informe --url-chave: o endereço de consulta pela chave da UF");
    }
    return page.substr(0, path) + "/consulta";
}

std::string const& qrcode_options::csc() const
{
    if (!csc_) {
        throw command_error::usage("CSC", "o QR code da NFC-e precisa do CSC: --csc-arquivo ou a variável TARN_CSC");
    }
    return *csc_;
}

nfe::informacoes_adicionais qrcode_options::information(nfe::sefaz_data::requisicao::documento_fiscal const& documento,
                                                        tool_data& data) const
{
    std::string page;
    if (page_) {
        page = *page_;
    } else {
        std::string error;
        page = data.pages().page(documento.get_estado(), documento.get_ambiente(), documento.get_versao(), error);
        if (page.empty()) {
            throw command_error::usage("QR code", error);
        }
    }
    return nfe::informacoes_adicionais(version_, url_chave_ ? *url_chave_ : stand_in_url_chave(page), page);
}

void qrcode_options::apply(nfe::sefaz_data::requisicao::documento_fiscal& documento, tool_data& data) const
{
    if (documento.get_modelo() != erp::tarn::modelo::nfce) {
        return;
    }
    if (token_.empty()) {
        throw command_error::usage("QR code", "o QR code da NFC-e precisa do identificador do CSC: --token");
    }
    core::result::stack stack;
    documento.gerar_qrcode(information(documento, data), token_, csc(), stack);
    throw_if_failed(stack, "QR code");
}

}  // namespace velk::tools::tarn

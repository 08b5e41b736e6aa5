#pragma once

#include "option_table.hpp"
#include "tool_data.hpp"

#include <velk/erp/tarn/nfe/qrcode/informacoes_adicionais.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>

#include <optional>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// The consumer QR code of an NFC-e from the options: the CSC's token
// (--token) and the CSC itself, from --csc-arquivo or the variable TARN_CSC,
// never from the command line; the QR code version; the consultation page
// (the state's, from the installed table, unless --url-qrcode) and urlChave
// (--url-chave). No table of urlChave is installed, as the library keeps none:
// it comes from the caller, and only against a simulator does a stand-in (the
// page's scheme and host followed by "/consulta") take its place.
class qrcode_options {
public:
    // The token and CSC the simulator's runs use when none is given: the
    // simulator does not check the QR code, and a test document needs one.
    static constexpr char simulator_token[] = "000001";
    static constexpr char simulator_csc[] = "TARNSIMULADOR0000000000000000000";

    static std::vector<option_row> option_rows();

    // `simulator`: the run goes to a simulator, whose test CSC stands in for
    // a missing one. Throws command_error on bad options.
    qrcode_options(option_table const& options, bool simulator);

    bool has_csc() const { return csc_.has_value(); }

    // The page, version and urlChave for a document.
    erp::tarn::nfe::informacoes_adicionais information(
        erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal const& documento, tool_data& data) const;

    // Adds qrCode and urlChave to an NFC-e before it is signed; an NF-e is
    // left alone. Throws command_error without a CSC or on the library's
    // failure.
    void apply(erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal& documento, tool_data& data) const;

    std::string const& token() const { return token_; }
    // Throws command_error without a CSC.
    std::string const& csc() const;

private:
    std::string stand_in_url_chave(std::string const& page) const;

    std::string token_;
    std::optional<std::string> csc_;
    erp::tarn::nfe::versao_qrcode version_;
    std::optional<std::string> page_;
    std::optional<std::string> url_chave_;
    bool simulator_;
};

}  // namespace velk::tools::tarn

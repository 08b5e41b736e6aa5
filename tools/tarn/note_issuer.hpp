#pragma once

#include "authority_connection.hpp"
#include "exit_status.hpp"
#include "json_value.hpp"
#include "qrcode_options.hpp"
#include "tool_data.hpp"

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/resposta/lote_autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/autorizacao.hpp>
#include <velk/erp/tarn/nfe/servico/consulta_recibo.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <atomic>
#include <filesystem>
#include <optional>

namespace velk::tools::tarn {

// What became of one note.
struct issued_note {
    exit_status status = exit_status::ok;
    json_value report = json_value::object();
};

// The whole road of one note: its JSON read into the document of the layout,
// the QR code of an NFC-e, the signature, the authorization (an NFC-e in a
// synchronous batch, an NF-e through the receipt of an asynchronous one),
// and the nfeProc of an authorized note written beside its JSON (or into the
// output folder). A refused note leaves its signed document there instead,
// for `tarn validar`. One object serves several threads at once.
class note_issuer {
public:
    note_issuer(authority_connection const& connection, qrcode_options const& qrcode, tool_data& data,
                erp::tarn::nfe::versao layout, std::optional<std::filesystem::path> output_folder);

    // Never throws command_error: a failure is the note's outcome.
    issued_note issue(std::filesystem::path const& json_file) const;

private:
    void run(std::filesystem::path const& json_file, issued_note& note) const;
    erp::tarn::nfe::sefaz_data::resposta::lote_autorizacao authorize(
        erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal const& documento, json_value& report) const;
    erp::tarn::nfe::sefaz_data::resposta::lote_autorizacao wait_for_receipt(
        erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal const& documento, unsigned long long receipt) const;
    std::filesystem::path beside(std::filesystem::path const& json_file, char const* suffix) const;

    authority_connection const& connection_;
    qrcode_options const& qrcode_;
    tool_data& data_;
    erp::tarn::nfe::versao layout_;
    std::optional<std::filesystem::path> output_folder_;
    erp::tarn::nfe::servico::autorizacao autorizacao_;
    erp::tarn::nfe::servico::consulta_recibo recibo_;
    mutable std::atomic<unsigned long long> next_batch_{1};
};

}  // namespace velk::tools::tarn

#pragma once

#include "authority_connection.hpp"
#include "subcommand.hpp"

#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/nfe/sefaz_data/requisicao/evento.hpp>

#include <optional>
#include <string>
#include <vector>

namespace velk::tools::tarn {

// The note an event is about: given as its key, or as its nfeProc, which
// also holds the authorization protocol.
struct event_target {
    erp::tarn::chave_acesso chave;
    std::optional<unsigned long long> protocolo;

    // Throws command_error when the text is neither a key nor a readable
    // nfeProc file.
    static event_target read(std::string const& argument);
};

// An event of a note signed, sent alone in a batch to the authorizer of the
// note's state and model, and, once registered, archived as procEventoNFe in
// the file of --saida.
class event_sender {
public:
    // The options every event takes besides its own.
    static std::vector<option_row> option_rows();

    // Throws command_error when the event cannot be made or sent.
    static command_outcome send(erp::tarn::nfe::sefaz_data::requisicao::evento evento,
                                authority_connection const& connection, std::optional<std::string> const& archive);
};

}  // namespace velk::tools::tarn

#pragma once

#include <velk/erp/tarn/nfe/sefaz_data/requisicao/documento_fiscal.hpp>
#include <velk/erp/tarn/nfe/versao.hpp>

#include <filesystem>
#include <string>

namespace velk::tools::tarn {

// The unsigned document of a note given as NotaFiscal JSON, in the layout
// asked for, read back by the library as any document is.
class note_builder {
public:
    // Throws command_error: an unreadable file, JSON that is no note, a note
    // the layout cannot carry.
    static erp::tarn::nfe::sefaz_data::requisicao::documento_fiscal build(std::filesystem::path const& json_file,
                                                                          erp::tarn::nfe::versao layout);
};

}  // namespace velk::tools::tarn

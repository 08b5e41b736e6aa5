#pragma once

#include <velk/core/datetime.hpp>
#include <velk/core/optional.hpp>
#include <velk/erp/tarn/nfe/layout_4_00/grupo/NFref.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo {

// Identification of the note.
struct ide {
    std::uint16_t cUF = 0;
    std::uint32_t cNF = 0;
    std::string natOp;
    // Layout 3.10 only: the form of payment of the whole note.
    core::optional<std::uint16_t> indPag;
    std::uint16_t mod = 0;
    std::uint16_t serie = 0;
    std::uint32_t nNF = 0;
    core::datetime dhEmi;
    core::optional<core::datetime> dhSaiEnt;
    std::uint16_t tpNF = 0;
    std::uint16_t idDest = 0;
    std::uint32_t cMunFG = 0;
    std::uint16_t tpImp = 0;
    std::uint16_t tpEmis = 0;
    std::uint16_t cDV = 0;
    std::uint16_t tpAmb = 0;
    std::uint16_t finNFe = 0;
    std::uint16_t indFinal = 0;
    std::uint16_t indPres = 0;
    core::optional<std::uint16_t> indIntermed;
    std::uint16_t procEmi = 0;
    std::string verProc;
    core::optional<core::datetime> dhCont;
    core::optional<std::string> xJust;
    std::vector<grupo::NFref> NFref;
};

}  // namespace velk::erp::inline v4::tarn::nfe::layout_4_00::grupo

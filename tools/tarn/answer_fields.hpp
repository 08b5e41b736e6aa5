#pragma once

#include "exit_status.hpp"
#include "json_value.hpp"

#include <velk/core/datetime.hpp>
#include <velk/erp/tarn/chave_acesso.hpp>
#include <velk/erp/tarn/nfe/obter_grupo_status_resposta.hpp>

#include <string>

namespace velk::tools::tarn {

// The pieces of the authority's answers as tarn reports them.
class answer_fields {
public:
    // The 44 digits; throws command_error for a text that is no key.
    static erp::tarn::chave_acesso parse_key(std::string const& text);
    static std::string key_text(erp::tarn::chave_acesso const& chave);
    static std::string datetime_text(core::datetime const& value);
    // The time now in Brasília (UTC-3), as events carry it.
    static core::datetime brasilia_now();

    // cStat and xMotivo into the report.
    static void set_status(json_value& report, unsigned code, std::string const& reason);
    // 0 for the success group of obter_grupo_status_resposta, 1 for any other.
    static exit_status of_group(int group)
    {
        return group == erp::tarn::nfe::grupo_sucesso ? exit_status::ok : exit_status::refused;
    }
};

}  // namespace velk::tools::tarn

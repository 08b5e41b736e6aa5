#include "answer_fields.hpp"

#include "command_error.hpp"

#include <velk/core/converter.hpp>

#include <chrono>

namespace velk::tools::tarn {

erp::tarn::chave_acesso answer_fields::parse_key(std::string const& text)
{
    core::result::stack stack;
    erp::tarn::chave_acesso chave;
    if (text.size() != 44 || !core::read_value(chave, text, stack)) {
        throw command_error::usage("chave de acesso", text + ": não é uma chave de acesso de 44 dígitos");
    }
    return chave;
}

std::string answer_fields::key_text(erp::tarn::chave_acesso const& chave)
{
    core::result::stack stack;
    return core::make_string(chave, stack);
}

std::string answer_fields::datetime_text(core::datetime const& value)
{
    core::result::stack stack;
    return core::make_string(value, stack);
}

core::datetime answer_fields::brasilia_now()
{
    using namespace std::chrono;
    auto const local = floor<seconds>(system_clock::now()) - hours(3);
    auto const day = floor<days>(local);
    year_month_day const date(day);
    hh_mm_ss const clock(local - day);
    return core::datetime(
        core::date(static_cast<unsigned>(date.day()), static_cast<unsigned>(date.month()),
                   static_cast<int>(date.year())),
        core::time(static_cast<int>(clock.hours().count()), static_cast<unsigned>(clock.minutes().count()),
                   static_cast<unsigned>(clock.seconds().count()), 0),
        -180);
}

void answer_fields::set_status(json_value& report, unsigned code, std::string const& reason)
{
    report.set("cStat", json_value::number(code));
    report.set("xMotivo", json_value::text(reason));
}

}  // namespace velk::tools::tarn

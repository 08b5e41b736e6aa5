#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/date.hpp>
#include <velk/core/export.hpp>
#include <velk/core/time.hpp>

namespace velk::core {
inline namespace v3 {

// A local date and time with its offset from UTC.
//
// The offset is in MINUTES east of UTC: Brasília time (UTC-03:00) is -180,
// Fernando de Noronha (UTC-02:00) is -120. It is written as "+hh:mm"/"-hh:mm".
class VELK_EXPORT datetime {
public:
    datetime() = default;
    datetime(date const& day, time const& clock, int utc_offset_minutes)
        : date_(day), time_(clock), utc_offset_(utc_offset_minutes)
    {
    }

    date const& get_date() const { return date_; }
    time const& get_time() const { return time_; }
    int get_utc_offset() const { return utc_offset_; }

    bool operator==(datetime const&) const = default;

private:
    date date_;
    time time_;
    int utc_offset_ = 0;
};

// AAAA-MM-DDThh:mm:ss+hh:mm, as the NF-e layouts write dhEmi. Milliseconds are
// not written. Invalid dates, times, or offsets of a day or more have no text
// form.
template <>
struct VELK_EXPORT chars_converter<datetime> {
    static converter_status make_chars(char* buffer, unsigned long& size, datetime const& value);
};

// Reads AAAA-MM-DDThh:mm:ss followed by "+hh:mm", "-hh:mm", "Z" or nothing
// (offset 0, as some older answers write dhRecbto), with optional fractional
// seconds after the seconds.
template <>
struct VELK_EXPORT value_converter<datetime> {
    static converter_status make_value(datetime& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core

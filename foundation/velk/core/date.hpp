#pragma once

#include <velk/core/converter.hpp>
#include <velk/core/export.hpp>

namespace velk::core {
inline namespace v3 {

// A calendar date. The default date is day 0 of month 0 of year 0: a
// placeholder, with no text form.
class VELK_EXPORT date {
public:
    date() = default;
    date(unsigned int day, unsigned int month, int year) : day_(day), month_(month), year_(year) {}

    unsigned int get_day() const { return day_; }
    unsigned int get_month() const { return month_; }
    int get_year() const { return year_; }

    // A real day of the proleptic Gregorian calendar, years 0 to 9999.
    bool is_valid() const;

    bool operator==(date const&) const = default;

private:
    unsigned int day_ = 0;
    unsigned int month_ = 0;
    int year_ = 0;
};

// AAAA-MM-DD, the form of the NF-e date tags. A date that is not a real day
// (or lies outside years 0 to 9999) has no text form.
template <>
struct VELK_EXPORT chars_converter<date> {
    static converter_status make_chars(char* buffer, unsigned long& size, date const& value);
};

template <>
struct VELK_EXPORT value_converter<date> {
    static converter_status make_value(date& value, char const* text, unsigned long size);
};

}  // namespace v3
}  // namespace velk::core

#include <velk/core/datetime.hpp>

#include <cstdio>

namespace velk::core {
inline namespace v3 {

namespace {

bool is_leap(int year)
{
    return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

unsigned int days_in_month(unsigned int month, int year)
{
    static constexpr unsigned int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month == 2 && is_leap(year)) {
        return 29;
    }
    return days[month - 1];
}

// Reads exactly `count` decimal digits at text[at].
bool read_digits(char const* text, unsigned long at, unsigned long count, unsigned int& out)
{
    unsigned int value = 0;
    for (unsigned long i = 0; i < count; ++i) {
        char const c = text[at + i];
        if (c < '0' || c > '9') {
            return false;
        }
        value = value * 10 + static_cast<unsigned int>(c - '0');
    }
    out = value;
    return true;
}

bool read_date(char const* text, unsigned long size, date& out)
{
    unsigned int year = 0;
    unsigned int month = 0;
    unsigned int day = 0;
    if (size < 10 || !read_digits(text, 0, 4, year) || text[4] != '-' || !read_digits(text, 5, 2, month) ||
        text[7] != '-' || !read_digits(text, 8, 2, day)) {
        return false;
    }
    date const candidate(day, month, static_cast<int>(year));
    if (!candidate.is_valid()) {
        return false;
    }
    out = candidate;
    return true;
}

void put_digits(char*& out, unsigned int value, int count)
{
    for (int i = count - 1; i >= 0; --i) {
        out[i] = static_cast<char>('0' + value % 10);
        value /= 10;
    }
    out += count;
}

constexpr unsigned long date_length = 10;
constexpr unsigned long datetime_length = 25;

}  // namespace

bool date::is_valid() const
{
    return year_ >= 0 && year_ <= 9999 && month_ >= 1 && month_ <= 12 && day_ >= 1 &&
           day_ <= days_in_month(month_, year_);
}

bool time::is_valid() const
{
    return hours_ >= 0 && hours_ <= 23 && minutes_ <= 59 && seconds_ <= 59 && milliseconds_ <= 999;
}

converter_status chars_converter<date>::make_chars(char* buffer, unsigned long& size, date const& value)
{
    if (!value.is_valid()) {
        return converter_status::invalid_value;
    }
    if (size < date_length) {
        size = date_length;
        return converter_status::buffer_too_small;
    }
    char* out = buffer;
    put_digits(out, static_cast<unsigned int>(value.get_year()), 4);
    *out++ = '-';
    put_digits(out, value.get_month(), 2);
    *out++ = '-';
    put_digits(out, value.get_day(), 2);
    size = date_length;
    return converter_status::done;
}

converter_status value_converter<date>::make_value(date& value, char const* text, unsigned long size)
{
    if (size != date_length || !read_date(text, size, value)) {
        return converter_status::invalid_value;
    }
    return converter_status::done;
}

converter_status chars_converter<datetime>::make_chars(char* buffer, unsigned long& size, datetime const& value)
{
    int const offset = value.get_utc_offset();
    if (!value.get_date().is_valid() || !value.get_time().is_valid() || offset <= -24 * 60 || offset >= 24 * 60) {
        return converter_status::invalid_value;
    }
    if (size < datetime_length) {
        size = datetime_length;
        return converter_status::buffer_too_small;
    }
    unsigned long date_size = date_length;
    chars_converter<date>::make_chars(buffer, date_size, value.get_date());
    char* out = buffer + date_length;
    *out++ = 'T';
    put_digits(out, static_cast<unsigned int>(value.get_time().get_hours()), 2);
    *out++ = ':';
    put_digits(out, value.get_time().get_minutes(), 2);
    *out++ = ':';
    put_digits(out, value.get_time().get_seconds(), 2);
    *out++ = offset < 0 ? '-' : '+';
    unsigned int const magnitude = static_cast<unsigned int>(offset < 0 ? -offset : offset);
    put_digits(out, magnitude / 60, 2);
    *out++ = ':';
    put_digits(out, magnitude % 60, 2);
    size = datetime_length;
    return converter_status::done;
}

converter_status value_converter<datetime>::make_value(datetime& value, char const* text, unsigned long size)
{
    date day;
    if (size < 19 || !read_date(text, size, day) || text[10] != 'T') {
        return converter_status::invalid_value;
    }
    unsigned int hours = 0;
    unsigned int minutes = 0;
    unsigned int seconds = 0;
    if (!read_digits(text, 11, 2, hours) || text[13] != ':' || !read_digits(text, 14, 2, minutes) ||
        text[16] != ':' || !read_digits(text, 17, 2, seconds)) {
        return converter_status::invalid_value;
    }
    unsigned long at = 19;
    unsigned int milliseconds = 0;
    if (at < size && text[at] == '.') {
        ++at;
        unsigned long const first = at;
        unsigned int scale = 100;
        while (at < size && text[at] >= '0' && text[at] <= '9') {
            milliseconds += static_cast<unsigned int>(text[at] - '0') * scale;
            scale /= 10;
            ++at;
        }
        if (at == first) {
            return converter_status::invalid_value;
        }
    }
    int offset = 0;
    if (at < size) {
        if (text[at] == 'Z' && at + 1 == size) {
            offset = 0;
        } else if ((text[at] == '+' || text[at] == '-') && size - at == 6 && text[at + 3] == ':') {
            unsigned int offset_hours = 0;
            unsigned int offset_minutes = 0;
            if (!read_digits(text, at + 1, 2, offset_hours) || !read_digits(text, at + 4, 2, offset_minutes) ||
                offset_hours > 23 || offset_minutes > 59) {
                return converter_status::invalid_value;
            }
            offset = static_cast<int>(offset_hours * 60 + offset_minutes);
            if (text[at] == '-') {
                offset = -offset;
            }
        } else {
            return converter_status::invalid_value;
        }
    }
    time const clock(static_cast<int>(hours), minutes, seconds, milliseconds);
    if (!clock.is_valid()) {
        return converter_status::invalid_value;
    }
    value = datetime(day, clock, offset);
    return converter_status::done;
}

}  // namespace v3
}  // namespace velk::core

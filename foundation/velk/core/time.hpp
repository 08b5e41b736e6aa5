#pragma once

#include <velk/core/export.hpp>

namespace velk::core {
inline namespace v3 {

// A time of day, to the millisecond.
class VELK_EXPORT time {
public:
    time() = default;
    time(int hours, unsigned int minutes, unsigned int seconds, unsigned int milliseconds)
        : hours_(hours), minutes_(minutes), seconds_(seconds), milliseconds_(milliseconds)
    {
    }

    int get_hours() const { return hours_; }
    unsigned int get_minutes() const { return minutes_; }
    unsigned int get_seconds() const { return seconds_; }
    unsigned int get_milliseconds() const { return milliseconds_; }

    // 00:00:00.000 to 23:59:59.999.
    bool is_valid() const;

    bool operator==(time const&) const = default;

private:
    int hours_ = 0;
    unsigned int minutes_ = 0;
    unsigned int seconds_ = 0;
    unsigned int milliseconds_ = 0;
};

}  // namespace v3
}  // namespace velk::core

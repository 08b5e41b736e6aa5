#pragma once

#include <chrono>
#include <cstddef>
#include <mutex>

namespace velk::tools::tarn {

// A one-line progress bar on standard error, drawn only when standard error
// is a terminal: "[#####.....] 512/1000  48.3 notas/s". Safe from several
// threads.
class progress_bar {
public:
    explicit progress_bar(std::size_t total);
    ~progress_bar();

    void advance();

private:
    void draw();

    std::size_t total_;
    std::size_t done_ = 0;
    bool shown_;
    std::chrono::steady_clock::time_point start_;
    std::chrono::steady_clock::time_point last_draw_;
    std::mutex mutex_;
};

}  // namespace velk::tools::tarn

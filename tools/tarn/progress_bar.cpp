#include "progress_bar.hpp"

#include <unistd.h>

#include <cstdio>
#include <string>

namespace velk::tools::tarn {

namespace {

constexpr std::size_t width = 30;
constexpr auto redraw_every = std::chrono::milliseconds(100);

}  // namespace

progress_bar::progress_bar(std::size_t total)
    : total_(total), shown_(total > 1 && isatty(STDERR_FILENO) == 1), start_(std::chrono::steady_clock::now())
{
}

progress_bar::~progress_bar()
{
    if (shown_) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
    }
}

void progress_bar::advance()
{
    std::lock_guard<std::mutex> const lock(mutex_);
    ++done_;
    auto const now = std::chrono::steady_clock::now();
    if (shown_ && (now - last_draw_ >= redraw_every || done_ == total_)) {
        last_draw_ = now;
        draw();
    }
}

void progress_bar::draw()
{
    std::size_t const filled = total_ == 0 ? width : done_ * width / total_;
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
    std::fprintf(stderr, "\r[%s%s] %zu/%zu  %.1f notas/s", std::string(filled, '#').c_str(),
                 std::string(width - filled, '.').c_str(), done_, total_, seconds > 0 ? done_ / seconds : 0.0);
    std::fflush(stderr);
}

}  // namespace velk::tools::tarn

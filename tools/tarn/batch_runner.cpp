#include "batch_runner.hpp"

#include "progress_bar.hpp"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <thread>

namespace velk::tools::tarn {

namespace {

// Notes issued before the process counts as warm: connections, parsers and
// allocators have reached their working size.
constexpr std::size_t warm_after = 50;

std::string fixed(double value, char const* format)
{
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

}  // namespace

batch_runner::outcome batch_runner::run(std::vector<std::filesystem::path> const& files) const
{
    outcome result;
    result.notes.resize(files.size());
    resource_usage const before = resource_usage::now();
    resource_usage warm = before;
    resource_usage last = before;
    std::mutex sampling;
    std::atomic<std::size_t> next{0};
    std::atomic<std::size_t> finished{0};
    auto const start = std::chrono::steady_clock::now();
    {
        progress_bar bar(files.size());
        auto const work = [&] {
            for (std::size_t i = next++; i < files.size(); i = next++) {
                result.notes[i] = issuer_.issue(files[i]);
                bar.advance();
                std::size_t const done = ++finished;
                if (done == std::min(warm_after, files.size()) || done == files.size()) {
                    std::lock_guard<std::mutex> const lock(sampling);
                    resource_usage const sample = resource_usage::now();
                    warm = done == std::min(warm_after, files.size()) ? sample : warm;
                    last = done == files.size() ? sample : last;
                }
            }
        };
        unsigned const threads = static_cast<unsigned>(std::min<std::size_t>(jobs_, files.size()));
        if (threads <= 1) {
            work();
        } else {
            std::vector<std::thread> workers;
            for (unsigned t = 0; t < threads; ++t) {
                workers.emplace_back(work);
            }
            for (std::thread& worker : workers) {
                worker.join();
            }
        }
    }
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    std::size_t authorized = 0;
    std::size_t refused = 0;
    for (issued_note const& note : result.notes) {
        result.status = worst(result.status, note.status);
        authorized += note.status == exit_status::ok ? 1 : 0;
        refused += note.status == exit_status::refused ? 1 : 0;
    }
    result.summary =
        json_value::object()
            .set("notas", json_value::number(static_cast<std::uint64_t>(files.size())))
            .set("autorizadas", json_value::number(static_cast<std::uint64_t>(authorized)))
            .set("recusadas", json_value::number(static_cast<std::uint64_t>(refused)))
            .set("falhas", json_value::number(static_cast<std::uint64_t>(files.size() - authorized - refused)))
            .set("jobs", json_value::number(jobs_))
            .set("segundos", json_value::decimal(fixed(seconds, "%.3f")))
            .set("notas_por_segundo", json_value::decimal(fixed(seconds > 0 ? files.size() / seconds : 0.0, "%.1f")))
            .set("recursos", json_value::object()
                                 .set("inicio", before.to_json())
                                 .set("aquecido", warm.to_json())
                                 .set("fim", last.to_json()));
    return result;
}

}  // namespace velk::tools::tarn

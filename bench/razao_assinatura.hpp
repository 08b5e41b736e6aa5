#pragma once

// Every measure beside one RSA-2048 signature of the same run: the console
// gains a column "x_rsa", the measure's CPU time over that of the benchmark
// named rsa_2048_signature (registered first) with the same threads and the
// same repetition or aggregate. The target of the library is a ratio, never a
// time, since the machine that runs it is not known.
//
// A measure run with several threads gains a column "per_thread_gain": its
// items per second over those of the same measure with one thread, per
// added thread (2 threads doing twice the work of one give 2).
//
// The programs that use it call VELK_BENCHMARK_MAIN_RAZAO() instead of
// BENCHMARK_MAIN().

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace velk::bench {

class razao_assinatura_reporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(std::vector<Run> const& reports) override
    {
        std::vector<Run> with_ratio = reports;
        for (Run& run : with_ratio) {
            // The spread of a measure has no ratio.
            if (run.run_type == Run::RT_Aggregate &&
                (run.aggregate_name == "stddev" || run.aggregate_name == "cv")) {
                continue;
            }
            auto const key = std::make_tuple(run.threads, run.repetition_index, run.aggregate_name);
            double const time = per_iteration(run);
            if (run.run_name.function_name.rfind("rsa_2048_signature", 0) == 0) {
                signature_[key] = time;
            }
            auto const found = signature_.find(key);
            if (found != signature_.end() && found->second > 0) {
                run.counters["x_rsa"] = benchmark::Counter(time / found->second);
            }
            auto const items = run.counters.find("items_per_second");
            if (items != run.counters.end()) {
                auto const family = std::make_tuple(run.run_name.function_name + run.run_name.args,
                                                    run.repetition_index, run.aggregate_name);
                if (run.threads == 1) {
                    one_thread_[family] = items->second.value;
                } else if (auto const one = one_thread_.find(family); one != one_thread_.end() && one->second > 0) {
                    run.counters["per_thread_gain"] = benchmark::Counter(items->second.value / one->second);
                }
            }
        }
        ConsoleReporter::ReportRuns(with_ratio);
    }

private:
    // CPU time of one iteration in seconds; with several threads the wall
    // time, as throughput is what threads buy.
    static double per_iteration(Run const& run)
    {
        double const accumulated = run.threads > 1 ? run.real_accumulated_time : run.cpu_accumulated_time;
        return run.iterations == 0 ? 0.0 : accumulated / static_cast<double>(run.iterations);
    }

    std::map<std::tuple<int, int64_t, std::string>, double> signature_;
    std::map<std::tuple<std::string, int64_t, std::string>, double> one_thread_;
};

}  // namespace velk::bench

#define VELK_BENCHMARK_MAIN_RAZAO()                                       \
    int main(int argc, char** argv)                                       \
    {                                                                     \
        benchmark::Initialize(&argc, argv);                               \
        if (benchmark::ReportUnrecognizedArguments(argc, argv)) {         \
            return 1;                                                     \
        }                                                                 \
        velk::bench::razao_assinatura_reporter reporter;                  \
        benchmark::RunSpecifiedBenchmarks(&reporter);                     \
        benchmark::Shutdown();                                            \
        return 0;                                                         \
    }                                                                     \
    int main(int, char**)

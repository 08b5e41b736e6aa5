#!/usr/bin/env bash
# Sets up a Debian 12 machine, builds, and runs the demo or the tests.
#
#   ./build.sh demo     install missing packages, build (build/), run the demo
#   ./build.sh test     the same set-up, then the whole test suite, twice: the
#                       normal build (build/) and the AddressSanitizer +
#                       UndefinedBehaviorSanitizer build (build-sanitize/)
#   ./build.sh tsan     the ThreadSanitizer build (build-tsan/) of the library's
#                       tests, and the exchanges with the simulator under it,
#                       the concurrent ones among them
#   ./build.sh bench    build and run the benchmarks (bench/)
#   ./build.sh fuzz     build the fuzz programs of fuzz/ with clang, libFuzzer,
#                       AddressSanitizer and UndefinedBehaviorSanitizer
#                       (build-fuzz/), and run each in turn, at the lowest
#                       priority, from its corpus in fuzz/corpus/<name>/
#
# Options for test: --no-sanitize skips the second build.
# Options for tsan: --all builds everything and runs the whole suite.
# Options for fuzz: --seconds N runs each program N seconds (default 60);
#                   --merge adds to fuzz/corpus/ only the inputs found that
#                   reach new code; names of programs run only those.
#                   Findings are kept in build-fuzz/findings/<name>/.
set -euo pipefail
cd "$(dirname "$0")"

packages=(
    g++ cmake ninja-build pkg-config
    libxml2-dev libssl-dev libcurl4-openssl-dev libprotobuf-dev protobuf-compiler
    libgtest-dev libgmock-dev libbenchmark-dev
    libcpp-httplib-dev
    openssl curl xmlsec1 libxml2-utils
)

ensure_packages() {
    local missing=()
    for package in "${packages[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$package")
        fi
    done
    if ((${#missing[@]})); then
        local sudo=""
        if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
        echo "== Installing Debian packages: ${missing[*]}"
        $sudo apt-get update
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
    fi
}

jobs=$(nproc)

# Line tables only: enough for backtraces, profiles and the sanitizers'
# reports, and the suite compiles in about two thirds of the time that full
# debug information takes.
release=(-DCMAKE_BUILD_TYPE=RelWithDebInfo "-DCMAKE_C_FLAGS_RELWITHDEBINFO=-O2 -g1 -DNDEBUG"
         "-DCMAKE_CXX_FLAGS_RELWITHDEBINFO=-O2 -g1 -DNDEBUG")
debug=(-DCMAKE_BUILD_TYPE=Debug -DCMAKE_C_FLAGS_DEBUG=-g1 -DCMAKE_CXX_FLAGS_DEBUG=-g1)

build() {
    local dir=$1
    shift
    cmake -S . -B "$dir" -G Ninja "$@"
    cmake --build "$dir" -j "$jobs"
}

run_tests() {
    local dir=$1
    ctest --test-dir "$dir" --output-on-failure -j "$jobs" --timeout 300
}

command=${1:-}
shift || true
case "$command" in
demo)
    ensure_packages
    build build "${release[@]}"
    ./build/tools/demo/velk-demo "$@"
    ;;
test)
    sanitize=1
    for option in "$@"; do
        case "$option" in
        --no-sanitize) sanitize=0 ;;
        *) echo "unknown option: $option" >&2; exit 2 ;;
        esac
    done
    ensure_packages
    build build "${release[@]}"
    run_tests build
    if ((sanitize)); then
        build build-sanitize "${debug[@]}" -DVELK_SANITIZE=ON -DVELK_BUILD_BENCH=OFF
        run_tests build-sanitize
    fi
    ;;
tsan)
    everything=0
    for option in "$@"; do
        case "$option" in
        --all) everything=1 ;;
        *) echo "unknown option: $option" >&2; exit 2 ;;
        esac
    done
    ensure_packages
    tsan_options=(-DCMAKE_BUILD_TYPE=Debug -DVELK_TSAN=ON -DVELK_BUILD_BENCH=OFF)
    # The simulator runs under it too, as a child of the tests.
    export TSAN_OPTIONS="halt_on_error=1 second_deadlock_stack=1 suppressions=$PWD/tools/sefaz-sim/tsan-suppressions.txt ${TSAN_OPTIONS:-}"
    if ((everything)); then
        build build-tsan "${tsan_options[@]}"
        run_tests build-tsan
    else
        cmake -S . -B build-tsan -G Ninja "${tsan_options[@]}"
        cmake --build build-tsan -j "$jobs" --target velk-erp-tarn-tests velk-sefaz-sim
        ./build-tsan/tests/velk-erp-tarn-tests --gtest_filter='status_autorizador_*'
    fi
    ;;
bench)
    ensure_packages
    build build "${release[@]}"
    for program in build/bench/bench-*; do
        echo "== $program"
        "$program" "$@"
    done
    ;;
fuzz)
    seconds=60
    merge=0
    chosen=()
    while (($#)); do
        case "$1" in
        --seconds) seconds=${2:?--seconds needs a number}; shift ;;
        --merge) merge=1 ;;
        -*) echo "unknown option: $1" >&2; exit 2 ;;
        *) chosen+=("$1") ;;
        esac
        shift
    done
    ensure_packages
    CC=clang CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVELK_FUZZ=ON \
        -DVELK_BUILD_TESTS=OFF -DVELK_BUILD_TOOLS=OFF -DVELK_BUILD_BENCH=OFF
    if ((${#chosen[@]} == 0)); then
        for program in fuzz/*.cpp; do
            chosen+=("$(basename "$program" .cpp)")
        done
    fi
    cmake --build build-fuzz -j "$jobs" --target "${chosen[@]/#/fuzz-}"
    export ASAN_OPTIONS="detect_leaks=1 ${ASAN_OPTIONS:-}"
    export UBSAN_OPTIONS="print_stacktrace=1 halt_on_error=1 ${UBSAN_OPTIONS:-}"
    failed=()
    for name in "${chosen[@]}"; do
        found=build-fuzz/corpus/$name
        findings=build-fuzz/findings/$name
        mkdir -p "$found" "$findings" "fuzz/corpus/$name"
        options=(-max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048
            -artifact_prefix="$findings/" -print_final_stats=1)
        if grep -q "^// fuzz-dictionary: xml" "fuzz/$name.cpp"; then
            options+=(-dict=fuzz/xml.dict -max_len=65536)
        fi
        echo "== fuzz-$name, $seconds s"
        # One program at a time, at the lowest priority: the machine's other
        # work keeps the processors it needs.
        if ! nice -n 19 "build-fuzz/fuzz/fuzz-$name" "${options[@]}" "$found" "fuzz/corpus/$name"; then
            failed+=("$name")
        fi
        if ((merge)); then
            rm -rf "build-fuzz/merged/$name"
            mkdir -p "build-fuzz/merged/$name"
            nice -n 19 "build-fuzz/fuzz/fuzz-$name" -merge=1 -max_len=65536 "build-fuzz/merged/$name" \
                "fuzz/corpus/$name" "$found"
            rm -rf "fuzz/corpus/$name"
            mv "build-fuzz/merged/$name" "fuzz/corpus/$name"
        fi
    done
    if ((${#failed[@]})); then
        echo "== findings in: ${failed[*]} (build-fuzz/findings/)" >&2
        exit 1
    fi
    ;;
*)
    sed -n '2,22p' "$0" | sed 's/^# \{0,1\}//'
    exit 2
    ;;
esac

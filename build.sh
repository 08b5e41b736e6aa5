#!/usr/bin/env bash
# Sets up a Debian 12 machine, builds, and runs the demo or the tests.
#
#   ./build.sh demo     install missing packages, build (build/), and run the
#                       road offline with tarn against the bundled simulator:
#                       an NFC-e and an NF-e issued, one cancelled, all checked
#                       (files in build/tarn-demo/, or the folder given)
#   ./build.sh test     the same set-up, then the whole test suite, twice: the
#                       normal build (build/) and the AddressSanitizer +
#                       UndefinedBehaviorSanitizer build (build-sanitize/)
#   ./build.sh tsan     the ThreadSanitizer build (build-tsan/) of the library's
#                       tests, and the exchanges with the simulator under it,
#                       the concurrent ones among them
#   ./build.sh bench    build and run the benchmarks (bench/)
#
# Options for test: --no-sanitize skips the second build.
# Options for tsan: --all builds everything and runs the whole suite.
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
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    tools/tarn/scripts/demo.sh "$@"
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
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    run_tests build
    if ((sanitize)); then
        build build-sanitize -DCMAKE_BUILD_TYPE=Debug -DVELK_SANITIZE=ON -DVELK_BUILD_BENCH=OFF
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
    build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    for program in build/bench/bench-*; do
        echo "== $program"
        "$program" "$@"
    done
    ;;
*)
    sed -n '2,17p' "$0" | sed 's/^# \{0,1\}//'
    exit 2
    ;;
esac

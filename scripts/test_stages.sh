# The stages of scripts/test.sh, which sources this file. Each runs its checks through `check` and `run_ctest`.
log=$PWD/build/log
mkdir -p "$log"
passed=0 failed=0 failures=()

export QT_QPA_PLATFORM=offscreen
unset DISPLAY WAYLAND_DISPLAY
command -v ccache >/dev/null && export CMAKE_CXX_COMPILER_LAUNCHER=ccache
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
command -v ld.lld >/dev/null && export LDFLAGS=-fuse-ld=lld
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/tests/lsan.supp:print_suppressions=0
jobs=$(nproc)

# check NAME COMMAND...: one check; its output goes to a log, of which a failure shows the end
check() {
    local name=$1 file
    shift
    file=$log/${name//[ \/]/_}.txt
    if "$@" >"$file" 2>&1; then
        passed=$((passed + 1))
        echo "ok      $name"
        return 0
    fi
    failed=$((failed + 1))
    failures+=("$name (see ${file#"$PWD"/})")
    echo "FAILED  $name"
    tail -n 60 "$file"
    return 1
}

# configure and build a preset; not counted when it works, one failure when it does not
build() {
    local preset=$1
    shift
    local before=$passed
    check "build $preset" bash -c 'cmake --preset "$1" && cmake --build --preset "$1" "${@:2}"' - "$preset" "$@" || return 1
    passed=$before
}

# run_ctest NAME PRESET OPTION...: counts what ctest counted
run_ctest() {
    local name=$1 preset=$2 file total bad
    shift 2
    file=$log/${name//[ \/]/_}.txt
    ctest --test-dir "build/$preset" -j "$jobs" --timeout 300 --output-on-failure --no-tests=error "$@" >"$file" 2>&1
    read -r bad total < <(sed -nE 's/.*tests passed, ([0-9]+) tests? failed out of ([0-9]+).*/\1 \2/p' "$file")
    if [ -z "${total:-}" ]; then
        bad=1 total=1
        tail -n 40 "$file"
    fi
    passed=$((passed + total - bad)) failed=$((failed + bad))
    echo "$name: $((total - bad)) passed, $bad failed"
    if [ "$bad" -gt 0 ]; then
        failures+=("$bad of $name (see ${file#"$PWD"/})")
        grep -vE '(Passed +[0-9.]+ sec$)|(^ +Start +[0-9]+:)' "$file" | tail -n 120
    fi
}

stage_layers() { check "layers" scripts/check_layers.sh; }

stage_format() {
    check "format" bash -c 'git ls-files -z "*.cpp" "*.h" | xargs -0 clang-format --dry-run -Werror'
    check "desktop file" desktop-file-validate packaging/valmerix.desktop
    check "metainfo" appstreamcli validate --no-net packaging/valmerix.metainfo.xml
}

stage_dev() { build dev && LC_ALL=C.UTF-8 run_ctest "tests" dev; }

# the walk of a whole case once more, in a window system
stage_xvfb() {
    build dev || return
    check "walk under Xvfb" env QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1600x1200x24" \
        build/dev/tests/walk/test_walk
}

# the same tests under the sanitizers, in the other locale that every machine has
stage_asan() {
    build asan && LC_ALL=C run_ctest "tests under sanitizers" asan -E "^tools\."
}

# each fuzzer for half a minute, as many at once as there are cores; a find fails the check of its name
stage_fuzz() {
    build fuzz --target fuzzers || return
    local fuzzer name
    find build/fuzz/tests/fuzz -maxdepth 1 -name 'fuzz_*' -type f -executable | sort >"$log/fuzzers.txt"
    check "fuzzers are there" test -s "$log/fuzzers.txt" || return
    xargs -P "$jobs" -I{} bash -c '
        name=$(basename {})
        {} -max_total_time=30 -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$0/$name." \
            >"$0/$name.run.txt" 2>&1
        echo $? >"$0/$name.code"' "$log" <"$log/fuzzers.txt"
    while read -r fuzzer; do
        name=$(basename "$fuzzer")
        check "$name" bash -c 'tail -n 30 "$0.run.txt"; exit "$(cat "$0.code")"' "$log/$name"
    done <"$log/fuzzers.txt"
}

# each source as it stands, with no precompiled header to hide a missing include
stage_tidy() {
    check "clang-tidy" bash -c 'cmake --preset tidy && scripts/tidy.py build/tidy "$1"' - "$jobs"
}

# short runs: they show that the benchmarks work and give the ratios to their baselines, not exact times
stage_bench() {
    build release --target benchmarks || return
    local program found=0
    while read -r program; do
        found=1
        check "$(basename "$program")" "$program" --benchmark_min_time=0.05 \
            --benchmark_out="$log/$(basename "$program").json" --benchmark_out_format=json
    done < <(find build/release -name 'bench_*' -type f -executable | sort)
    [ $found = 0 ] || python3 scripts/bench_ratios.py "$log"/bench_*.json
}

# the package as a user gets it: built from the release, checked, installed into a clean root and started there
stage_package() {
    build release --target valmerix valmerix-informe valmerix-muestras manual package_papers || return
    check "package is built" bash -c 'cd build/release && rm -f ./*.deb && cpack -G DEB' || return
    check "package installs and drafts" scripts/check_package.sh build/release/valmerix_*.deb build/release/bin
}

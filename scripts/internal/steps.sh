# Steps of a script, for `source`: each runs quietly and is named when it fails.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
cd "$root"
logs=$root/build/log

# step NAME COMMAND...: runs the command with its output in build/log/NAME.log. When it fails, prints the end of the log and ends the script.
step() {
    local name=$1 status=0
    shift
    mkdir -p "$logs"
    local log="$logs/${name// /-}.log"
    "$@" >"$log" 2>&1 </dev/null || status=$?
    [ "$status" = 0 ] && return
    {
        echo "$(basename "$0"): the step '$name' failed (exit status $status). Its command was: $*"
        echo "The whole log is in $log; it ends:"
        tail -n 40 "$log"
    } >&2
    exit 1
}

# build PRESET [TARGET...]: configures and builds into build/PRESET. With ZEL_WERROR=ON in the environment warnings are errors.
build() {
    local preset=$1
    shift
    step "configure $preset" cmake --preset "$preset" ${ZEL_WERROR:+-DZEL_WERROR="$ZEL_WERROR"}
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    step "build $preset" cmake --build --preset "$preset" ${targets[@]+"${targets[@]}"}
}

# run_tests PRESET: runs the tests of build/PRESET and prints ctest's summary.
run_tests() {
    step "test $1" ctest --preset "$1" --timeout 300
    sed -n '/^[0-9]*% tests passed/,$p' "$logs/test-$1.log"
}

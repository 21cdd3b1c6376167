# Sourced by the tool's test scripts: runs the tool named by $tool and records what went wrong.
failures=0
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# run [--stdin TEXT] ARGS...: runs the tool; sets out, err and status.
run() {
    local input=""
    if [ "${1:-}" = "--stdin" ]; then
        input=$2
        shift 2
    fi
    out=$(printf '%s' "$input" | "$tool" "$@" 2>"$work/err")
    status=$?
    err=$(cat "$work/err")
}

fail() {
    printf 'FAIL: %s\n  exit status: %s\n  stdout: %s\n  stderr: %s\n' "$1" "$status" "$out" "$err"
    failures=$((failures + 1))
}

# expect NAME STATUS STDOUT [STDERR]: exact exit status and output, standard error empty unless given.
expect() {
    if [ "$status" != "$2" ] || [ "$out" != "$3" ] || [ "$err" != "${4:-}" ]; then
        fail "$1 (wanted status $2, stdout '$3' and stderr '${4:-}')"
    fi
}

# finish: the exit status of the script.
finish() {
    if [ "$failures" -ne 0 ]; then
        echo "$failures check(s) failed"
        exit 1
    fi
    echo "all checks passed"
}

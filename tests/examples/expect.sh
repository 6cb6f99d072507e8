# What the tests of examples check; they read it in, with the program as their own argument, and
# end with `[ "$failures" = 0 ]`.
program=$1
failures=0

expect() { # exit code, everything printed on both streams, arguments of the program
    code=$1
    printed=$2
    shift 2
    actual=$("$program" "$@" 2>&1)
    actual_code=$?
    if [ "$actual_code" != "$code" ] || [ "$actual" != "$printed" ]; then
        printf '%s %s: exit code %s, not %s; printed:\n%s\nnot:\n%s\n' \
            "$program" "$*" "$actual_code" "$code" "$actual" "$printed"
        failures=$((failures + 1))
    fi
}

expect_complaint_on_stderr() { # arguments of the program
    if [ -n "$("$program" "$@" 2>/dev/null)" ]; then
        echo "$program $*: prints on the standard output"
        failures=$((failures + 1))
    fi
}

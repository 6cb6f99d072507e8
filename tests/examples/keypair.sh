#!/bin/sh
# What qel-keypair prints, and its exit codes. Takes the path of the program.
set -u
program=$1
failures=0

fail() {
    echo "$1"
    failures=$((failures + 1))
}

# Bad options: exit code 2, one line on the standard error, nothing on the standard output.
refuses() { # the line, arguments of the program
    line=$1
    shift
    printed=$("$program" "$@" 2>/dev/null)
    code=$?
    complaint=$("$program" "$@" 2>&1 >/dev/null)
    [ "$code" = 2 ] || fail "$*: exit code $code"
    [ -z "$printed" ] || fail "$*: printed $printed"
    [ "$complaint" = "qel-keypair: $line" ] || fail "$*: complained '$complaint'"
}

bits='--bits takes a whole number from 32 to 16384, not'
refuses "$bits 'x'" --bits x
refuses "$bits ''" --bits ''
refuses "$bits '31'" --bits 31
refuses "$bits '16385'" --bits 16385
refuses "$bits '64 '" --bits '64 '
refuses '--bits needs a value' --bits
seeds='--seeds takes integers with commas between them, not'
refuses "$seeds '1,,2'" --seeds 1,,2
refuses "$seeds '2147483648'" --seeds 2147483648
refuses "$seeds ''" --seeds ''
refuses '--message takes a text that is not empty' --message ''
refuses "there is no option '--width'" --width 64
refuses "there is no option 'hello'" hello

# A message comes back, as one digit of the modulus or as many.
comes_back() { # message, further arguments
    message=$1
    shift
    printed=$("$program" --message "$message" "$@") || fail "$message: exit code $?"
    for line in "  as a text   $message" 'The message came back, and both keys survive as text and in files.'; do
        case $printed in
        *"$line"*) ;;
        *) fail "$message: no line '$line' in: $printed" ;;
        esac
    done
}

# The time that the keys took is told, in milliseconds.
"$program" --bits 64 --seeds 1,2 |
    grep -Eq '^Key pair of 64 bits from the seeds 1,2, created in [0-9]+[.][0-9] ms$' ||
    fail 'no time'

# Files stand in a folder of their own for a moment; nothing is left of it.
temporary=$(mktemp -d)
export TMPDIR="$temporary"
comes_back 'short' --bits 128
comes_back 'much longer than the modulus, so digit by digit' --bits 64 --seeds 3,-4
comes_back "$(printf 'caf\303\251')" --bits 64 --seeds 1

# Both halves of these seeds draw the same prime: nothing can come back, and it is said so.
"$program" --bits 64 --seeds 5,5 >/dev/null && fail 'equal primes: exit code 0'

# A folder that cannot be made is told from keys that do not agree.
complaint=$(TMPDIR=/proc "$program" --bits 64 2>&1 >/dev/null) && fail 'no folder: exit code 0'
case $complaint in
"qel-keypair: cannot make the folder /proc/"*) ;;
*) fail "no folder: complained '$complaint'" ;;
esac

# Above 4096 bits the seconds are counted on the terminal, and only there. These seeds find their
# primes soon.
written=$("$program" --bits 4097 --seeds 12,112 2>&1 >/dev/null)
[ -z "$written" ] || fail "no terminal: wrote $written"

on_a_terminal() { # arguments of the program
    script -qec "'$program' $* >/dev/null" /dev/null </dev/null
}

erase=$(printf '\r\033[K')
if script -qec true /dev/null </dev/null >/dev/null 2>&1; then # Linux, with pseudo-terminals
    written=$(on_a_terminal --bits 4097 --seeds 12,112)
    case $written in
    "${erase}Creating keys of 4097 bits: 0 s$erase"*) ;;
    *) fail "terminal: wrote '$written'" ;;
    esac
    [ "${written%"$erase"}" != "$written" ] || fail "terminal: left '$written'"
    written=$(on_a_terminal --bits 4096 --seeds 32,132)
    [ -z "$written" ] || fail "terminal, 4096 bits: wrote '$written'"
fi

rmdir "$temporary" || fail "left behind in $temporary: $(ls -a "$temporary")"

[ "$failures" = 0 ]

#!/bin/sh
# What qel-licence prints, and its exit codes. Takes the path of the program.
set -u
. "$(dirname "$0")/expect.sh"

usage='usage: qel-licence key | sign FILE DD/MM/YYYY TEXT | check FILE'
fail() {
    echo "$1"
    failures=$((failures + 1))
}

temporary=$(mktemp -d)
cd "$temporary" || exit 1

# A licence is signed, and checks, with and without a folder that must be made.
expect 0 'jane.licence: Jane_Doe until 31/12/2099' sign jane.licence 31/12/2099 'Jane Doe'
expect 0 'Jane_Doe, valid until 31/12/2099' check jane.licence
expect 0 'a/b/jane.licence: Jane_Doe until 31/12/2099' sign a/b/jane.licence 31/12/2099 'Jane Doe'
expect 0 'Jane_Doe, valid until 31/12/2099' check "$temporary/a/b/jane.licence"
# The same licence is the same file, and a licence is replaced by another.
cmp -s jane.licence a/b/jane.licence || fail 'one licence, two files'
long=$(printf '%064d' 0)
expect 0 "jane.licence: $long until 29/02/2096" sign jane.licence 29/02/2096 "$long"
expect 0 "$long, valid until 29/02/2096" check jane.licence

# The last day is not over yet; the day before is.
today=$(date -u +%d/%m/%Y)
expect 0 "today.licence: x until $today" sign today.licence "$today" x
[ "$today" != "$(date -u +%d/%m/%Y)" ] || expect 0 "x, valid until $today" check today.licence
expect 0 'old.licence: x until 31/12/2012' sign old.licence 31/12/2012 x
expect 4 'qel-licence: old.licence: expired on 31/12/2012' check old.licence

refuses() { # exit code, why, what to replace in a good licence, by what
    sed "s|$3|$4|" a/b/jane.licence >changed.licence
    ! cmp -s a/b/jane.licence changed.licence || fail "nothing replaced: $3"
    expect "$1" "qel-licence: changed.licence: $2" check changed.licence
}

# A changed text, day or signature.
changed='has been changed: the signature is not that of its text'
refuses 3 "$changed" 'Jane_Doe' 'John_Doe'
refuses 3 "$changed" '31/12/2099' '31/12/3099'
refuses 3 "$changed" ';\([0-9a-f]*\)$' ';1\1'

# A damaged file: a part missing or too many, a day that is none, a signature that is no number.
damaged='is damaged, or no licence'
refuses 5 "$damaged" 'Jane_Doe;' ''
refuses 5 "$damaged" 'Jane_Doe;' ';'
refuses 5 "$damaged" '_Doe;' ' Doe;'
refuses 5 "$damaged" '31/12/2099' '31/02/2099'
refuses 5 "$damaged" '31/12/2099' '31122099'
refuses 5 "$damaged" ';[0-9a-f]*$' ';'
refuses 5 "$damaged" ';\([0-9a-f]*\)$' ';0\1'
refuses 5 "$damaged" ';\([0-9a-f]*\)$' ';\1g'
refuses 5 "$damaged" '$' ';'
: >empty.licence
expect 5 "qel-licence: empty.licence: $damaged" check empty.licence

expect 6 'qel-licence: none.licence: cannot be read' check none.licence
expect 6 'qel-licence: a: cannot be read' check a
expect 1 'qel-licence: jane.licence/x: cannot be written' sign jane.licence/x 31/12/2099 x
expect 1 'qel-licence: a: cannot be written' sign a 31/12/2099 x

text='a text has 1 to 64 bytes, and no semicolons, tabs or line ends'
expect 2 "qel-licence: '': $text" sign x 31/12/2099 ''
expect 2 "qel-licence: '0$long': $text" sign x 31/12/2099 "0$long"
expect 2 "qel-licence: 'a;b': $text" sign x 31/12/2099 'a;b'
for day in 31/02/2099 31122099 21-11-2012 31/12/0999 tomorrow; do
    expect 2 "qel-licence: '$day': is no day; write DD/MM/YYYY" sign x "$day" x
done
expect 0 "$usage" --help
expect 2 "$usage"
expect 2 "$usage" sign x
expect 2 "$usage" check
expect 2 "$usage" open x

# The key that applications hold: the one that has checked the signatures above.
case $("$program" key) in
5,e35c*) ;;
*) fail 'another key for applications' ;;
esac
expect_complaint_on_stderr check none.licence

[ ! -e x ] || fail 'a file of a refused licence'
rm -rf "$temporary"
[ "$failures" = 0 ]

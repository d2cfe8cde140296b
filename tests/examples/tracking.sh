#!/bin/sh
# Runs the program tracking: tracking.sh PROGRAM PROGRAM_BY_WRONG_SOLVER
set -u
program=$(realpath "$1")
wrong=$(realpath "$2")
directory=$(mktemp -d)
trap 'rm -rf "$directory"' EXIT
cd "$directory" || exit 1

failures=0
complain() {
    echo "FAILED: $*" >&2
    failures=$((failures + 1))
}

# accepts NAME ARGUMENT...: the program runs through and draws NAME.png.
accepts() {
    name=$1
    shift
    "$program" -o "$name.png" "$@" >"$name.out" 2>"$name.err" ||
        complain "$name: exit code $?: $(cat "$name.err")"
    # Signature, width and height of a PNG.
    [ "$(od -An -tx1 -N8 "$name.png" | tr -d ' ')" = 89504e470d0a1a0a ] &&
        [ "$(od -An -tx1 -j16 -N8 "$name.png" | tr -d ' ')" = 000005dc000003e8 ] ||
        complain "$name: no picture of 1500x1000"
}

# reports NAME KEY CONDITION: in the report, the awk condition holds for the line that begins so.
reports() {
    awk -v key="$2" '$1 == key { found = 1; if (!('"$3"')) bad = 1 } END { exit bad || !found }' \
        "$1.out" || complain "$1: the report's $2 is not $3: $(grep "^$2" "$1.out")"
}

numbers() {
    grep -v '^threads\|^speed\|^written' "$1.out"
}

# same NAME NAME: apart from speed, the runs have the same results.
same() {
    [ "$(numbers "$1")" = "$(numbers "$2")" ] || complain "reports of $1 and $2 differ"
    cmp -s "$1.png" "$2.png" || complain "$1.png and $2.png differ"
}

# fails PROGRAM MESSAGE ARGUMENT...: one line on stderr, and exit code 1.
fails() {
    which=$1
    message=$2
    shift 2
    "$which" "$@" >bad.out 2>bad.err
    code=$?
    [ $code -eq 1 ] || complain "$*: exit code $code"
    [ "$(cat bad.err)" = "tracking: $message" ] || complain "$*: $(cat bad.err)"
}

# refuses MESSAGE ARGUMENT...: fails without a report and without a picture.
refuses() {
    fails "$program" "$@"
    [ ! -s bad.out ] && [ ! -e tracking.png ] || complain "$*: output in spite of the fault"
}

# Filters halve the error, and know it, on any number of threads, or of those that really run.
accepts one --filters 1000 --steps 60 --threads 1
reports one filters '$2 == "1000," && $3 == 60'
reports one error '$2 > 15 && $2 < 0.6 * $7'
reports one NIS '$2 > $8 && $2 < $10 && $8 < 3 && $10 > 3 && $10 - $8 < 0.11'
for threads in 2 5; do
    accepts on$threads --filters 1000 --steps 60 --threads $threads
    reports on$threads threads "\$2 == $threads"
    same one on$threads
done
OMP_THREAD_LIMIT=1 accepts limited --filters 1000 --steps 60 --threads 5
same one limited

accepts other --filters 1000 --steps 60 --seed 5
[ "$(numbers one)" != "$(numbers other)" ] || complain "the seed has no effect"

# Few filters and few steps.
for size in '1 1' '1 2' '3 1' '7 50' '1 3000'; do
    # shellcheck disable=SC2086
    set -- $size
    accepts "size$1x$2" --filters "$1" --steps "$2" --threads 3
done

# A solver that is a little wrong is found out.
fails "$wrong" 'the filters are wrong: the mean of their normalised innovations squared (NIS) is far from what it has to be' \
    --filters 1000 --steps 60
grep -q '^NIS' bad.out || complain "no report on the wrong solver"

# Bad options.
rm -f tracking.png
while IFS='|' read -r arguments message; do
    # shellcheck disable=SC2086
    refuses "$message" $arguments
done <<EOF
--filters 0|--filters: Value 0 not in range 1 to 1000000
--filters -3|--filters: Value -3 not in range 1 to 1000000
--filters 99999999999999999999|--filters: Value 99999999999999999999 not in range 1 to 1000000
--steps 0|--steps: Value 0 not in range 1 to 100000
--steps 100001|--steps: Value 100001 not in range 1 to 100000
--steps ten|--steps: Value ten not in range 1 to 100000
--threads 0|--threads: Value 0 not in range 1 to 256
--seed -1|--seed: Value -1 not in range 0 to 2147483647
--no-such-option|The following argument was not expected: --no-such-option
--filters 2 --steps 2 -o missing/i.png|missing/i.png: cannot be written: No such file or directory
--filters 2 --steps 2 -o /dev/full|/dev/full: cannot be written: No space left on device
EOF

[ $failures -eq 0 ]

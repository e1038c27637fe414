# shellcheck shell=bash
# What the tests of commands share. To be sourced.
falliti=0

# attendo NAME EXPECTED FOUND
attendo()
{
    [[ $2 == "$3" ]] && return
    printf '%s\n  atteso:  %q\n  trovato: %q\n' "$1" "$2" "$3"
    falliti=$((falliti + 1))
}

# concludi: the end of the test; its code is the number of failures.
concludi()
{
    ((falliti == 0)) && echo "Tutto come atteso."
    exit "$falliti"
}

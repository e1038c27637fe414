# shellcheck shell=bash
# How the commands speak: in Italian to an operator (LINGUA=it), else in English. To be sourced.

# dice ITALIAN ENGLISH: one line for the reader, on standard error.
dice()
{
    if [[ ${LINGUA:-en} == it ]]; then
        printf '%s\n' "$1" >&2
    else
        printf '%s\n' "$2" >&2
    fi
}

# muori ITALIAN ENGLISH [CODE]: the same, and the end.
muori()
{
    dice "$1" "$2"
    exit "${3:-1}"
}

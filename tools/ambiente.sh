# shellcheck shell=bash
# What the commands at the top of the tree share: speaking, packages, building. To be sourced with CASA set to
# the top of the tree, and with LINGUA=it when an operator reads.

# shellcheck source=tools/voce.sh
source "${BASH_SOURCE[0]%/*}/voce.sh"

# pacchettiMancanti GROUP...: prints the packages of the groups that are not installed, one a line, behind their group.
pacchettiMancanti()
{
    local gruppo pacchetto gruppi=" $* "
    while read -r gruppo pacchetto; do
        [[ $gruppi == *" $gruppo "* ]] || continue
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$pacchetto" 2>/dev/null) == installed ]] ||
            printf '%s %s\n' "$gruppo" "$pacchetto"
    done < <(grep -v '^#' "$CASA/tools/pacchetti")
}

# diceMancanti LINES: what is going to be installed and what for, a line for each group.
diceMancanti()
{
    local gruppo inglese italiano pacchetti
    dice "Installo i pacchetti che mancano:" "Installing the missing packages:"
    while IFS='|' read -r gruppo inglese italiano; do
        read -r gruppo <<<"${gruppo#'#:'}"
        pacchetti=$(sed -n "s/^$gruppo //p" <<<"$1" | tr '\n' ' ')
        [[ -z $pacchetti ]] || dice " $italiano: ${pacchetti% }" " ${inglese% }: ${pacchetti% }"
    done < <(grep '^#:' "$CASA/tools/pacchetti")
}

# conPazienza COMMAND...: an apt-get, called again for as long as another program holds the lock of the packages, at most
# GIACENZA_ATTESA_PACCHETTI seconds (900). The lock of the package lists has no such patience in apt itself.
conPazienza()
{
    local fine=$((SECONDS + ${GIACENZA_ATTESA_PACCHETTI:-900})) errori chi="" prima="" esito
    while true; do
        esito=0
        { errori=$("$@" 2>&1 >&3) || esito=$?; } 3>&2
        if ((esito == 0)) || [[ $errori != *"Could not get lock"* && $errori != *"Unable to lock"* ]]; then
            [[ -z $errori ]] || printf '%s\n' "$errori" >&2
            return "$esito"
        fi
        chi=$(sed -nE 's/.*held by process ([0-9]+) \(([^)]*)\).*/\2, \1/p' <<<"$errori" | head -n 1)
        ((SECONDS < fine)) || muori \
            "Un altro programma${chi:+ ($chi)} usa ancora i pacchetti del sistema: riprovare quando ha finito." \
            "Another program${chi:+ ($chi)} still uses the system's packages: try again when it has finished."
        [[ ${chi:-?} == "$prima" ]] || dice \
            "Aspetto: un altro programma${chi:+ ($chi)} sta usando i pacchetti del sistema…" \
            "Waiting: another program${chi:+ ($chi)} is using the system's packages…"
        prima=${chi:-?}
        sleep 1
    done
}

# installaPacchetti GROUP...: installs what is missing of the groups, as root or through sudo; needs neither where nothing is.
installaPacchetti()
{
    command -v dpkg-query >/dev/null ||
        muori "Serve Debian 12: qui manca dpkg-query." "This needs Debian 12: there is no dpkg-query here."
    local mancanti nomi
    mancanti=$(pacchettiMancanti "$@")
    [[ -n $mancanti ]] || return 0
    mapfile -t nomi < <(cut -d ' ' -f 2 <<<"$mancanti")

    # In English: who holds a lock is read from what apt says.
    local comando=(env LC_ALL=C DEBIAN_FRONTEND=noninteractive apt-get -q)
    if ((EUID != 0)); then
        command -v sudo >/dev/null || muori \
            "Mancano dei pacchetti e qui non si è amministratori né c'è sudo. Chiedere: apt-get install ${nomi[*]}" \
            "Packages are missing, and this is neither root nor is there sudo. Ask for: apt-get install ${nomi[*]}"
        comando=(sudo "${comando[@]}")
    fi
    diceMancanti "$mancanti"
    conPazienza "${comando[@]}" update
    conPazienza "${comando[@]}" install -y --no-install-recommends "${nomi[@]}"
    # apt leaves no doubt only when asked again: a held package is skipped without an error.
    mancanti=$(pacchettiMancanti "$@")
    [[ -z $mancanti ]] || muori "Non installati: $(cut -d ' ' -f 2 <<<"$mancanti" | paste -sd ' ')" \
        "Not installed: $(cut -d ' ' -f 2 <<<"$mancanti" | paste -sd ' ')"
}

# costruisci PRESET [TARGET...]: configures and builds; what is up to date is left alone.
costruisci()
{
    local preset=$1
    shift
    dice "Costruisco ($preset)…" "Building ($preset)…"
    (
        cd "$CASA" || exit
        # Configured once, and when the presets have changed; for the rest the build looks after itself.
        [[ build/$preset/build.ninja -nt CMakePresets.json ]] || cmake --preset "$preset" >&2
        cmake --build "build/$preset" ${1:+--target "$@"} >&2
    )
}

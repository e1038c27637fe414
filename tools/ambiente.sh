# shellcheck shell=bash
# What the commands at the top of the tree share: speaking, packages, building. To be sourced with CASA set to
# the top of the tree, and with LINGUA=it when an operator reads.

# shellcheck source=tools/voce.sh
source "${BASH_SOURCE[0]%/*}/voce.sh"

# pacchettiMancanti GROUP...: prints the packages of the groups that are not installed, one a line.
pacchettiMancanti()
{
    local gruppo pacchetto gruppi=" $* "
    while read -r gruppo pacchetto; do
        [[ $gruppi == *" $gruppo "* ]] || continue
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$pacchetto" 2>/dev/null) == installed ]] ||
            printf '%s\n' "$pacchetto"
    done < <(grep -v '^#' "$CASA/tools/pacchetti")
}

# installaPacchetti GROUP...: installs what is missing of the groups, as root or through sudo.
installaPacchetti()
{
    command -v dpkg-query >/dev/null ||
        muori "Serve Debian 12: qui manca dpkg-query." "This needs Debian 12: there is no dpkg-query here."
    local mancanti
    mapfile -t mancanti < <(pacchettiMancanti "$@")
    ((${#mancanti[@]})) || return 0

    local comando=(env DEBIAN_FRONTEND=noninteractive apt-get -q)
    if ((EUID != 0)); then
        command -v sudo >/dev/null || muori \
            "Mancano dei pacchetti e qui non si è amministratori né c'è sudo. Chiedere: apt-get install ${mancanti[*]}" \
            "Packages are missing, and this is neither root nor is there sudo. Ask for: apt-get install ${mancanti[*]}"
        comando=(sudo "${comando[@]}")
    fi
    dice "Installo i pacchetti che mancano: ${mancanti[*]}" "Installing the missing packages: ${mancanti[*]}"
    "${comando[@]}" update >&2
    "${comando[@]}" install -y --no-install-recommends "${mancanti[@]}" >&2
    # apt leaves no doubt only when asked again: a held package is skipped without an error.
    mapfile -t mancanti < <(pacchettiMancanti "$@")
    ((${#mancanti[@]} == 0)) ||
        muori "Non installati: ${mancanti[*]}" "Not installed: ${mancanti[*]}"
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

# For scripts that work the host program from outside, as an operator does: a display and a window manager of their own,
# ended with the script. Leaves $lavoro, a folder for what the script writes, and $falliti, how much was not as expected.
# shellcheck shell=bash disable=SC2317 # functions are called by name, through finoA and the trap
lavoro=$(mktemp -d)
avviati=()
falliti=0

pulisci()
{
    local processo
    for ((processo = ${#avviati[@]} - 1; processo >= 0; --processo)); do
        kill "${avviati[processo]}" 2>/dev/null
        wait "${avviati[processo]}" 2>/dev/null
    done
    rm -rf "$lavoro"
}
trap pulisci EXIT

# attendo NAME EXPECTED FOUND
attendo()
{
    [[ $2 == "$3" ]] && return
    printf '%s\n  atteso:  %q\n  trovato: %q\n' "$1" "$2" "$3"
    falliti=$((falliti + 1))
}

# finoA NAME COMMAND...: runs the command again until it succeeds, for at most a minute.
finoA()
{
    local nome=$1 fine=$((SECONDS + 60))
    shift
    until "$@"; do
        if ((SECONDS > fine)); then
            echo "non è successo: $nome"
            falliti=$((falliti + 1))
            return 1
        fi
        sleep 0.05
    done
}

# finestra NAME: the number of the visible window of a name; nothing until there is one.
finestra()
{
    xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1
}
esiste() { [[ -n $(finestra "$1") ]]; }

attiva() { [[ $(xdotool getactivewindow 2>/dev/null) == "$1" ]]; }
vai() { xdotool windowactivate "$1" && finoA "la finestra si attiva" attiva "$1"; }
finito() { ! kill -0 "$1" 2>/dev/null; }

# A display and a window manager. Without -noreset the display starts afresh when its last client leaves, and what
# is shown while openbox still starts may stay unseen: its first command is run when it is ready.
exec 7<> <(:)
Xvfb -displayfd 7 -screen 0 1366x768x24 -nolisten tcp -noreset >"$lavoro/xvfb" 2>&1 &
avviati+=($!)
read -r -t 20 numero <&7 || { cat "$lavoro/xvfb"; exit 1; }
export DISPLAY=:$numero
export HOME=$lavoro XDG_DATA_HOME=$lavoro/dati XDG_CONFIG_HOME=$lavoro/impostazioni XDG_RUNTIME_DIR=$lavoro
mkdir "$XDG_DATA_HOME"
chmod 700 "$lavoro"
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
openbox --startup "touch $lavoro/pronto" >"$lavoro/openbox" 2>&1 &
avviati+=($!)
finoA "il gestore delle finestre" test -e "$lavoro/pronto" || { cat "$lavoro/openbox"; exit 1; }

# shellcheck shell=bash
# The databases and the settings of ./run, and of the installed deposito-prova. To be sourced after voce.sh, with COSTRUITO
# set to the build folder; or with PROGRAMMI and PARTI, the folders of the programs and of the parts.

# stringaSqlite FILE: the connection string of an embedded database.
stringaSqlite()
{
    printf 'DRIVER={SQLite3};Database=%s;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=%s' \
        "$1" "${PARTI:-$COSTRUITO/lib/giacenza}/libgiacenza_sqlite.so"
}

# What chiudiTutto has to put in order: a child, a folder to remove, a server to stop.
FIGLIO="" LAVORO="" SERVER=""

# chiudiTutto: leaves nothing of ours running or half written, however the command ends.
chiudiTutto()
{
    trap '' INT TERM HUP
    if [[ -n $FIGLIO ]] && kill "$FIGLIO" 2>/dev/null; then
        wait "$FIGLIO" || true
    fi
    [[ -z $SERVER ]] || "$CASA/tools/mariadb-privato" ferma "$SERVER" >&2 || true
    [[ -z $LAVORO ]] || rm -rf "$LAVORO"
}
trap chiudiTutto EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# svolgi COMMAND...: runs a child so that a signal to this shell is not kept waiting for it; gives its code.
svolgi()
{
    local esito=0
    "$@" &
    FIGLIO=$!
    wait "$FIGLIO" || esito=$?
    FIGLIO=""
    return "$esito"
}

# nuovoArchivio FILE: a new embedded database with demonstration data. It takes its name
# only once it is whole, so that a generation cut short leaves nothing that counts as a database.
nuovoArchivio()
{
    local file=$1
    LAVORO=$(mktemp -d "$(dirname "$file")/.nuovo.XXXXXX")
    dice "Preparo i dati dimostrativi in $file…" ""
    svolgi "${PROGRAMMI:-$COSTRUITO/bin}/genera-dati" "$(stringaSqlite "$LAVORO/archivio.db")" --crea >&2 ||
        muori "I dati dimostrativi non sono stati creati." ""
    preparaRegistro "$(stringaSqlite "$LAVORO/archivio.db")"
    # A write-ahead log belongs to the name of its database; one that outlived the generator holds rows.
    [[ ! -s $LAVORO/archivio.db-wal ]] || muori "I dati dimostrativi non sono stati scritti per intero." ""
    rm -f "$file-wal" "$file-shm"
    mv -f "$LAVORO/archivio.db" "$file"
    rm -rf "$LAVORO"
    LAVORO=""
}

# preparaRegistro STRING: the register in which the demonstration's archive keeps what happens to its cases, and notes.
preparaRegistro()
{
    GIACENZA_DATABASE=$1 svolgi "${PROGRAMMI:-$COSTRUITO/bin}/deposito" --prepara-registro >&2 ||
        muori "Il registro dei dati dimostrativi non è stato preparato." ""
}

# preparaImpostazioni FOLDER [DOCUMENTS]: the settings file and the goods-type list, where the operator has none
# yet; DOCUMENTS is where the documents are kept, in place of the usual folder beside the settings.
preparaImpostazioni()
{
    local documenti=";CartellaDocumenti=/percorso/dei/documenti"
    [[ -z ${2:-} ]] || documenti="CartellaDocumenti=$2"
    [[ -e $1/giacenza.ini ]] || cat >"$1/giacenza.ini" <<INI
; Impostazioni della gestione giacenze.

[DLLStampe]
; Il modulo che stampa avvisi e chiusure.
IdentificativoDll=Deposito
; Dove restano i documenti, se non nella cartella "documenti" accanto a questo file.
$documenti

[Bord]
; Le quattro righe in testa all'avviso di giacenza.
CaptionLbl1=Ufficio giacenze
CaptionLbl2=Orario: da lunedì a venerdì 8:30 - 12:30 e 14:30 - 18:00
CaptionLbl3=Ritiro della merce su appuntamento
CaptionLbl4=Nelle risposte citare il numero di giacenza

[Desk]
; Dopo quanti giorni senza novità una giacenza è ferma.
GiorniFerma=7
INI
    [[ -e $1/listbox.dat ]] ||
        printf '%s\n' "VEDI DDT" "ABBIGLIAMENTO" "ALIMENTARI" "ARREDAMENTO" "CARTA E STAMPATI" "COLLETTAME" \
            "ELETTRODOMESTICI" "LIBRI" "MATERIALE ELETTRICO" "MEDICINALI" "RICAMBI" "VINO" >"$1/listbox.dat"
}

# avviaMariadb: a private server with a database of demonstration data and a user who may do what the
# component needs and no more; sets CONNESSIONE to that user's connection string. chiudiTutto stops the server.
avviaMariadb()
{
    local amministratore parola
    LAVORO=$(mktemp -d "${TMPDIR:-/tmp}/giacenza.XXXXXX")
    # Started by root, the server runs as another user, who must get through to its folder.
    chmod 755 "$LAVORO"
    dice "Avvio un server MariaDB privato…" ""
    SERVER=$LAVORO/server
    "$CASA/tools/mariadb-privato" avvia "$SERVER" >&2 || muori "Il server MariaDB non è partito." ""
    amministratore=$(<"$SERVER/amministratore")
    parola=$(od -An -N16 -tx1 /dev/urandom | tr -d ' \n')
    comandaMariadb "$amministratore" <<SQL
create database giacenza character set utf8mb4;
create user 'giacenza'@'127.0.0.1' identified by '$parola';
SQL
    dice "Preparo i dati dimostrativi…" ""
    svolgi "${PROGRAMMI:-$COSTRUITO/bin}/genera-dati" "$amministratore;DATABASE=giacenza" --crea >&2 ||
        muori "I dati dimostrativi non sono stati creati." ""
    sed "s/:base\\b/\`giacenza\`/g; s/:utente\\b/'giacenza'@'127.0.0.1'/g" "$CASA/schema/grants.sql" |
        comandaMariadb "$amministratore"
    preparaRegistro "$amministratore;DATABASE=giacenza"
    CONNESSIONE="DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=$(<"$SERVER/porta")"
    CONNESSIONE+=";UID=giacenza;PWD=$parola;DATABASE=giacenza"
}

# campo NAME STRING: the value of a field of a connection string.
campo()
{
    sed -n "s/\(.*;\)\?$1=\([^;]*\).*/\2/p" <<<"$2"
}

# comandaMariadb STRING: runs the statements of standard input as the user of a connection string.
comandaMariadb()
{
    MYSQL_PWD=$(campo PWD "$1") mariadb --no-defaults --protocol=tcp --host=127.0.0.1 \
        --port="$(<"$SERVER/porta")" --user="$(campo UID "$1")"
}

# svolgiGiornata FOLDER si|no: plays the demonstration in a folder, always from fresh data, on SQLite or on a private
# MariaDB; gives its code.
svolgiGiornata()
{
    mkdir -p "$1"
    preparaImpostazioni "$1" "$1"
    if [[ $2 == si ]]; then
        avviaMariadb
    else
        nuovoArchivio "$1/demo.db"
        CONNESSIONE=$(stringaSqlite "$1/demo.db")
    fi
    # In the environment, not on a command line that every user of the machine can read.
    GIACENZA_DATABASE=$CONNESSIONE svolgi "${PROGRAMMI:-$COSTRUITO/bin}/deposito-demo" --cartella "$1"
}

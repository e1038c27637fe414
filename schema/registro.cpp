#include "schema/registro.h"

#include "data/archivio.h"
#include "data/istruzioniregistro.h"
#include "database/comando.h"
#include "database/recordset.h"
#include "database/transazione.h"
#include "schema/script.h"

#include <QRegularExpression>

#include <map>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString ruolo = u"registro_giacenza"_s;

/// The texts of the versions, the first at 1; what stands before the first is no version.
QStringList versioni(Dialetto dialetto)
{
    static const QRegularExpression inizio(u"^-- versione \\d+$"_s, QRegularExpression::MultilineOption);
    switch (dialetto) {
    case Dialetto::mariadb:
        return testoSchema(u"registro-mariadb.sql"_s).split(inizio);
    case Dialetto::sqlite:
        return testoSchema(u"registro-sqlite.sql"_s).split(inizio);
    case Dialetto::altro:
        break;
    }
    return {QString()};
}

QString primoValore(Connessione& connessione, const QString& istruzione)
{
    Recordset riga;
    riga.apri(connessione, istruzione);
    return riga.eof() ? QString() : riga.valore(0).value_or(QString());
}

int versionePresente(Connessione& connessione)
{
    if (!connessione.tabelle().contains(u"registro_versione"_s, Qt::CaseInsensitive))
        return 0;
    return primoValore(connessione, istruzioni::versioneRegistro()).toInt();
}

void segnaVersione(Connessione& connessione, int versione)
{
    const Valore valori[] = {QString::number(versione)};
    Comando(connessione, istruzioni::nuovaVersione()).esegui(valori);
}

void eseguiVersione(Connessione& connessione, int versione, const QString& definitore)
{
    // MariaDB confirms each of these statements by itself: there, running them again is what resumes.
    std::optional<Transazione> transazione;
    if (connessione.dialetto() == Dialetto::sqlite)
        transazione.emplace(connessione);
    for (const QString& istruzione : istruzioniRegistro(connessione.dialetto(), versione, definitore))
        connessione.esegui(istruzione);
    segnaVersione(connessione, versione);
    if (transazione)
        transazione->conferma();
}

/// An account without the rights over accounts leaves to another what it may not do.
bool seConcesso(Connessione& connessione, const QString& istruzione)
{
    constexpr int codici[] = {1044, 1045, 1142, 1143, 1227, 1410, 1698};
    try {
        connessione.esegui(istruzione);
        return true;
    } catch (const ErroreDatabase& errore) {
        if (std::find(std::begin(codici), std::end(codici), errore.codiceNativo()) == std::end(codici))
            throw;
        return false;
    }
}

/// Puts the triggers back that are not there or are somebody else's.
void rimettiTrigger(Connessione& connessione, int versione, const QString& definitore)
{
    static const QRegularExpression nome(u"\\btrigger (registro_\\w+)"_s);
    const QString atteso =
        definitore == ruolo ? ruolo + u'@' : primoValore(connessione, istruzioni::contoCorrente());
    std::map<QString, QString> presenti;
    Recordset righe;
    for (righe.apri(connessione, istruzioni::triggerRegistro()); !righe.eof(); righe.successivo())
        presenti[righe.valore(0).value_or(QString())] = righe.valore(1).value_or(QString());
    for (int n = 1; n <= versione; ++n)
        for (const QString& istruzione : istruzioniRegistro(Dialetto::mariadb, n, definitore))
            if (const auto trovato = nome.match(istruzione);
                trovato.hasMatch() && presenti[trovato.captured(1)] != atteso)
                connessione.esegui(istruzione);
}

QStringList conti(Connessione& connessione, const QString& istruzione)
{
    QStringList conti;
    Recordset righe;
    for (righe.apri(connessione, istruzione); !righe.eof(); righe.successivo())
        conti << righe.valore(0).value_or(QString());
    return conti;
}

void concedi(Connessione& connessione, RegistroPreparato& registro)
{
    const QString base = primoValore(connessione, istruzioni::nomeBase());
    for (const QString& conto : conti(connessione, istruzioni::contiPostazioni())) {
        bool tutte = true;
        for (const QString& istruzione : istruzioniPrivilegiRegistro(base, conto)) {
            // The notes come with a version of their own.
            if (istruzione.contains("registro_note"_L1) && registro.versione < 2)
                continue;
            if (seConcesso(connessione, istruzione))
                continue;
            tutte = false;
            registro.daConcedere << istruzione;
        }
        if (tutte)
            registro.conti << conto;
    }
}

/// The statements of schema/registro-grants.sql, with the base's name in.
QStringList privilegi(const QString& base)
{
    QString tra = base;
    tra.replace(u'`', u"``"_s);
    QStringList istruzioni = istruzioniScript(testoSchema(u"registro-grants.sql"_s));
    for (QString& istruzione : istruzioni)
        istruzione.replace(":base"_L1, u'`' + tra + u'`');
    return istruzioni;
}

void preparaMariadb(Connessione& connessione, RegistroPreparato& registro, int fino)
{
    if (primoValore(connessione, istruzioni::codaRegistro()) != u"1"_s)
        throw Errore(u"Un altro programma sta già preparando il registro di questo archivio."_s);
    registro.prima = registro.versione = versionePresente(connessione);
    const bool conRuolo = seConcesso(connessione, istruzioni::ruoloRegistro());
    registro.definitore = conRuolo ? ruolo : u"current_user"_s;
    for (int n = registro.prima + 1; n <= fino; ++n) {
        eseguiVersione(connessione, n, registro.definitore);
        registro.versione = n;
    }
    if (conRuolo) {
        for (const QString& istruzione : privilegi(primoValore(connessione, istruzioni::nomeBase())))
            if (istruzione.endsWith(ruolo) && !seConcesso(connessione, istruzione))
                registro.daConcedere << istruzione;
    }
    rimettiTrigger(connessione, registro.versione, registro.definitore);
    concedi(connessione, registro);
    registro.possonoCambiarlo = conti(connessione, istruzioni::contiSullaBase());
}

} // namespace

int ultimaVersioneRegistro(Dialetto dialetto)
{
    return static_cast<int>(versioni(dialetto).size()) - 1;
}

QStringList istruzioniRegistro(Dialetto dialetto, int versione, const QString& definitore)
{
    QStringList istruzioni = istruzioniScript(versioni(dialetto).value(versione));
    for (QString& istruzione : istruzioni)
        istruzione.replace(":definitore"_L1, definitore);
    return istruzioni;
}

QStringList istruzioniPrivilegiRegistro(const QString& base, const QString& conto)
{
    QStringList istruzioni;
    for (QString& istruzione : privilegi(base))
        if (istruzione.endsWith(":utente"_L1))
            istruzioni << istruzione.replace(":utente"_L1, conto);
    return istruzioni;
}

RegistroPreparato preparaRegistro(const Accesso& accesso, int fino)
{
    Connessione connessione;
    connessione.apri(accesso);
    const int ultima = ultimaVersioneRegistro(connessione.dialetto());
    if (ultima < 1)
        throw Errore(u"Il registro si prepara su MariaDB o su SQLite: questo archivio è di un altro tipo."_s);
    verificaTabelle(connessione);
    RegistroPreparato registro;
    if (fino < 1 || fino > ultima)
        fino = ultima;
    if (connessione.dialetto() == Dialetto::mariadb) {
        preparaMariadb(connessione, registro, fino);
        return registro;
    }
    registro.prima = registro.versione = versionePresente(connessione);
    for (int n = registro.prima + 1; n <= fino; ++n) {
        eseguiVersione(connessione, n, {});
        registro.versione = n;
    }
    return registro;
}

} // namespace giacenza

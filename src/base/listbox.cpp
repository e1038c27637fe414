#include "base/listbox.h"

#include "base/errorenumerato.h"
#include "base/filelimitato.h"
#include "base/percorsi.h"
#include "base/testofile.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QStringList righe(const QString& testo)
{
    QStringList tutte = testo.split(u'\n');
    if (tutte.last().isEmpty())
        tutte.removeLast();
    for (QString& riga : tutte) {
        // A file without a last line end may end in half of one, and the next line brings a whole one.
        while (riga.endsWith(u'\r'))
            riga.chop(1);
    }
    return tutte;
}

QString fineRiga(const QByteArray& byte)
{
    const qsizetype prima = byte.indexOf('\n');
    return prima > 0 && byte.at(prima - 1) == '\r' ? u"\r\n"_s : u"\n"_s;
}

// One write, so that two workstations that add at once do not mix their lines; unbuffered, so that its
// failure is known here.
void scriviInCoda(QFile& file, const QByteArray& byte)
{
    const bool nuovo = !file.exists();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        throw Errore(file.errorString());
    const qint64 prima = file.size();
    if (file.write(byte) == byte.size())
        return;
    const QString causa = file.errorString();
    file.resize(prima);
    file.close();
    if (nuovo)
        file.remove();
    throw Errore(causa);
}

void rifiutaSeNonEUnaVoce(const QString& riga)
{
    if (riga.trimmed().isEmpty())
        throw ErroreNumerato(erroreNaturaMerce, u"Nessun valore da aggiungere"_s);
    if (riga.contains(u'\n') || riga.contains(u'\r'))
        throw ErroreNumerato(erroreNaturaMerce, u"Il valore è di più righe"_s);
    // It would be written as a question mark.
    if (!riga.isValidUtf16())
        throw ErroreNumerato(erroreNaturaMerce, u"Il valore contiene un carattere incompleto"_s);
}

} // namespace

std::optional<QStringList> leggiElenco(const QString& percorso)
{
    const auto byte = leggiFileLimitato(percorsoNativo(percorso), limiteLista);
    if (!byte)
        return {};
    return righe(decodifica(*byte).testo);
}

void aggiungiAllElenco(const QString& percorso, const QString& riga)
{
    rifiutaSeNonEUnaVoce(riga);
    QFile file(percorsoNativo(percorso));
    const auto byte = leggiFileLimitato(file.fileName(), limiteLista);
    if (!byte) {
        scriviInCoda(file, (u"VEDI DDT\n"_s + riga + u'\n').toUtf8());
        return;
    }
    const TestoLetto letto = decodifica(*byte);
    if (righe(letto.testo).contains(riga))
        throw ErroreNumerato(erroreNaturaMerce, u"Il valore è già nella lista"_s);
    const QString fine = fineRiga(*byte);
    const bool ultimaAperta = !byte->isEmpty() && !byte->endsWith('\n');
    const std::optional<QByteArray> nuova =
        codifica((ultimaAperta ? fine : QString()) + riga + fine, letto.codifica);
    if (!nuova)
        throw Errore(u"La codifica della lista non ha tutti i caratteri del valore"_s);
    if (byte->size() + nuova->size() > limiteLista)
        throw Errore(u"La lista è piena"_s);
    scriviInCoda(file, *nuova);
}

} // namespace giacenza

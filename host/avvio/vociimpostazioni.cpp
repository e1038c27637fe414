#include "host/avvio/vociimpostazioni.h"

#include "base/filelimitato.h"
#include "base/lettoreini.h"
#include "base/testofile.h"
#include "comune/archivio.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

using Genere = VoceImpostazioni::Genere;

QString nome(const char16_t* testo)
{
    return QString::fromUtf16(testo);
}

bool eSezione(const QString& riga, const QString& sezione)
{
    const QString netta = riga.trimmed();
    return netta.startsWith(u'[') && netta.endsWith(u']') &&
           netta.mid(1, netta.size() - 2).trimmed().compare(sezione, Qt::CaseInsensitive) == 0;
}

bool eChiave(const QString& riga, const QString& chiave)
{
    const qsizetype uguale = riga.indexOf(u'=');
    return uguale > 0 && riga.left(uguale).trimmed().compare(chiave, Qt::CaseInsensitive) == 0;
}

/// Line by line, since a library that writes such files moves their comments.
void metti(QStringList& righe, const QString& sezione, const QString& chiave, const QString& valore)
{
    const auto inizio = std::find_if(righe.begin(), righe.end(),
                                     [&](const QString& riga) { return eSezione(riga, sezione); });
    if (inizio == righe.end()) {
        if (valore.isEmpty())
            return;
        if (!righe.isEmpty() && !righe.last().trimmed().isEmpty())
            righe << QString();
        righe << u"[%1]"_s.arg(sezione) << chiave + u'=' + valore;
        return;
    }
    qsizetype fine = std::distance(righe.begin(), inizio) + 1;
    for (; fine < righe.size() && !righe[fine].trimmed().startsWith(u'['); ++fine)
        if (eChiave(righe[fine], chiave)) {
            if (valore.isEmpty())
                righe.removeAt(fine);
            else
                righe[fine] = chiave + u'=' + valore;
            return;
        }
    if (valore.isEmpty())
        return;
    // Above the blank lines that part this section from the next one.
    while (righe[fine - 1].trimmed().isEmpty())
        --fine;
    righe.insert(fine, chiave + u'=' + valore);
}

/// What the component's reader finds in a content.
std::vector<QString> valoriDi(const QByteArray& contenuto)
{
    std::vector<QString> valori;
    for (const VoceImpostazioni& voce : vociImpostazioni())
        valori.push_back(
            giacenza::LettoreIniProprio::daContenuto(contenuto, nome(voce.sezione), {nome(voce.chiave)})
                .front());
    return valori;
}

} // namespace

const std::vector<VoceImpostazioni>& vociImpostazioni()
{
    static const std::vector<VoceImpostazioni> voci = {
        {u"DLLStampe", u"IdentificativoDll", u"Modulo di stampa",
         u"Quale modulo stampa i documenti; Deposito è quello fornito."},
        {u"DLLStampe",
         u"Modalita",
         u"Dopo il PDF",
         u"Che cosa si fa del documento oltre a tenerne il PDF: niente altro, mostrarlo, mandarlo alla "
         u"stampante.",
         Genere::scelta,
         {u"pdf", u"anteprima", u"stampante"}},
        {u"DLLStampe", u"CartellaDocumenti", u"Cartella dei documenti",
         u"Dove restano i PDF; vuota: la cartella documenti accanto alle impostazioni.", Genere::cartella},
        {u"Bord", u"CaptionLbl1", u"Avviso, riga 1", u"Prima riga in testa all'avviso di giacenza."},
        {u"Bord", u"CaptionLbl2", u"Avviso, riga 2", u"Seconda riga in testa all'avviso di giacenza."},
        {u"Bord", u"CaptionLbl3", u"Avviso, riga 3", u"Terza riga in testa all'avviso di giacenza."},
        {u"Bord", u"CaptionLbl4", u"Avviso, riga 4", u"Quarta riga in testa all'avviso di giacenza."},
        {u"Lettere", u"Piede1", u"Piede, riga 1", u"Dati di legge della ditta, in fondo a ogni foglio."},
        {u"Lettere", u"Piede2", u"Piede, riga 2", u"Dati di legge della ditta, in fondo a ogni foglio."},
        {u"Lettere", u"Piede3", u"Piede, riga 3", u"Dati di legge della ditta, in fondo a ogni foglio."},
        {u"Desk", u"GiorniFerma", u"Giorni per \"ferma\"",
         u"Dopo quanti giorni senza novità una giacenza si dice ferma.", Genere::numero},
    };
    return voci;
}

std::vector<QString> leggiImpostazioni(const QString& file)
{
    giacenza::LettoreIniProprio lettore;
    std::vector<QString> valori;
    for (const VoceImpostazioni& voce : vociImpostazioni())
        valori.push_back(lettore.leggi(file, nome(voce.sezione), nome(voce.chiave)));
    return valori;
}

QString scriviImpostazioni(const QString& file, const std::vector<QString>& valori)
{
    try {
        const auto byte = giacenza::leggiFileLimitato(file, giacenza::limiteImpostazioni);
        const giacenza::TestoLetto letto = giacenza::decodifica(byte.value_or(QByteArray()));
        // What was not changed stays to the letter, double blanks too.
        std::vector<QString> voluti = valoriDi(byte.value_or(QByteArray()));
        QStringList righe = letto.testo.split(u'\n');
        for (QString& riga : righe)
            while (riga.endsWith(u'\r'))
                riga.chop(1);
        while (!righe.isEmpty() && righe.last().isEmpty())
            righe.removeLast();
        for (std::size_t i = 0; i < valori.size(); ++i) {
            if (valori[i] == voluti[i])
                continue;
            voluti[i] = valori[i].simplified();
            const VoceImpostazioni& voce = vociImpostazioni().at(i);
            metti(righe, nome(voce.sezione), nome(voce.chiave), voluti[i]);
        }
        const QString testo = righe.join(u'\n') + u'\n';
        const QByteArray contenuto = giacenza::codifica(testo, letto.codifica).value_or(testo.toUtf8());
        // A line that stood there may hide what follows.
        if (valoriDi(contenuto) != voluti)
            return u"Le impostazioni non si possono scrivere in \"%1\": il file ha una riga che nasconde le "
                   u"altre, "
                   "o un valore ha caratteri che il file non tiene. Correggerlo a mano."_s.arg(
                       QDir::toNativeSeparators(file));
        if (!QFileInfo(file).absoluteDir().mkpath(u"."_s))
            return u"La cartella delle impostazioni non si può creare."_s;
        const QString perche = giacenza::comune::sostituisci(file, contenuto);
        return perche.isEmpty() ? QString()
                                : u"Le impostazioni non si possono scrivere in \"%1\": %2."_s.arg(
                                      QDir::toNativeSeparators(file), perche);
    } catch (const std::exception& errore) {
        return QString::fromUtf8(errore.what());
    }
}

} // namespace deposito

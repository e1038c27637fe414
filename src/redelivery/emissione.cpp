#include "redelivery/emissione.h"

#include "base/impostazioni.h"
#include "base/parti.h"
#include "base/servizi.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace giacenza {

void LdvLetta::leggi(Recordset& righe)
{
    std::vector<std::pair<QString, Valore>> valori;
    valori.reserve(static_cast<std::size_t>(righe.colonne()));
    const bool vuoto = righe.eof();
    for (int i = 0; i < righe.colonne(); ++i)
        valori.emplace_back(righe.nomeColonna(i), vuoto ? Valore() : righe.valore(i));
    mValori = std::move(valori);
    mVuoto = vuoto;
}

QStringList LdvLetta::colonne() const
{
    QStringList nomi;
    for (const auto& [nome, valore] : mValori)
        nomi << nome;
    return nomi;
}

Valore LdvLetta::valore(const QString& colonna) const
{
    if (mVuoto)
        throw Errore(u"La lettera di vettura è vuota."_s);
    for (const auto& [nome, valore] : mValori)
        if (nome.compare(colonna, Qt::CaseInsensitive) == 0)
            return valore;
    throw Errore(u"La lettera di vettura non ha la colonna %1."_s.arg(colonna));
}

namespace {

QString consegna(EmittenteLdv& emittente, const RecordLdv& ldv, bool stampa, const Contesto& contesto)
{
    if (auto* conContesto = dynamic_cast<ParteConContesto*>(&emittente))
        conContesto->setContesto(contesto);
    const QString cartella = QCoreApplication::applicationDirPath();
    emittente.setPercorsoDatabase(impostazioni().percorsoDatabase);
    emittente.setCartellaStampa(cartella + u"/imp"_s);
    emittente.setPercorsoLogo(cartella + u"/logo.gif"_s);
    emittente.setStampa(stampa);
    emittente.setDefinitiva(true);
    return emittente.emetti(ldv);
}

} // namespace

QString EmettiRiconsegna(const RecordLdv& ldv, bool stampa, const Contesto& contesto)
{
    const auto emittente = creaParteDi<EmittenteLdv>(QString::fromUtf16(classeEmittenteLdv));
    if (!emittente.parte)
        throw Errore(emittente.motivo);
    try {
        Contesto conPiede = contesto;
        if (stampa)
            conPiede.piede = LeggiPiede();
        return consegna(*emittente.parte, ldv, stampa, conPiede);
    } catch (const Errore&) {
        throw;
    } catch (const std::exception& errore) {
        throw Errore(QString::fromUtf8(errore.what()));
    } catch (...) {
        // The issuer is the host's: nothing of it may pass through Qt's loop.
        throw Errore(u"L'emissione si è interrotta per un errore sconosciuto."_s);
    }
}

} // namespace giacenza

#include "redelivery/emissione.h"

#include "component/impostazioni.h"
#include "component/parti.h"

#include <QCoreApplication>

namespace giacenza {

void LdvLetta::leggi(Recordset& righe)
{
    std::vector<std::pair<QString, Valore>> valori;
    const bool vuoto = righe.bof() || righe.eof();
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
        throw Errore(QStringLiteral("La lettera di vettura è vuota."));
    for (const auto& [nome, valore] : mValori)
        if (nome.compare(colonna, Qt::CaseInsensitive) == 0)
            return valore;
    throw Errore(QStringLiteral("La lettera di vettura non ha la colonna %1.").arg(colonna));
}

namespace {

QString consegna(EmittenteLdv& emittente, const RecordLdv& ldv, bool stampa, const Contesto& contesto)
{
    if (auto* conContesto = dynamic_cast<ParteConContesto*>(&emittente))
        conContesto->setContesto(contesto);
    const QString cartella = QCoreApplication::applicationDirPath();
    emittente.setPercorsoDatabase(impostazioni().percorsoDatabase);
    emittente.setCartellaStampa(cartella + QStringLiteral("/imp"));
    emittente.setPercorsoLogo(cartella + QStringLiteral("/logo.gif"));
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
        return consegna(*emittente.parte, ldv, stampa, contesto);
    } catch (const Errore&) {
        throw;
    } catch (const std::exception& errore) {
        throw Errore(QString::fromUtf8(errore.what()));
    } catch (...) {
        // The issuer is the host's: nothing of it may pass through Qt's loop.
        throw Errore(QStringLiteral("L'emissione si è interrotta per un errore sconosciuto."));
    }
}

} // namespace giacenza

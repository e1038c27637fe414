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

QString EmettiRiconsegna(const RecordLdv& ldv, bool stampa, const Contesto& contesto)
{
    const auto emittente = creaParteDi<EmittenteLdv>(QString::fromUtf16(classeEmittenteLdv));
    if (!emittente.parte)
        throw Errore(emittente.motivo);
    if (auto* conContesto = dynamic_cast<ParteConContesto*>(emittente.parte.get()))
        conContesto->setContesto(contesto);
    const QString cartella = QCoreApplication::applicationDirPath();
    emittente.parte->setPercorsoDatabase(impostazioni().percorsoDatabase);
    emittente.parte->setCartellaStampa(cartella + QStringLiteral("/imp"));
    emittente.parte->setPercorsoLogo(cartella + QStringLiteral("/logo.gif"));
    emittente.parte->setStampa(stampa);
    emittente.parte->setDefinitiva(true);
    try {
        return emittente.parte->emetti(ldv);
    } catch (const Errore&) {
        throw;
    } catch (const std::exception& errore) {
        throw Errore(QString::fromUtf8(errore.what()));
    }
}

} // namespace giacenza

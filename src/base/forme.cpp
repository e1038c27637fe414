#include "base/forme.h"

namespace giacenza {

std::shared_ptr<Forme> Forme::delThread()
{
    static thread_local const auto forme = std::make_shared<Forme>();
    return forme;
}

void Forme::registra(const QString& nome, Creatore creatore)
{
    if (creatore)
        mCreatori[nome] = std::move(creatore);
    else
        mCreatori.remove(nome);
}

bool Forme::registrata(const QString& nome) const
{
    return mCreatori.contains(nome);
}

QWidget* Forme::forma(const QString& nome)
{
    if (QWidget* pronta = caricata(nome))
        return pronta;
    const Creatore creatore = mCreatori.value(nome);
    if (!creatore)
        return nullptr;
    QWidget* nuova = creatore().release();
    mCaricate.insert(nome, {nuova, true});
    return nuova;
}

QWidget* Forme::caricata(const QString& nome) const
{
    return mCaricate.value(nome).finestra;
}

void Forme::annota(const QString& nome, QWidget* finestra)
{
    mCaricate.insert(nome, {finestra, false});
}

void Forme::scarica(const QString& nome)
{
    const Caricata scaricata = mCaricate.value(nome);
    if (!scaricata.finestra)
        return;
    scaricata.finestra->close();
    if (!scaricata.nostra || caricata(nome) != scaricata.finestra || !scaricata.finestra)
        return;
    mCaricate.remove(nome);
    scaricata.finestra->hide();
    scaricata.finestra->deleteLater();
}

void Forme::esce(QWidget* finestra)
{
    mCaricate.removeIf([finestra](const auto& voce) { return voce.value().finestra == finestra; });
    Q_EMIT uscita(finestra);
}

} // namespace giacenza

#pragma once

#include "base/cartellaprova.h"
#include "widgets/naturamerce.h"

#include <QComboBox>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

inline const QString lista = u"listbox.dat"_s;

/// A settings folder for a list of goods types, and the box that shows it.
class NaturaMerceDiProva : public CartellaProva
{
protected:
    NaturaMerceDiProva()
    {
        mElenco.setEditable(true);
        mRegistro.mentreAperto([this](QWidget* padre, const Messaggio&) { EXPECT_EQ(padre, &mElenco); });
    }

    QStringList voci() const
    {
        QStringList tutte;
        for (int i = 0; i < mElenco.count(); ++i)
            tutte.append(mElenco.itemText(i));
        return tutte;
    }

    void aggiungi(const QString& testo)
    {
        mElenco.setEditText(testo);
        AggiungiNaturaMerce(&mElenco);
        EXPECT_EQ(mElenco.currentText(), testo);
    }

    void nessunMessaggio() { EXPECT_EQ(mRegistro.testi(), QStringList()); }

    void unSoloMessaggio(const QString& testo, Stile stile)
    {
        const std::vector<Messaggio> mostrati = mRegistro.prendi();
        EXPECT_THAT(mostrati, ::testing::ElementsAre(Messaggio{testo, stile, u"Gestione Trasporti"_s}));
    }

    void aggiuntaRifiutata()
    {
        unSoloMessaggio(u"Impossibile aggiungere il valore nella lista del controllo Natura merce"_s,
                        Stile::informazione);
    }

    void caricamentoRifiutato()
    {
        unSoloMessaggio(u"Impossibile caricare i dati nel controllo Natura merce"_s, Stile::critico);
    }

    QComboBox mElenco;
};

} // namespace giacenza::prove

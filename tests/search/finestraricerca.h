#pragma once

#include "search/frmRicerca.h"

#include "search/listascelta.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// The dialog, shown, and its controls.
class FinestraRicerca : public testing::Test
{
protected:
    FinestraRicerca() { apri(); }

    void apri()
    {
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
    }

    template<class Controllo>
    Controllo* c(const QString& nome)
    {
        return trova<Controllo>(mFinestra, nome);
    }

    void scegliOpzione(const QString& nome)
    {
        auto* opzione = c<QRadioButton>(nome);
        QTest::mouseClick(opzione, Qt::LeftButton, {}, QPoint(8, opzione->height() / 2));
        ASSERT_TRUE(opzione->isChecked()) << nome.toStdString();
    }

    /// Types a text and presses Enter.
    void cerca(const QString& testo)
    {
        mTesto->setFocus();
        mTesto->selectAll();
        QTest::keyClick(mTesto, Qt::Key_Delete);
        // The simulated keyboard knows ASCII only; what it lacks comes as a paste would.
        const bool tastiera = std::ranges::all_of(testo, [](QChar c) { return c >= u' ' && c <= u'~'; });
        if (tastiera && testo.size() < 100)
            QTest::keyClicks(mTesto, testo);
        else
            mTesto->insert(testo);
        QTest::keyClick(mTesto, Qt::Key_Return);
    }

    QStringList voci()
    {
        QStringList testi;
        for (int riga = 0; riga < mLista->count(); ++riga)
            testi += mLista->item(riga)->text();
        return testi;
    }

    void clicSuRiga(int riga)
    {
        QTest::mouseClick(mLista->viewport(), Qt::LeftButton, {},
                          mLista->visualItemRect(mLista->item(riga)).center());
    }

    RegistroMessaggi mMessaggi;
    frmRicerca mFinestra;
    QLineEdit* mTesto = c<QLineEdit>(u"txtCerca"_s);
    ListaScelta* mLista = c<ListaScelta>(u"lstCerca"_s);
};

/// The same on a database with some parties.
class FinestraRicercaPiena : public FinestraRicerca, public testing::WithParamInterface<std::string>
{
protected:
    FinestraRicercaPiena()
    {
        mBase.esegui(u"insert into clien (Codice, RagioneSociale, Localita, Provincia, PartitaIva) values "
                     "(1, 'Alfa Srl', ' Bergamo ', 'BG', '01234567890'), "
                     "(2, 'Fratelli Alfa ', 'Treviglio', 'BG', '11234567890'), "
                     "(30, 'Beta', 'Berbenno', null, null);"_s);
        mFinestra.setNomeTabella(u"Clien"_s);
        mFinestra.setStringaConnessione(mBase.stringa());
    }

    void aggiungiMolti(int quanti)
    {
        QStringList righe;
        for (int i = 0; i < quanti; ++i)
            righe += u"(%1, 'Zeta %2')"_s.arg(1000 + i).arg(i, 6, 10, QChar(u'0'));
        mBase.esegui(u"insert into clien (Codice, RagioneSociale) values "_s + righe.join(u',') + u';');
    }

    BancaDati mBase{GetParam()};
};

} // namespace giacenza::prove

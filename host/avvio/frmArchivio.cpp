#include "host/avvio/frmArchivio.h"

#include "host/avvio/altrofilo.h"
#include "ui_frmArchivio.h"

#include <QAccessible>
#include <QFileDialog>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace deposito {

frmArchivio::frmArchivio(const SceltaArchivio& scelta, bool conPortachiavi, QWidget* padre, Prova prova)
    : QDialog(padre), mUi(std::make_unique<Ui::frmArchivio>()), mProva(std::move(prova))
{
    mUi->setupUi(this);
    mUi->cmbCustodia->addItem(u"chiederla a ogni avvio"_s, int(CustodiaParola::nessuna));
    if (conPortachiavi)
        mUi->cmbCustodia->addItem(u"ricordarla nel portachiavi"_s, int(CustodiaParola::portachiavi));
    mUi->cmbCustodia->addItem(u"ricordarla in chiaro"_s, int(CustodiaParola::inChiaro));
    // The window does not jump when the warning comes.
    QSizePolicy posto = mUi->lblInChiaro->sizePolicy();
    posto.setRetainSizeWhenHidden(true);
    mUi->lblInChiaro->setSizePolicy(posto);
    mostra(scelta);
    for (const QRadioButton* scelto : {mUi->optDimostrazione, mUi->optFile, mUi->optServer})
        connect(scelto, &QRadioButton::toggled, this, &frmArchivio::cambiata);
    for (const QLineEdit* campo :
         {mUi->txtFile, mUi->txtServer, mUi->txtBase, mUi->txtUtente, mUi->txtParola, mUi->txtCertificato})
        connect(campo, &QLineEdit::textEdited, this, &frmArchivio::cambiata);
    connect(mUi->chkTls, &QCheckBox::toggled, this, &frmArchivio::cambiata);
    connect(mUi->cmbCustodia, &QComboBox::currentIndexChanged, this, &frmArchivio::abilita);
    connect(mUi->txtPorta, &QSpinBox::valueChanged, this, &frmArchivio::cambiata);
    connect(mUi->cmdSfogliaFile, &QPushButton::clicked, this, [this] {
        sfoglia(u"Archivio"_s, u"Archivi (*.db *.sqlite *.sqlite3);;Tutti i file (*)"_s, mUi->txtFile);
    });
    connect(mUi->cmdSfogliaCertificato, &QPushButton::clicked, this, [this] {
        sfoglia(u"Certificato"_s, u"Certificati (*.pem *.crt *.cer);;Tutti i file (*)"_s,
                mUi->txtCertificato);
    });
    connect(mUi->cmdProva, &QPushButton::clicked, this, &frmArchivio::provata);
    connect(mUi->cmdUsa, &QPushButton::clicked, this, &frmArchivio::accept);
    connect(mUi->cmdEsci, &QPushButton::clicked, this, &frmArchivio::reject);
}

frmArchivio::~frmArchivio() = default;

void frmArchivio::mostra(const SceltaArchivio& scelta)
{
    mUi->optDimostrazione->setChecked(scelta.tipo == TipoArchivio::dimostrazione);
    mUi->optFile->setChecked(scelta.tipo == TipoArchivio::file);
    mUi->optServer->setChecked(scelta.tipo == TipoArchivio::server);
    mUi->txtFile->setText(scelta.file);
    mUi->txtServer->setText(scelta.server);
    mUi->txtPorta->setValue(scelta.porta);
    mUi->txtBase->setText(scelta.base);
    mUi->txtUtente->setText(scelta.utente);
    mUi->chkTls->setChecked(scelta.tls);
    mUi->txtCertificato->setText(scelta.certificato);
    mUi->cmbCustodia->setCurrentIndex(qMax(0, mUi->cmbCustodia->findData(int(scelta.custodia))));
    abilita();
}

SceltaArchivio frmArchivio::scelta() const
{
    return {.tipo = mUi->optServer->isChecked() ? TipoArchivio::server
                    : mUi->optFile->isChecked() ? TipoArchivio::file
                                                : TipoArchivio::dimostrazione,
            .file = mUi->txtFile->text().trimmed(),
            .server = mUi->txtServer->text().trimmed(),
            .porta = mUi->txtPorta->value(),
            .base = mUi->txtBase->text().trimmed(),
            .utente = mUi->txtUtente->text().trimmed(),
            .tls = mUi->chkTls->isChecked(),
            .certificato = mUi->txtCertificato->text().trimmed(),
            .custodia = CustodiaParola(mUi->cmbCustodia->currentData().toInt())};
}

QString frmArchivio::parola() const
{
    return mUi->txtParola->text();
}

void frmArchivio::abilita()
{
    mUi->fraFile->setEnabled(mUi->optFile->isChecked());
    mUi->fraServer->setEnabled(mUi->optServer->isChecked());
    mUi->lblInChiaro->setVisible(CustodiaParola(mUi->cmbCustodia->currentData().toInt()) ==
                                 CustodiaParola::inChiaro);
    mUi->fraCertificato->setEnabled(mUi->chkTls->isChecked());
    // The demonstration is made when it is chosen: there is nothing to try.
    mUi->cmdProva->setEnabled(!mUi->optDimostrazione->isChecked());
}

void frmArchivio::cambiata()
{
    mRifiutata = false;
    mUi->cmdUsa->setText(u"&Usa questo archivio"_s);
    mUi->lblEsito->clear();
    abilita();
}

void frmArchivio::sfoglia(const QString& titolo, const QString& filtro, QLineEdit* campo)
{
    const QString scelto = QFileDialog::getOpenFileName(this, titolo, campo->text(), filtro);
    if (scelto.isEmpty())
        return;
    campo->setText(scelto);
    cambiata();
}

bool frmArchivio::provata()
{
    const SceltaArchivio scelta = this->scelta();
    EsitoProva esito{.testo = mancanza(scelta)};
    if (esito.testo.isEmpty()) {
        mInProva = true;
        setEnabled(false);
        mUi->lblEsito->setText(u"Provo…"_s);
        const QString parola = this->parola();
        inAltroFilo([&] { esito = mProva(scelta, parola); });
        setEnabled(true);
        mInProva = false;
    }
    dici(esito);
    return esito.riuscita;
}

void frmArchivio::dici(const EsitoProva& esito)
{
    mUi->lblEsito->setText((esito.riuscita ? u"✓ "_s : u"⚠ "_s) + esito.testo);
    mUi->lblEsito->setToolTip(esito.dettaglio);
    QAccessibleEvent annuncio(mUi->lblEsito, QAccessible::Alert);
    QAccessible::updateAccessibility(&annuncio);
}

void frmArchivio::accept()
{
    if (mInProva)
        return;
    if (mUi->optDimostrazione->isChecked())
        return QDialog::accept();
    const QString manca = mancanza(scelta());
    if (manca.isEmpty() && (mRifiutata || provata()))
        return QDialog::accept();
    if (!manca.isEmpty())
        return dici({.testo = manca});
    mRifiutata = true;
    mUi->cmdUsa->setText(u"&Usa lo stesso"_s);
}

void frmArchivio::reject()
{
    if (!mInProva)
        QDialog::reject();
}

} // namespace deposito

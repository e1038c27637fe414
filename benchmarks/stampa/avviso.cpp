// One run: so many storage notices, each from the press of its button to the PDF in the archive, on the way
// that an operator's press takes: the management screen, the print module that the settings name, found as a
// plug-in. The case is on the screen already; looking it up is not the notice's time.

#include "benchmarks/quadro/esito.h"

#include <giacenza/cGiacenza.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QByteArray impostazioni = "[DLLStampe]\nIdentificativoDll=Deposito\n[Bord]\n"
                                "CaptionLbl1=Trasporti del Ponte S.r.l.\n"
                                "CaptionLbl2=Via dell'Industria 14 - 10148 Torino (TO)\n"
                                "CaptionLbl3=Tel. 011 000000 - Fax 011 000001\n"
                                "CaptionLbl4=giacenze@trasportidelponte.example\n";

/// The screen as the operator has it: controls by their names.
class Schermata
{
public:
    Schermata()
    {
        for (QWidget* finestra : QApplication::topLevelWidgets())
            if (finestra->objectName() == u"frmGestGia"_s)
                mFinestra = finestra;
        if (!mFinestra)
            throw std::runtime_error("the management screen did not open");
    }

    template<class Controllo>
    Controllo* controllo(const QString& nome) const
    {
        auto* trovato = mFinestra->findChild<Controllo*>(nome);
        if (!trovato)
            throw std::runtime_error("no control " + nome.toStdString());
        return trovato;
    }

    void richiama(int numero) const
    {
        controllo<QLineEdit>(u"txtNGiace"_s)->setText(QString::number(numero));
        controllo<QLineEdit>(u"txtDataGiace"_s)->setText(u"05/03/2015"_s);
        controllo<QPushButton>(u"cmdRicGiac"_s)->click();
    }

    /// In milliseconds.
    double stampa(int numero) const
    {
        const banco::Cronometro cronometro;
        controllo<QPushButton>(u"cmdRistampa"_s)->click();
        const double millisecondi = cronometro.millisecondi();
        const QString detto = controllo<QLabel>(u"lblStato"_s)->text();
        if (!detto.startsWith(u"Avviso di giacenza %1_2015 prodotto."_s.arg(numero)))
            throw std::runtime_error("the screen says: " + detto.toStdString());
        return millisecondi;
    }

private:
    QWidget* mFinestra = nullptr;
};

/// A message box would wait for somebody who is not there.
void chiudiMessaggi(QTimer& timer)
{
    QObject::connect(&timer, &QTimer::timeout, [] {
        if (QWidget* aperto = QApplication::activeModalWidget())
            aperto->close();
    });
    timer.start(std::chrono::seconds(1));
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const int quante = argomenti.value(1).toInt();
    const QTemporaryDir cartella(argomenti.value(2) + u"/avvisi-XXXXXX"_s);
    QFile ini(cartella.filePath(u"giacenza.ini"_s));
    if (!ini.open(QIODevice::WriteOnly) || ini.write(impostazioni) != impostazioni.size())
        return EXIT_FAILURE;
    ini.close();
    QTimer timer;
    chiudiMessaggi(timer);
    try {
        giacenza::cGiacenza giacenze;
        giacenze.setPercorsoDatabase(qEnvironmentVariable(banco::variabileConnessione));
        giacenze.setPercorsoFileIni(ini.fileName());
        giacenze.setPercorsoLogoIntestazione(argomenti.value(3));
        giacenze.ConsultaGiacenza();
        QApplication::processEvents();
        const Schermata schermata;
        double millisecondi = 0;
        for (int numero = 1; numero <= quante; ++numero) {
            schermata.richiama(numero);
            millisecondi += schermata.stampa(numero);
        }
        const QDir documenti(cartella.filePath(u"documenti"_s));
        return banco::stampaEsito(millisecondi, documenti.entryList({u"*.pdf"_s}).size(), quante);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}

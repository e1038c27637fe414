#include "host/avvio/dimostrazione.h"

#include "base/spiegazioni.h"
#include "host/avvio/altrofilo.h"
#include "host/avvio/sceltaarchivio.h"
#include "schema/dati/riempimento.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProgressDialog>
#include <QTemporaryDir>
#include <QTimer>

#include <atomic>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

constexpr int percento = 100;

/// The operator does not want it any more.
class Annullata : public giacenza::Errore
{
public:
    Annullata() : Errore(u"La preparazione dell'archivio dimostrativo è stata annullata."_s) {}
};

void riempi(const QString& file, std::atomic<int>& fatto, const std::atomic<bool>& annullato)
{
    giacenza::Connessione connessione;
    SceltaArchivio nuovo;
    nuovo.tipo = TipoArchivio::file;
    nuovo.file = file;
    connessione.apri(stringaOdbc(nuovo, {}));
    giacenza::dimostrazione::riempi(
        connessione, {.oggi = QDate::currentDate(), .crea = true}, [&](qsizetype fatte, qsizetype totali) {
            if (annullato)
                throw Annullata();
            fatto = static_cast<int>(fatte * percento / qMax<qsizetype>(totali, 1));
        });
}

/// Fills the file, telling how far it is; the reason why not, empty when it did.
QString riempiMostrando(const QString& file, QWidget* padre)
{
    QProgressDialog avanzamento(u"Preparo l'archivio dimostrativo…"_s, u"Annulla"_s, 0, percento, padre);
    avanzamento.setWindowModality(Qt::WindowModal);
    avanzamento.setMinimumDuration(0);
    avanzamento.setValue(0);
    std::atomic<int> fatto = 0;
    std::atomic<bool> annullato = false;
    QObject::connect(&avanzamento, &QProgressDialog::canceled, [&] { annullato = true; });
    QTimer orologio;
    QObject::connect(&orologio, &QTimer::timeout, [&] {
        // At its end the dialog would hide before the database has confirmed.
        if (!annullato)
            avanzamento.setValue(qMin<int>(fatto, percento - 1));
    });
    orologio.start(percento);
    QString motivo;
    inAltroFilo([&] {
        try {
            riempi(file, fatto, annullato);
        } catch (const giacenza::Errore& errore) {
            motivo = giacenza::spiega(errore);
        } catch (const std::exception& errore) {
            motivo = QString::fromUtf8(errore.what());
        }
    });
    return motivo;
}

} // namespace

QString preparaDimostrazione(const QString& file, QWidget* padre)
{
    if (QFileInfo::exists(file))
        return {};
    const QDir cartella = QFileInfo(file).absoluteDir();
    if (!cartella.mkpath(u"."_s))
        return u"La cartella \"%1\" non si può creare."_s.arg(cartella.path());
    const QTemporaryDir lavoro(cartella.filePath(u".nuovo.XXXXXX"_s));
    if (!lavoro.isValid())
        return u"Nella cartella \"%1\" non si può scrivere."_s.arg(cartella.path());
    const QString nuovo = lavoro.filePath(u"archivio.db"_s);
    QFile vuoto(nuovo);
    if (!vuoto.open(QIODevice::WriteOnly))
        return u"Nella cartella \"%1\" non si può scrivere."_s.arg(cartella.path());
    vuoto.close();
    const QString motivo = riempiMostrando(nuovo, padre);
    if (!motivo.isEmpty())
        return motivo;
    // What stood only in the log of the database would stay behind.
    if (QFileInfo(nuovo + u"-wal"_s).size() > 0)
        return u"I dati dimostrativi non sono stati scritti per intero."_s;
    if (!QFile::rename(nuovo, file))
        return u"L'archivio dimostrativo non si può mettere in \"%1\"."_s.arg(cartella.path());
    return {};
}

} // namespace deposito

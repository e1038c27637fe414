#include <giacenza/Contesto.h>
#include <giacenza/Documento.h>
#include <giacenza/EmittenteLdv.h>
#include <giacenza/RicercaTabella.h>

#include <QApplication>
#include <QDir>
#include <QListWidget>
#include <QPluginLoader>
#include <QTest>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

class UnaPagina : public giacenza::Documento
{
public:
    QString titolo() const override { return u"Avviso"_s; }
    QPageLayout impaginazione() const override
    {
        return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()};
    }
    int pagine() const override { return 1; }
    bool dipingi(int, QPainter&) override { return true; }
};

class Fonte : public giacenza::FonteDocumenti
{
public:
    explicit Fonte(const QString& cartella) : mCartella(cartella) {}
    std::unique_ptr<giacenza::Documento> documento(const giacenza::RichiestaDocumento&) override
    {
        return std::make_unique<UnaPagina>();
    }
    QString cartellaDocumenti() const override { return mCartella; }
    QString impostazione(const QString&) const override { return {}; }
    void archiviato(const QString& percorso) override
    {
        std::printf("modulo: %s\n",
                    qPrintable(QFile::exists(percorso) ? QFileInfo(percorso).fileName() : u"niente"_s));
    }

private:
    QString mCartella;
};

class Ldv : public giacenza::RecordLdv
{
public:
    explicit Ldv(bool vuota) : mVuota(vuota) {}
    bool vuoto() const override { return mVuota; }
    QStringList colonne() const override { return {u"lenrlv"_s}; }
    std::optional<QString> valore(const QString&) const override { return u"4711"_s; }

private:
    bool mVuota;
};

/// A new part of the class, for the interface that is needed.
template<class Interfaccia>
std::unique_ptr<Interfaccia> crea(giacenza::FabbricaParti& fabbrica, const QString& classe)
{
    auto parte = fabbrica.crea(classe);
    auto* voluta = dynamic_cast<Interfaccia*>(parte.get());
    if (!voluta)
        throw giacenza::Errore(u"%1 non c'è"_s.arg(classe));
    parte.release();
    return std::unique_ptr<Interfaccia>(voluta);
}

void provaModulo(giacenza::FabbricaParti& fabbrica, const QString& cartella)
{
    Fonte fonte(cartella + u"/documenti"_s);
    const auto modulo = crea<giacenza::ModuloStampaConFonte>(fabbrica, u"reportdocesempio.cmodulistampa"_s);
    modulo->setFonte(&fonte, nullptr);
    modulo->setTipoDocumento(giacenza::TipoDocumento::avviso);
    bool nonProdotto = false;
    modulo->stampaDocumento(u"1_2026"_s, nonProdotto);
}

void provaEmittente(giacenza::FabbricaParti& fabbrica)
{
    const auto emittente =
        crea<giacenza::EmittenteLdv>(fabbrica, QString::fromUtf16(giacenza::classeEmittenteLdv));
    giacenza::Contesto contesto;
    contesto.lavoro = u"Reso a Mittente"_s;
    contesto.numeroGiacenza = u"7"_s;
    contesto.annoGiacenza = 2026;
    contesto.racconta = [](const giacenza::Racconto& racconto) {
        std::printf("emittente vuoto: %s\n", qPrintable(racconto.testo));
    };
    dynamic_cast<giacenza::ParteConContesto&>(*emittente).setContesto(contesto);
    std::printf("emittente: %s\n", qPrintable(emittente->emetti(Ldv(false))));
    if (!emittente->emetti(Ldv(true)).isEmpty())
        std::puts("emittente: qualcosa da niente");
}

void provaRicerca(giacenza::FabbricaParti& fabbrica, const QString& cartella)
{
    const auto ricerca =
        crea<giacenza::RicercaTabella>(fabbrica, QString::fromUtf16(giacenza::classeRicercaTabella));
    ricerca->setPercorsoDatabase(u"DRIVER={SQLite3};Database=%1/ricerca.db"_s.arg(cartella));
    ricerca->setScelta(
        [](const QStringList& valori) { std::printf("ricerca: %s\n", qPrintable(valori.join(u','))); });
    QTimer::singleShot(0, [] {
        auto* elenco = QApplication::activeModalWidget()->findChild<QListWidget*>();
        elenco->setCurrentRow(1);
        QTest::keyClick(elenco, Qt::Key_Return);
    });
    ricerca->mostra(u"select 'uno', 1 union all select 'due', 2"_s, u"Prova"_s, nullptr);
    try {
        ricerca->mostra(u"select"_s, u"Prova"_s, nullptr);
    } catch (const giacenza::ErroreDatabase& errore) {
        std::printf("ricerca errata: %s\n", qPrintable(errore.sqlstate()));
    }
}

} // namespace

/// prova-parti FILE FOLDER: drives the parts of a plug-in file; prints what each did.
int main(int argc, char** argv)
{
    const QApplication applicazione(argc, argv);
    QPluginLoader file(QString::fromLocal8Bit(argv[1]));
    auto* fabbrica = qobject_cast<giacenza::FabbricaParti*>(file.instance());
    if (!fabbrica) {
        std::puts(qPrintable(file.errorString()));
        return 1;
    }
    const QString cartella = QString::fromLocal8Bit(argv[2]);
    provaModulo(*fabbrica, cartella);
    provaEmittente(*fabbrica);
    provaRicerca(*fabbrica, cartella);
    return 0;
}

#include <giacenza/LettoreIni.h>
#include <giacenza/RicercaTabella.h>
#include <giacenza/cGiacenza.h>

#include <QApplication>
#include <QPluginLoader>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int guasti = 0;

void verifica(bool vero, const char* cosa)
{
    if (vero)
        return;
    std::fprintf(stderr, "non vero: %s\n", cosa);
    ++guasti;
}

class LettoreDellOspite : public giacenza::LettoreIni
{
public:
    QString leggi(const QString&, const QString&, const QString& chiave) override { return chiave; }
};

void provaLaClasse()
{
    giacenza::cGiacenza classe;
    QObject::connect(&classe, &giacenza::cGiacenza::fine, &classe,
                     [] { verifica(false, "fine senza schermate"); });
    classe.setPercorsoDatabase(u"DRIVER={Nessuno};"_s);
    classe.setPercorsoFileIni(u"gest.ini"_s);
    classe.setPercorsoLogoIntestazione(u"logo.gif"_s);
    classe.setTipoReso(giacenza::cGiacenza::ResoMittente);
    verifica(classe.PercorsoDatabase() == u"DRIVER={Nessuno};"_s, "PercorsoDatabase");
    verifica(giacenza::cGiacenza().PercorsoFileIni() == u"gest.ini"_s, "PercorsoFileIni");
    verifica(!classe.Esegui(u"nulla"_s).isValid(), "Esegui");
    verifica(giacenza::cGiacenza::IdEsegui == 0x6003000C, "IdEsegui");
}

// The file is a plug-in by what the component looks at, and its part is of the kind that it says.
void provaIlModulo(const QString& percorso)
{
    QPluginLoader modulo(percorso);
    auto* fabbrica = qobject_cast<giacenza::FabbricaParti*>(modulo.instance());
    verifica(fabbrica != nullptr, qPrintable(modulo.errorString()));
    if (!fabbrica)
        return;
    const auto parte = fabbrica->crea(QStringView(giacenza::classeRicercaTabella).toString());
    auto* ricerca = dynamic_cast<giacenza::RicercaTabella*>(parte.get());
    verifica(ricerca != nullptr, "la parte e' una RicercaTabella");
    if (!ricerca)
        return;
    QStringList scelti;
    ricerca->setScelta([&](const QStringList& valori) { scelti = valori; });
    ricerca->mostra(u"select 1"_s, {}, nullptr);
    verifica(scelti == QStringList(u"select 1"_s), "la scelta torna");
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication applicazione(argc, argv);
    giacenza::registraParte(QStringView(giacenza::classeLettoreIni).toString(),
                            [] { return std::make_unique<LettoreDellOspite>(); });
    provaLaClasse();
    provaIlModulo(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    giacenza::registraParte(QStringView(giacenza::classeLettoreIni).toString(), {});
    return guasti == 0 ? 0 : 1;
}

#include <giacenza/Chiamata.h>
#include <giacenza/LettoreIni.h>
#include <giacenza/RicercaTabella.h>
#include <giacenza/cGiacenza.h>
#include <giacenza/giacenza.h>

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

// By name, by number, and from C, to the same settings; an exception of the library is known here by its
// type.
void provaIlLegame()
{
    giacenza::cGiacenza classe;
    giacenza::chiama(classe, u"percorsodatabase"_s, giacenza::Modo::scrivi, {u"DRIVER={Tardi};"_s});
    verifica(giacenza::chiama(classe, 0x68030003, giacenza::Modo::leggi) == QVariant(u"DRIVER={Tardi};"_s),
             "per nome e per numero");
    try {
        giacenza::chiama(classe, 0x60030007, giacenza::Modo::metodo);
        verifica(false, "un numero che manca");
    } catch (const giacenza::ErroreChiamata& errore) {
        verifica(errore.codice() == giacenza::ErroreChiamata::membroIgnoto, "membroIgnoto");
    }
    giacenza_oggetto oggetto = 0;
    giacenza_valore valore = {GIACENZA_VUOTO, 0, nullptr};
    verifica(giacenza_abi() == GIACENZA_ABI, "giacenza_abi");
    verifica(giacenza_crea(&oggetto) == GIACENZA_BENE, "giacenza_crea");
    verifica(giacenza_invoca(oggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, &valore) ==
                 GIACENZA_BENE,
             "giacenza_invoca");
    verifica(QString::fromUtf8(valore.testo) == u"DRIVER={Tardi};"_s, "da C");
    giacenza_libera(&valore);
    verifica(giacenza_rilascia(oggetto) == GIACENZA_BENE, "giacenza_rilascia");
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
    provaIlLegame();
    provaIlModulo(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    giacenza::registraParte(QStringView(giacenza::classeLettoreIni).toString(), {});
    return guasti == 0 ? 0 : 1;
}

// Stays, one run for each request: what the registration screen does to the database without the screen. The
// argument says what: "lookup", the statement and the mapping of its row, or "save".

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "benchmarks/chiave/giorno.h"
#include "benchmarks/chiave/operazione.h"
#include "benchmarks/quadro/esito.h"
#include "data/archivio.h"
#include "data/istruzioni.h"
#include "data/salvataggio.h"
#include "screens/spedizione.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace banco;

namespace {

/// Takes what the mapping gives, as the controls of a screen would.
class Raccolta : public DestinazioneSpedizione
{
public:
    void scrivi(QLatin1String, const QString& testo) override { mTesti.push_back(testo); }
    void scriviTag(QLatin1String, const QString& testo) override { mTesti.push_back(testo); }
    void seleziona(QLatin1String, int riga) override { mRiga = riga; }
    void lascia(QLatin1String) override {}
    void giaInGiacenza(bool giacente) override { mGiacente = giacente; }

    std::size_t quanti() const { return mTesti.size(); }

private:
    std::vector<QString> mTesti;
    int mRiga = -1;
    bool mGiacente = false;
};

/// With the connection that a screen has open.
class SullaConnessione : public Operazione
{
protected:
    SullaConnessione() { mSchermo.apri(accessoHost()); }

    Connessione mSchermo;
};

class Ricerca : public SullaConnessione
{
public:
    double esegui(const Caso& caso) override
    {
        const Cronometro cronometro;
        Raccolta raccolta;
        Recordset riga;
        riga.apri(mSchermo, istruzioni::spedizionePerNumeroDataFiliale(caso.numero, caso.data, caso.filiale));
        if (!riga.eof())
            CaricaDatiSpedizione(riga, mPosti, raccolta);
        riga.chiudi();
        const double millisecondi = cronometro.millisecondi();
        if (raccolta.quanti() == 0)
            throw Errore(u"The waybill %1 was not found."_s.arg(caso.numero));
        return millisecondi;
    }

private:
    PostiSpedizione mPosti{mappaRegistrazione()};
};

class Salvataggio : public SullaConnessione
{
public:
    double esegui(const Caso& caso) override
    {
        const DatiGiacenza dati{.filiale = caso.filiale,
                                .numeroLdv = caso.numero,
                                .dataLdv = caso.data,
                                .cliente = caso.cliente,
                                .filialeGiacenza = caso.filiale,
                                .giorniSosta = u"0"_s,
                                .dataGiacenza = caso.dataGiacenza,
                                .motivo = u"Destinatario assente al secondo passaggio"_s};
        const Cronometro cronometro;
        if (ControlloInserimento(mSchermo, caso.numero, caso.data) != Ammissione::ammessa)
            throw Errore(u"The waybill %1 cannot be held."_s.arg(caso.numero));
        InserisciGiacenza(mSchermo, accessoHost(), dati);
        return cronometro.millisecondi();
    }
};

std::unique_ptr<Operazione> operazione(const QString& nome)
{
    if (nome == u"lookup"_s)
        return std::make_unique<Ricerca>();
    if (nome == u"save"_s)
        return std::make_unique<Salvataggio>();
    throw Errore(u"There is no operation \"%1\"."_s.arg(nome));
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    impostaOggi(QDate::fromString(QString::fromLatin1(giornoMisure), Qt::ISODate));
    impostazioni().percorsoDatabase = qEnvironmentVariable(variabileConnessione);
    try {
        return servi(*operazione(QCoreApplication::arguments().value(1)));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}

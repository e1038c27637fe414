#pragma once

#include "desk/avvisi/emittentecaso.h"
#include "desk/dati/scadenzario.h"
#include "desk/finestra/archiviodesk.h"
#include "desk/finestra/azionidesk.h"

#include <giacenza/Caso.h>

#include <QTimer>
#include <QWidget>

class QLabel;
class QPushButton;
class QSettings;
class QStackedWidget;

namespace giacenza::desk {

class CampoScansione;
class PaginaCaso;
class PaginaElenco;
class PaginaRisultati;

/// The depot's desk: the one field, the list of the open cases, what a number led to, one case with its whole
/// chain, and what can be done from there. It reads in threads of its own; the component's screens are opened
/// through the public class.
class FinestraDesk : public QWidget
{
    Q_OBJECT

public:
    /// What the host told the component, for the desk's own use.
    struct Archivio
    {
        QString database; ///< connection string; empty: there is nothing to read
        QString ini;      ///< settings file
        QString logo;
    };
    /// Opens a screen as the host does: tells a failure, and steps behind it. schermata: its name, for the
    /// operator.
    using Apertura = std::function<void(const QString& schermata, const std::function<void()>& apri)>;

    /// componente: outlives the desk.
    FinestraDesk(cGiacenza& componente, const Archivio& archivio, Apertura apertura,
                 QWidget* padre = nullptr);
    ~FinestraDesk() override;

    AzioniDesk& azioni() { return mAzioni; }
    /// What the actions are about: the case that is shown, or chosen among what was found, else those that
    /// are marked in the list.
    std::vector<Caso> casi() const;

    /// Reads the list, and the case or what was found that is shown, anew.
    void aggiorna();
    /// Takes columns, order, branch and filter from the last time; before the first reading.
    void riprendi(const QSettings& impostazioni);
    /// Writes them down for the next.
    void ricorda(QSettings& impostazioni) const;
    /// Every how many milliseconds the list is read without being asked.
    void setIntervallo(int millisecondi);

protected:
    void changeEvent(QEvent* evento) override;

private:
    void componi();
    void collegaPagine();
    void collegaLettura();
    void collegaAzioni();
    ArchivioDesk::Sguardo sguardo();
    std::optional<Accesso> accesso();

    void letteAltre(std::vector<RigaCaso>& righe);
    void letturaFinita();
    void diciFiltroRipreso();
    void letturaFallita(const QString& testo, const QString& dettaglio);
    void filialiLette(const std::vector<Filiale>& filiali);
    void filialiFallite(const QString& testo, const QString& dettaglio);

    void rileggi();
    void cerca(const QString& testo);
    void letto(const Catena& catena);
    void trovato(const EsitoRicerca& esito);
    void scelta(const Trovata& trovata);
    void mostraCatena(const Caso& caso);
    void mostraElenco();
    void indietro();
    void menuCaso(const QPoint& dove);

    void apriCaso(SchermataCaso schermata, const QString& nome, const Caso& caso);
    void apriPrimo(SchermataCaso schermata, const QString& nome);
    void registra(const Trovata& trovata);
    void invia(Lavoro lavoro);
    void apriDocumento(const QString& file);
    /// allarme: in the colour of what went wrong. Empty takes the line away.
    void dici(const QString& testo, bool allarme = false, const QString& dettaglio = {});

    cGiacenza& mComponente;
    Archivio mArchivioHost;
    Apertura mApertura;
    AzioniDesk mAzioni{this};
    CampoScansione* mCampo;
    QPushButton* mCerca;
    QLabel* mEsito;
    QStackedWidget* mPagine;
    PaginaElenco* mElenco;
    PaginaRisultati* mRisultati;
    PaginaCaso* mCaso;
    QTimer mTimer;
    bool mPrimaLettura = true;
    bool mFiltroRipreso = false;  ///< it is the last time's, and nobody was told yet
    bool mCercando = false;       ///< an answer that the operator waits for is on its way
    bool mRilettura = false;      ///< what is on the screen is being read anew: nothing moves
    QString mLettaAlle;           ///< when the list was read that stands there
    QString mGuastoElenco;        ///< what was said of a list that could not be read
    QString mGuastoFiliali;       ///< and of the branches
    QString mDettaglioFiliali;    ///< with the driver's words
    std::vector<RigaCaso> mLette; ///< of a reading that replaces an earlier one
    Scadenzario* mScadenzario;
    ArchivioDesk* mArchivio;
};

} // namespace giacenza::desk

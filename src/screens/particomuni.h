#pragma once

#include "screens/campocliente.h"
#include "screens/casomostrato.h"
#include "screens/disposizione.h"
#include "screens/spedizionemostrata.h"
#include "screens/stampacaso.h"

class QComboBox;

namespace giacenza {

/// The controls that every working screen's form has, under the same names.
struct ControlliComuni
{
    QLineEdit* txtCodiceCli;
    QLabel* barCliente;
    QPushButton* cmdCercaCliente;
    QLineEdit* txtFilialeGia;
    QLabel* barFilialeGia;
    CampoData* txtDataGia;
    QLabel* lblDataLav;
    QLabel* lblDataBuonFine;
    QLabel* lblNrGia;
    QLabel* barGiorniSosta;
    QComboBox* cmbNaturaMerce;
    QComboBox* cmbPorto;
    QLabel* lblStato;
    QPushButton* cmdEsci;

    /// Of a form that was set up.
    template<class Forma>
    static ControlliComuni di(const Forma& f)
    {
        return {f.txtCodiceCli,   f.barCliente, f.cmdCercaCliente, f.txtFilialeGia, f.barFilialeGia,
                f.txtDataGia,     f.lblDataLav, f.lblDataBuonFine, f.lblNrGia,      f.barGiorniSosta,
                f.cmbNaturaMerce, f.cmbPorto,   f.lblStato,        f.cmdEsci};
    }
};

/// The parts that every working screen has.
class PartiComuni
{
public:
    /// What differs between the screens.
    struct Differenze
    {
        CampoCliente::Differenze cliente = {};
        std::function<void(const Recordset&)> rigaMostrata = {};
        QLabel* avvertenzaFiliale = nullptr;
        QLabel* avvertenzaData = nullptr;
        bool senzaRiquadri = false; ///< a failing list of branches shows no box
    };

    PartiComuni(Schermata& schermata, const ControlliComuni& controlli, const MappaSpedizione& mappa,
                const Differenze& differenze);

    /// Fills the lists, and the dates with today.
    void riempi();
    /// Today in the working date and in the date of the held shipment.
    void oggiNelleDate();

private:
    Schermata& mSchermata;
    ControlliComuni mControlli;

public:
    StampaCaso stampa;
    CampoCliente cliente;
    CampoFiliale filialeGiacenza;
    DataGiacenza dataGiacenza;
    CasoMostrato caso;
    SpedizioneMostrata spedizione;
};

/// A form that is set up on its screen before the screen's parts are made.
template<class Forma>
std::unique_ptr<Forma> creaForma(QWidget* schermata)
{
    auto forma = std::make_unique<Forma>();
    forma->setupUi(schermata);
    new Disposizione(schermata);
    return forma;
}

} // namespace giacenza

#include <giacenza/Caso.h>

#include "base/forme.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// The screen that was just opened.
QWidget* aperta(const QString& nome)
{
    return Forme::delThread()->caricata(nome);
}

void gestione(cGiacenza& classe, const CasoDaMostrare& caso)
{
    classe.ConsultaGiacenza();
    QWidget* schermata = aperta(u"frmGestGia"_s);
    if (!schermata)
        return;
    schermata->setProperty("DataGiacenza", caso.dataGiacenza);
    schermata->setProperty("NumeroGiacenza", caso.numeroGiacenza);
}

void riconsegna(cGiacenza& classe, cGiacenza::Reso tipo, const CasoDaMostrare& caso)
{
    classe.setTipoReso(tipo);
    classe.MostraRiconsegna();
    QWidget* schermata = aperta(u"frmRiconsegna"_s);
    if (!schermata)
        return;
    schermata->setProperty("NLettVett", caso.numeroLdv);
    schermata->setProperty("DataLdv", caso.dataLdv);
    schermata->setProperty("Filiale", caso.filialeLdv);
    schermata->setProperty("NumeroGiacenza", caso.numeroGiacenza);
    schermata->setProperty("CodiceCliente", caso.cliente);
}

} // namespace

void MostraCaso(cGiacenza& classe, SchermataCaso schermata, const CasoDaMostrare& caso)
{
    switch (schermata) {
    case SchermataCaso::gestione:
        return gestione(classe, caso);
    case SchermataCaso::riconsegna:
        return riconsegna(classe, cGiacenza::ResoDestinatario, caso);
    case SchermataCaso::reso:
        return riconsegna(classe, cGiacenza::ResoMittente, caso);
    }
}

} // namespace giacenza

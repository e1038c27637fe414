#include "giacenza_finta.h"

#include <giacenza/Caso.h>

using namespace Qt::StringLiterals;

GiacenzaFinta& giacenzaFinta()
{
    static GiacenzaFinta finta;
    return finta;
}

namespace giacenza {

namespace {

void segna(const QString& chiamata)
{
    giacenzaFinta().chiamate << chiamata;
}

void apri(const QString& chiamata)
{
    segna(chiamata);
    if (giacenzaFinta().errore)
        std::rethrow_exception(giacenzaFinta().errore);
}

} // namespace

class cGiacenza::Interno
{};

cGiacenza::cGiacenza(QObject* parent) : QObject(parent)
{
    giacenzaFinta().attuale = this;
}

cGiacenza::~cGiacenza()
{
    giacenzaFinta().attuale = nullptr;
}

QString cGiacenza::PercorsoDatabase() const
{
    return {};
}

void cGiacenza::setPercorsoDatabase(const QString& percorso)
{
    segna(u"database "_s + percorso);
}

QString cGiacenza::PercorsoFileIni() const
{
    return {};
}

void cGiacenza::setPercorsoFileIni(const QString& percorso)
{
    segna(u"ini "_s + percorso);
}

void cGiacenza::setPercorsoLogoIntestazione(const QString& percorso)
{
    segna(u"logo "_s + percorso);
}

void cGiacenza::setTipoReso(Reso tipo)
{
    segna(u"tipo %1"_s.arg(tipo));
}

void cGiacenza::NuovaGiacenza()
{
    apri(u"nuova"_s);
}

void cGiacenza::NuovaGiacenzaEXT(const QString& strLdv, const QString& strDataLdv, const QString& strFiliale,
                                 const QString& strCliente)
{
    apri(u"nuova %1|%2|%3|%4"_s.arg(strLdv, strDataLdv, strFiliale, strCliente));
}

void cGiacenza::MostraRiconsegna()
{
    apri(u"riconsegna"_s);
}

void cGiacenza::ConsultaGiacenza()
{
    apri(u"gestione"_s);
}

QVariant cGiacenza::Esegui(const QString& Azione, const QVariant& Arg)
{
    Q_UNUSED(Arg);
    segna(u"esegui "_s + Azione);
    return {};
}

void MostraCaso(cGiacenza&, SchermataCaso schermata, const CasoDaMostrare& caso)
{
    apri(u"caso %1 %2|%3|%4|%5|%6|%7"_s.arg(QString::number(static_cast<int>(schermata)), caso.numeroGiacenza,
                                            caso.dataGiacenza, caso.numeroLdv, caso.dataLdv, caso.cliente,
                                            caso.filialeLdv));
}

} // namespace giacenza

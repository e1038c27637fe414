#include "giacenza_finta.h"

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
    segna(QStringLiteral("database ") + percorso);
}

QString cGiacenza::PercorsoFileIni() const
{
    return {};
}

void cGiacenza::setPercorsoFileIni(const QString& percorso)
{
    segna(QStringLiteral("ini ") + percorso);
}

void cGiacenza::setPercorsoLogoIntestazione(const QString& percorso)
{
    segna(QStringLiteral("logo ") + percorso);
}

void cGiacenza::setTipoReso(Reso tipo)
{
    segna(QStringLiteral("tipo %1").arg(tipo));
}

void cGiacenza::NuovaGiacenza()
{
    apri(QStringLiteral("nuova"));
}

void cGiacenza::NuovaGiacenzaEXT(const QString& strLdv, const QString& strDataLdv, const QString& strFiliale,
                                 const QString& strCliente)
{
    apri(QStringLiteral("nuova %1|%2|%3|%4").arg(strLdv, strDataLdv, strFiliale, strCliente));
}

void cGiacenza::MostraRiconsegna()
{
    apri(QStringLiteral("riconsegna"));
}

void cGiacenza::ConsultaGiacenza()
{
    apri(QStringLiteral("gestione"));
}

QVariant cGiacenza::Esegui(const QString& Azione, const QVariant& Arg)
{
    Q_UNUSED(Arg);
    segna(QStringLiteral("esegui ") + Azione);
    return {};
}

} // namespace giacenza

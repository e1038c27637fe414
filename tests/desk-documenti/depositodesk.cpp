#include "depositodesk.h"

#include "base/orologio.h"
#include "data/istruzioni.h"

#include <QDir>
#include <QProcess>

namespace giacenza::prove {

DepositoDesk::DepositoDesk()
{
    qputenv("GIACENZA_UTENTE", "Bianchi");
    impostaOggi(mOggi);
    riempiDeposito(mBase);
    mBase.esegui(QStringLiteral(R"(
insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) values ('C',1001,'A',5,5,1.5,15);
update letve00f set lecmpe='A' where lenrlv='4714';
update letve00f set LERFGI='42', LEANGI=2026, LEDTCO=null where lenrlv='4711';
update letve00f set lecodi=1002 where lenrlv='4712';
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe,ledest,leindd,lecapd,lelocd,leprod,lerico,lerife,leport,lecoll,lepeso,lenote,LERFGI,LEANGI) values ('MI','4720',2026,'2026-11-19',1001,'A','Utensileria del Lago','Corso Italia 44','22100','Como','CO','R','ORD-881',1,3,45.50,'Riconsegna a Destinatario','42',2026);
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIGGSO,GINRAV,GIDTAV,GIDES1) values ('MI','4711',2026,1001,'BO','42',2026,'2026-11-01',0,'2','2026-11-16','01/11/2026 - Chiuso');
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GINRGI,GIANGI,GIDTGI) values ('MI','4712',2026,1002,'43',2026,'2026-11-10');
)"));
}

DepositoDesk::~DepositoDesk()
{
    impostaOggi({});
    qunsetenv("GIACENZA_UTENTE");
}

documenti::Carta DepositoDesk::carta() const
{
    return {{},
            {u"Trasporti Prova"_s, u"Via dei Trasporti 12"_s, u"Segrate"_s, {}},
            {u"P. IVA 01234567890"_s},
            mCartella.path()};
}

QStringList DepositoDesk::salvati() const
{
    return QDir(mCartella.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QString testoPdf(const QString& file)
{
    QProcess lettore;
    lettore.start(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s});
    if (!lettore.waitForFinished() || lettore.exitCode() != 0)
        throw std::runtime_error("pdftotext: " + lettore.readAllStandardError().toStdString());
    return QString::fromUtf8(lettore.readAllStandardOutput());
}

} // namespace giacenza::prove

#include "management/gestionediprova.h"

#include "data/traccia.h"
#include "support/trova.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace giacenza::prove {

GestioneDiProva::GestioneDiProva()
{
    mBase.esegui(QStringLiteral(R"(
update letve00f set lecdve='V01', lelin1='L05', lecmpe='A' where lefili='MI';
insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) values ('C',1001,'A',7.50,5,1.50,15.00);
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GIDES1)
 values ('MI','4711',2026,1001,'MI','41',2026,'2026-11-10','10/11/2026 - Assente');
insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GIFIGI,GINRGI,GIANGI,GIDTGI,GINRAV,GIDTAV,GIDES1)
 values ('MI','4712',2026,1001,'BO','39',2026,'2026-11-05','3','2026-11-20','Trasloco');
)"));
}

GestioneDiProva::~GestioneDiProva()
{
    impostaTraccia({});
}

void GestioneDiProva::richiama(const QString& numero, const QString& data)
{
    if (!mSchermata)
        apri();
    scrivi("txtNGiace", numero);
    tasto("txtNGiace", Qt::Key_Return);
    scrivi("txtDataGiace", data);
    tasto("txtDataGiace", Qt::Key_Return);
}

void GestioneDiProva::avvisa(const QString& motivo)
{
    bool venuto = false;
    QTimer::singleShot(0, mSchermata, [&] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr);
        venuto = dialogo->objectName() == QStringLiteral("frmRifiuto");
        EXPECT_EQ(dialogo->parentWidget(), mSchermata);
        if (motivo.isEmpty()) {
            QTest::keyClick(dialogo, Qt::Key_Escape);
            return;
        }
        trova<QLineEdit>(dialogo, QStringLiteral("txtMotivazione"))->setText(motivo);
        trova<QPushButton>(dialogo, QStringLiteral("cmdOk"))->click();
    });
    clicca("cmdAvvisoGia");
    EXPECT_TRUE(venuto) << "the refusal dialog did not open";
}

QString GestioneDiProva::caso(const QString& colonne, const QString& numero) const
{
    const auto righe = mBase.righe(
        QStringLiteral("select %1 from giace00f where GINRGI='%2' and GIANGI=2026").arg(colonne, numero));
    return righe.isEmpty() ? QString() : righe.front().join(QLatin1Char('|'));
}

QString GestioneDiProva::tutto(const QString& numero) const
{
    return caso(QStringLiteral("GINRAV,GIDTAV,GIDES1,GIDTBF,GIGGSO,FissoGiacenza,GIIMGI"), numero);
}

void GestioneDiProva::fallisce(const QString& inizio, const QString& sqlstate)
{
    impostaTraccia([=](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(inizio, Qt::CaseInsensitive))
            throw ErroreDatabase(sqlstate, 1, QStringLiteral("guasto di prova"), testo);
    });
}

} // namespace giacenza::prove

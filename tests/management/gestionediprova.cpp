#include "management/gestionediprova.h"

#include "support/trova.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

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

void GestioneDiProva::richiama(const QString& numero, const QString& data)
{
    if (!mSchermata)
        apri();
    scrivi("txtNGiace", numero);
    tasto("txtNGiace", Qt::Key_Return);
    scrivi("txtDataGiace", data);
    tasto("txtDataGiace", Qt::Key_Return);
}

void GestioneDiProva::nelDialogo(std::function<void(QDialog& dialogo)> azione)
{
    QTimer::singleShot(0, mSchermata, [azione = std::move(azione)] {
        auto* dialogo = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialogo, nullptr) << "no dialog came";
        azione(*dialogo);
    });
}

void GestioneDiProva::avvisa(const QString& motivo)
{
    bool venuto = false;
    nelDialogo([&](QDialog& dialogo) {
        venuto = dialogo.objectName() == u"frmRifiuto"_s && dialogo.parentWidget() == mSchermata;
        if (motivo.isEmpty()) {
            QTest::keyClick(&dialogo, Qt::Key_Escape);
            return;
        }
        confermaRifiuto(motivo);
    });
    clicca("cmdAvvisoGia");
    EXPECT_TRUE(venuto) << "the refusal dialog did not open over the screen";
}

void GestioneDiProva::confermaRifiuto(const QString& motivo)
{
    QWidget* dialogo = QApplication::activeModalWidget();
    auto* riga = trova<QLineEdit>(dialogo, u"txtMotivazione"_s);
    riga->setFocus();
    QTest::keyClicks(riga, motivo);
    trova<QPushButton>(dialogo, u"cmdOk"_s)->click();
}

void GestioneDiProva::scriviEtichetta(const char* nome, const QString& testo)
{
    qobject_cast<QLabel*>(c(nome))->setText(testo);
}

QString GestioneDiProva::caso(const QString& colonne, const QString& numero) const
{
    const auto righe =
        mBase.righe(u"select %1 from giace00f where GINRGI='%2' and GIANGI=2026"_s.arg(colonne, numero));
    return righe.isEmpty() ? QString() : righe.front().join(u'|');
}

QString GestioneDiProva::tutto(const QString& numero) const
{
    return caso(u"GINRAV,GIDTAV,GIDES1,GIDTBF,GIGGSO,FissoGiacenza,GIIMGI"_s, numero);
}

} // namespace giacenza::prove

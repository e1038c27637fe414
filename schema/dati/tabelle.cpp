#include "schema/dati/tabelle.h"

namespace giacenza::dimostrazione {

namespace {

Tabella tabella(const QString& nome, const QString& colonne)
{
    return {nome, colonne.split(u' ', Qt::SkipEmptyParts)};
}

} // namespace

const Tabella& tabellaFiliali()
{
    static const Tabella t =
        tabella(QStringLiteral("filiali"), QStringLiteral("codice descrizione Indirizzo Località provincia"));
    return t;
}

const Tabella& tabellaClienti()
{
    static const Tabella t =
        tabella(QStringLiteral("clien"),
                QStringLiteral("Codice RagioneSociale Indirizzo Localita Provincia CLCAP PartitaIva"));
    return t;
}

const Tabella& tabellaFornitori()
{
    static const Tabella t =
        tabella(QStringLiteral("forni"),
                QStringLiteral("Codice RagioneSociale Indirizzo Localita Provincia PartitaIva"));
    return t;
}

const Tabella& tabellaZone()
{
    static const Tabella t = tabella(QStringLiteral("codicizona"), QStringLiteral("Codice Descrizione"));
    return t;
}

const Tabella& tabellaPorto()
{
    static const Tabella t = tabella(QStringLiteral("porto"), QStringLiteral("idPorto Descrizione"));
    return t;
}

const Tabella& tabellaFatturazione()
{
    static const Tabella t =
        tabella(QStringLiteral("tabfatturazione"),
                QStringLiteral("FALCOD FACODI FACMPE FAIVA FADFGI FAFRGI FATGIG FAMIGI"));
    return t;
}

const Tabella& tabellaImpostazioni()
{
    static const Tabella t =
        tabella(QStringLiteral("ekelvorqzt_tabge00f"),
                QStringLiteral("UltimoNumGiacenza IstrSuAvvGiac UltimoNumBordereau DataBorderau"));
    return t;
}

const Tabella& tabellaSpedizioni()
{
    static const Tabella t =
        tabella(QStringLiteral("letve00f"),
                QStringLiteral("lefili lenrlv leanlv ledtlv lecodi lecmpe ledest leindd lecapd lelocd leprod "
                               "lerico lecdve lelin1 lenatu lerife lerifd leport lecoll lepeso levolu lecnss "
                               "leanpc lenote levame leflbc LERFGI LEANGI LEDTCO"));
    return t;
}

const Tabella& tabellaGiacenze()
{
    static const Tabella t =
        tabella(QStringLiteral("giace00f"),
                QStringLiteral("GIFILI GINRLV GIANLV GICODI GIFIGI GINRGI GIANGI GIDTGI GIGGSO GINRAV GIDTAV "
                               "GIDES1 GIDTBF GIIMGI FissoGiacenza GINRFA GIDTFA GICOFA"));
    return t;
}

std::vector<const Tabella*> tutteLeTabelle()
{
    return {&tabellaFiliali(),      &tabellaZone(),       &tabellaPorto(),
            &tabellaClienti(),      &tabellaFornitori(),  &tabellaFatturazione(),
            &tabellaImpostazioni(), &tabellaSpedizioni(), &tabellaGiacenze()};
}

QString testoDecimale(qint64 valore, int cifre)
{
    const QString testo = QString::number(qAbs(valore)).rightJustified(cifre + 1, u'0');
    const QString segno = valore < 0 ? QStringLiteral("-") : QString();
    return segno + testo.left(testo.size() - cifre) + u'.' + testo.right(cifre);
}

} // namespace giacenza::dimostrazione

#include "schema/dati/tabelle.h"

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

Tabella tabella(const QString& nome, const QString& colonne)
{
    return {nome, colonne.split(u' ', Qt::SkipEmptyParts)};
}

} // namespace

const Tabella& tabellaFiliali()
{
    static const Tabella t = tabella(u"filiali"_s, u"codice descrizione Indirizzo Località provincia"_s);
    return t;
}

const Tabella& tabellaClienti()
{
    static const Tabella t =
        tabella(u"clien"_s, u"Codice RagioneSociale Indirizzo Localita Provincia CLCAP PartitaIva"_s);
    return t;
}

const Tabella& tabellaFornitori()
{
    static const Tabella t =
        tabella(u"forni"_s, u"Codice RagioneSociale Indirizzo Localita Provincia PartitaIva"_s);
    return t;
}

const Tabella& tabellaZone()
{
    static const Tabella t = tabella(u"codicizona"_s, u"Codice Descrizione"_s);
    return t;
}

const Tabella& tabellaPorto()
{
    static const Tabella t = tabella(u"porto"_s, u"idPorto Descrizione"_s);
    return t;
}

const Tabella& tabellaFatturazione()
{
    static const Tabella t =
        tabella(u"tabfatturazione"_s, u"FALCOD FACODI FACMPE FAIVA FADFGI FAFRGI FATGIG FAMIGI"_s);
    return t;
}

const Tabella& tabellaImpostazioni()
{
    static const Tabella t = tabella(u"ekelvorqzt_tabge00f"_s,
                                     u"UltimoNumGiacenza IstrSuAvvGiac UltimoNumBordereau DataBorderau"_s);
    return t;
}

const Tabella& tabellaSpedizioni()
{
    static const Tabella t = tabella(
        u"letve00f"_s, u"lefili lenrlv leanlv ledtlv lecodi lecmpe ledest leindd lecapd lelocd leprod "
                       "lerico lecdve lelin1 lenatu lerife lerifd leport lecoll lepeso levolu lecnss "
                       "leanpc lenote levame leflbc LERFGI LEANGI LEDTCO"_s);
    return t;
}

const Tabella& tabellaGiacenze()
{
    static const Tabella t = tabella(
        u"giace00f"_s, u"GIFILI GINRLV GIANLV GICODI GIFIGI GINRGI GIANGI GIDTGI GIGGSO GINRAV GIDTAV "
                       "GIDES1 GIDTBF GIIMGI FissoGiacenza GINRFA GIDTFA GICOFA"_s);
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
    const QString segno = valore < 0 ? u"-"_s : QString();
    return segno + testo.left(testo.size() - cifre) + u'.' + testo.right(cifre);
}

} // namespace giacenza::dimostrazione

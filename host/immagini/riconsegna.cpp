#include "host/immagini/capitoli.h"

#include "database/valori.h"

#include <QAbstractButton>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

struct Caso
{
    QString numero;
    QString filiale;
    QString ldv;
    QString dataLdv; ///< dd/mm/yyyy
    QString cliente;
};

/// The latest open case of this year to which only its own waybill is linked.
Caso caso(Archivio& archivio)
{
    const auto riga = archivio.riga(
        u"select GINRGI, lefili, lenrlv, ledtlv, lecodi from giace00f "
        "inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "inner join filiali on lefili=filiali.codice inner join codicizona on lelin1=codicizona.Codice "
        "inner join forni on forni.Codice=lecdve inner join clien on clien.Codice=lecodi "
        "where GIDTBF is null and GIANGI=%1 and (select count(*) from letve00f legata "
        "where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI)=1 "
        "order by cast(GINRGI as decimal) desc limit 1"_s.arg(qEnvironmentVariable("GIACENZA_OGGI").left(4)));
    Regista::verifica(riga.size() == 5, u"manca una giacenza da riconsegnare"_s);
    return {*riga[0], *riga[1], *riga[2], dataBreve(*leggiData(*riga[3])), *riga[4]};
}

QWidget* apri(Album& album, cGiacenza::Reso tipo)
{
    album.componente.setTipoReso(tipo);
    album.componente.MostraRiconsegna();
    return album.regista.finestra(u"frmRiconsegna"_s);
}

void trova(Album& album, QWidget* schermata, const Caso& caso)
{
    Regista& regista = album.regista;
    regista.scrive(schermata, u"txtCodiceCli"_s, caso.cliente);
    regista.preme(Regista::controllo(schermata, u"txtCodiceCli"_s), Qt::Key_Tab);
    regista.scrive(schermata, u"txtLDV"_s, caso.ldv);
    regista.scrive(schermata, u"txtDataLdv"_s, QString(caso.dataLdv).remove(u'/'));
    regista.preme(Regista::controllo(schermata, u"txtDataLdv"_s), Qt::Key_Tab);
    Regista::verifica(Regista::testo(schermata, u"lblNrGia"_s) == caso.numero,
                      u"la giacenza %1 non è sullo schermo"_s.arg(caso.numero));
}

void emette(Album& album, QWidget* schermata, std::deque<Regista::Risposta> risposte)
{
    album.regista.rispondendo([&] { album.regista.preme(schermata, Qt::Key_V, Qt::AltModifier); },
                              std::move(risposte));
}

Regista::Risposta porto(Album& album)
{
    return [&album](QWidget* dialogo) { album.regista.clicca(dialogo, u"cmdEsci"_s); };
}

} // namespace

void fotografaRiconsegna(Album& album)
{
    Regista& regista = album.regista;
    const Caso scelto = caso(album.archivio);
    QWidget* schermata = apri(album, cGiacenza::ResoDestinatario);
    album.scatta(schermata, u"riconsegna-vuota"_s);
    trova(album, schermata, scelto);
    album.scatta(schermata, u"riconsegna-trovata"_s);
    regista.rispondendo([&] { regista.preme(schermata, Qt::Key_S, Qt::AltModifier); },
                        {album.dialogo(u"elenco-legate"_s,
                                       [&](QWidget* dialogo) { regista.preme(dialogo, Qt::Key_Escape); })});
    emette(album, schermata,
           {album.dialogo(u"porto"_s, [&](QWidget* dialogo) { regista.clicca(dialogo, u"cmdEsci"_s); })});
    album.scatta(schermata, u"riconsegna-emessa"_s);
    album.esce(schermata);

    schermata = apri(album, cGiacenza::ResoMittente);
    trova(album, schermata, scelto);
    album.scatta(schermata, u"reso-trovato"_s);
    emette(album, schermata, {porto(album), album.dialogo(u"domanda-riconsegne"_s, [&](QWidget* dialogo) {
                                  const auto bottoni = dialogo->findChildren<QAbstractButton*>();
                                  for (QAbstractButton* bottone : bottoni)
                                      if (QString(bottone->text()).remove(u'&') == u"No"_s)
                                          return bottone->click();
                                  throw Imprevisto(u"la domanda non ha il bottone No"_s);
                              })});
    album.esce(schermata);
}

#include "reports/letters/blocchi.h"

#include "reports/engine/formati.h"

using namespace Qt::StringLiterals;

namespace giacenza::report::blocchi {

namespace {

constexpr double larghezza = destra - sinistra;
constexpr double colonnaDestra = 108;

constexpr QColor grigioTesto(0x55, 0x5b, 0x63);
constexpr QColor grigioFilo(0xb4, 0xba, 0xc2);

constexpr Carattere normale;
constexpr Carattere forte{10, true};
constexpr Carattere nota{9, false, grigioTesto};
constexpr Carattere piccolo{8, false, grigioTesto};

Controllo& metti(Sezione& sezione, Controllo controllo)
{
    return sezione.controlli.emplace_back(std::move(controllo));
}

void didascalie(Sezione& sezione)
{
    struct Riga
    {
        double y;
        double altezza;
        Carattere carattere;
    };
    const Riga righe[] = {{0, 6.2, {13, true, scuro}},
                          {7, 4.2, {8.5, false, grigioTesto}},
                          {11.2, 4.2, {8.5, false, grigioTesto}},
                          {15.4, 4.2, {8.5, false, grigioTesto}}};
    int numero = 0;
    for (const Riga& riga : righe) {
        Controllo& bord =
            metti(sezione, etichetta(u"lblBord%1"_s.arg(++numero), {88, riga.y, destra - 88, riga.altezza},
                                     {}, riga.carattere));
        bord.allineamento = Allineamento::destra;
        bord.altezza = Altezza::elastica;
    }
}

Sezione intestazione()
{
    Sezione sezione{u"Intestazione_pagina"_s, 26, {}};
    Controllo& logo = metti(sezione, etichetta(u"imgLogo"_s, {sinistra, 0, 62, 20}, {}));
    logo.genere = Genere::immagine;
    logo.altezza = Altezza::elastica;
    didascalie(sezione);
    metti(sezione, cornice(u"linIntestazione"_s, {sinistra, 23, larghezza, 0}, scuro)).tratto = 0.5;
    return sezione;
}

Sezione pie()
{
    Sezione sezione{u"Pie_pagina"_s, 9, {}};
    metti(sezione, cornice(u"linPie"_s, {sinistra, 2, larghezza, 0}, grigioFilo));
    metti(sezione, etichetta(u"lblDocumento"_s, {sinistra, 4, 110, 4}, u"{t}"_s, piccolo));
    Controllo& pagina =
        metti(sezione, etichetta(u"lblPagina"_s, {destra - 50, 4, 50, 4}, u"Pagina {n} di {m}"_s, piccolo));
    pagina.allineamento = Allineamento::destra;
    return sezione;
}

constexpr int gruppoSinistro = 1;
constexpr int gruppoDestro = 2;

/// Lines of an address in the right half, that close up when one of them is empty.
void righeIndirizzo(Sezione& sezione, double y, std::vector<Controllo> campi)
{
    constexpr double passo = 5.4;
    for (Controllo& campo : campi) {
        campo.area = {colonnaDestra, y, destra - colonnaDestra, passo};
        campo.altezza = Altezza::elastica;
        campo.gruppo = gruppoDestro;
        metti(sezione, std::move(campo));
        y += passo;
    }
}

Controllo campoLocalita(const QString& nome, const QString& cap, const QString& localita,
                        const QString& provincia, Carattere carattere)
{
    Controllo controllo = campo(nome, {}, localita, carattere);
    controllo.formato = formati::localita(cap, localita, provincia);
    return controllo;
}

Controllo campoCon(const QString& nome, const QString& colonna, Formato formato)
{
    Controllo controllo = campo(nome, {}, colonna, normale);
    controllo.formato = std::move(formato);
    return controllo;
}

} // namespace

Definizione lettera(const QString& nome)
{
    Definizione definizione;
    definizione.nome = nome;
    definizione.margineAlto = 12;
    definizione.margineBasso = 10;
    definizione.intestazione = intestazione();
    definizione.dettaglio.nome = u"Dettaglio_Dettaglio"_s;
    definizione.pie = pie();
    return definizione;
}

void completaIntestazione(Sezione& intestazione, const std::array<QString, 4>& didascalie, bool conLogo)
{
    int numero = 0;
    for (const QString& didascalia : didascalie) {
        Controllo& bord = intestazione.controllo(u"lblBord%1"_s.arg(++numero));
        bord.testo = didascalia;
        if (conLogo)
            continue;
        bord.area.setLeft(sinistra);
        bord.allineamento = Allineamento::sinistra;
    }
}

double indirizzo(Sezione& sezione, double y, const QString& campoData)
{
    Controllo data = campoCon(u"txtData"_s, campoData, [](const Contesto& contesto) {
        return contesto.valore ? formati::data(contesto) : dataBreve(contesto.oggi);
    });
    constexpr double primaRiga = 5;
    voce(sezione, y + primaRiga, Posto::sinistro, u"Data"_s, std::move(data));
    voce(sezione, y + primaRiga + passoVoce, Posto::sinistro, u"Codice cliente"_s,
         campo(u"txtCodiceCliente"_s, {}, u"GICODI"_s, normale));

    constexpr Carattere destinatario{11};
    metti(sezione, etichetta(u"lblSpettabile"_s, {colonnaDestra, y, 60, 4.2}, u"Spett.le"_s, nota)).con =
        u"txtMittente"_s;
    righeIndirizzo(
        sezione, y + primaRiga,
        {campo(u"txtMittente"_s, {}, u"RagioneSociale"_s, {11, true}),
         campo(u"txtIndMittente"_s, {}, u"Indirizzo"_s, destinatario),
         campoLocalita(u"txtLocalitaMitt"_s, u"CLCAP"_s, u"Localita"_s, u"Provincia"_s, destinatario)});
    return y + 26;
}

double titolo(Sezione& sezione, double y, const QString& testo)
{
    metti(sezione, etichetta(u"lblTitolo"_s, {sinistra, y, 100, 8.5}, testo, {18, true, scuro}));
    Controllo numero = campo(u"txtNumero"_s, {sinistra, y + 9, 100, 5.5}, u"GINRGI"_s, {11, false, scuro});
    numero.formato = [](const Contesto& contesto) {
        return u"n. %1 / %2"_s.arg(contesto.valore.value_or(QString()), contesto.riga.testo(u"GIANGI"_s));
    };
    metti(sezione, numero);

    Controllo barre = campo(u"barLDV"_s, {colonnaDestra, y, destra - colonnaDestra, 11}, u"GINRLV"_s);
    barre.genere = Genere::barre;
    barre.allineamento = Allineamento::destra;
    metti(sezione, barre);
    Controllo leggibile =
        campo(u"txtBarLDV"_s, {colonnaDestra, y + 11.6, destra - colonnaDestra, 4}, u"GINRLV"_s, piccolo);
    leggibile.formato = [](const Contesto& contesto) {
        const QString ldv = contesto.valore.value_or(QString());
        return ldv.isEmpty() ? ldv : u"LDV "_s + ldv;
    };
    leggibile.allineamento = Allineamento::destra;
    metti(sezione, leggibile);
    return y + 19;
}

double capitolo(Sezione& sezione, double y, const QString& nome, const QString& testo, const QString& con)
{
    constexpr double altezza = 7;
    constexpr double stacco = 1.6; // between the rule and what follows
    metti(sezione, etichetta(nome, {sinistra, y, larghezza, altezza - stacco}, testo, {10, true, scuro}))
        .con = con;
    metti(sezione,
          cornice(u"lin"_s + nome.mid(3), {sinistra, y + altezza - stacco, larghezza, 0}, grigioFilo))
        .con = con;
    return y + altezza;
}

void voce(Sezione& sezione, double y, Posto posto, const QString& testo, Controllo campo, int gruppo)
{
    constexpr double larghezzaEtichetta = 34;
    constexpr double stessaBase = 0.32; // the label's type is smaller
    const double x = posto == Posto::destro ? colonnaDestra : sinistra;
    const double fino = posto == Posto::sinistro ? colonnaDestra - 5 : destra;
    Controllo& nome = metti(sezione, etichetta(u"lbl"_s + campo.nome.mid(3),
                                               {x, y + stessaBase, larghezzaEtichetta, 4.6}, testo, nota));
    nome.gruppo = gruppo;
    campo.area = {x + larghezzaEtichetta, y, fino - x - larghezzaEtichetta, passoVoce - 0.8};
    campo.altezza = Altezza::cresce;
    campo.gruppo = gruppo;
    metti(sezione, std::move(campo));
}

double testoLibero(Sezione& sezione, double y, const QString& nome, const QString& intestazione,
                   const QString& colonna)
{
    y = capitolo(sezione, y, u"lbl"_s + nome, intestazione, u"txt"_s + nome);
    Controllo testo = campo(u"txt"_s + nome, {sinistra, y, larghezza, 5}, colonna, normale);
    testo.altezza = Altezza::elastica;
    testo.riducibile = true;
    metti(sezione, std::move(testo));
    return y + 5 + dopoCapitolo;
}

double spedizione(Sezione& sezione, double y)
{
    y = capitolo(sezione, y, u"lblSpedizione"_s, u"Spedizione"_s);
    metti(sezione,
          etichetta(u"lblDestinatario"_s, {colonnaDestra, y + 0.32, 60, 4.6}, u"Destinatario"_s, nota))
        .gruppo = gruppoDestro;
    righeIndirizzo(sezione, y + passoVoce,
                   {campo(u"txtDestinatario"_s, {}, u"ledest"_s, forte),
                    campo(u"txtIndDestinatario"_s, {}, u"leindd"_s, normale),
                    campoLocalita(u"txtLocalitaDest"_s, u"lecapd"_s, u"lelocd"_s, u"leprod"_s, normale)});
    std::pair<QString, Controllo> voci[] = {
        {u"Lettera di vettura"_s, campo(u"txtLDV"_s, {}, u"GINRLV"_s, forte)},
        {u"Data"_s, campoCon(u"txtDataLdv"_s, u"ledtlv"_s, formati::data)},
        {u"Filiale"_s, campo(u"txtFiliale"_s, {}, u"filiale"_s, normale)},
        {u"Vostro riferimento"_s, campo(u"txtRifMitt"_s, {}, u"lerife"_s, normale)},
    };
    for (auto& [testo, controllo] : voci) {
        voce(sezione, y, Posto::sinistro, testo, std::move(controllo), gruppoSinistro);
        y += passoVoce;
    }
    return y + dopoCapitolo;
}

double merce(Sezione& sezione, double y)
{
    y = capitolo(sezione, y, u"lblMerce"_s, u"Merce"_s);
    voce(sezione, y, Posto::sinistro, u"Natura"_s, campo(u"txtNaturaMerce"_s, {}, u"lenatu"_s, normale));
    voce(sezione, y, Posto::destro, u"Colli"_s, campoCon(u"txtColli"_s, u"lecoll"_s, formati::quantita()));
    y += passoVoce;
    voce(sezione, y, Posto::sinistro, u"Peso"_s,
         campoCon(u"txtPesoKg"_s, u"lepeso"_s, formati::quantita(u"kg"_s)));
    voce(sezione, y, Posto::destro, u"Volume"_s,
         campoCon(u"txtVolume"_s, u"levolu"_s, formati::quantita(u"m³"_s)));
    y += passoVoce;
    voce(sezione, y, Posto::sinistro, u"Valore dichiarato"_s,
         campoCon(u"txtValMerce"_s, u"levame"_s, formati::importo));
    voce(sezione, y, Posto::destro, u"Contrassegno"_s,
         campoCon(u"txtContrassegno"_s, u"lecnss"_s, formati::importo));
    return y + passoVoce + dopoCapitolo;
}

} // namespace giacenza::report::blocchi

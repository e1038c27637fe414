#include "reports/letters/blocchi.h"

#include "data/codiceldv.h"
#include "reports/engine/formati.h"
#include "reports/letters/blocchiinterni.h"

using namespace Qt::StringLiterals;

namespace giacenza::report::blocchi {

namespace {

constexpr double colonnaDestra = 108;

constexpr Carattere normale;
constexpr Carattere forte{10, true};
constexpr Carattere nota{9, false, grigioTesto};

constexpr int gruppoSinistro = 1;
constexpr int gruppoDestro = 2;
constexpr double passoRiga = 5.4; ///< from one line of an address to the next

QStringList nomiDi(const std::vector<Controllo>& controlli)
{
    QStringList nomi;
    for (const Controllo& controllo : controlli)
        nomi << controllo.nome;
    return nomi;
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

/// In a window each column is one line, whatever was typed into it.
QString senzaACapo(const Contesto& contesto)
{
    return contesto.valore.value_or(QString()).simplified();
}

/// The address in the envelope's window, away from its edges: a letter has play in its envelope.
void destinatario(Definizione& lettera)
{
    constexpr double daiLati = 4;
    constexpr double larghezzaTesto = destra - finestraBusta.left() - daiLati;
    constexpr double rigaSpettabile = 4.4;
    constexpr Carattere corpo{11};
    Sezione& finestra = lettera.finestra;
    finestra.nome = u"Finestra"_s;
    lettera.inizioFinestra = finestraBusta.top() + daiLati;
    lettera.fineFinestra = finestraBusta.bottom() - daiLati;
    std::vector<Controllo> righe = {
        campo(u"txtMittente"_s, {}, u"RagioneSociale"_s, {11, true}),
        campo(u"txtIndMittente"_s, {}, u"Indirizzo"_s, corpo),
        campoLocalita(u"txtLocalitaMitt"_s, u"CLCAP"_s, u"Localita"_s, u"Provincia"_s, corpo)};
    righe[0].formato = senzaACapo;
    righe[1].formato = senzaACapo;
    Controllo spettabile =
        etichetta(u"lblSpettabile"_s, {finestraBusta.left() + daiLati, 0, larghezzaTesto, rigaSpettabile},
                  u"Spett.le"_s, nota);
    spettabile.con = {u"txtMittente"_s};
    spettabile.altezza = Altezza::cresce;
    spettabile.riducibile = true;
    metti(finestra, std::move(spettabile));
    double y = rigaSpettabile;
    for (Controllo& riga : righe) {
        riga.area = {finestraBusta.left() + daiLati, y, larghezzaTesto, passoRiga};
        riga.altezza = Altezza::elastica;
        riga.riducibile = true;
        metti(finestra, std::move(riga));
        y += passoRiga;
    }
    finestra.altezza = y;
}

} // namespace

double indirizzo(Definizione& lettera, const QString& campoData)
{
    destinatario(lettera);
    lettera.inizioDettaglio = lettera.margineAlto + lettera.intestazione.altezza;
    Sezione& sezione = lettera.dettaglio;
    const double inizio = lettera.inizioFinestra - lettera.inizioDettaglio;
    Controllo data = campoCon(u"txtData"_s, campoData, [](const Contesto& contesto) {
        return contesto.valore ? formati::data(contesto) : dataBreve(contesto.oggi);
    });
    constexpr double larghezzaBarre = 79; // up to where the French field begins
    voce(sezione, inizio, Posto::sinistro, u"Data"_s, std::move(data));
    voce(sezione, inizio + passoVoce, Posto::sinistro, u"Codice cliente"_s,
         campo(u"txtCodiceCliente"_s, {}, u"GICODI"_s, normale));
    barreLdv(sezione, {sinistra, inizio + 2 * passoVoce + 2, larghezzaBarre, 0},
             {u"GIFILI"_s, u"GINRLV"_s, u"GIANLV"_s}, Allineamento::sinistra);
    return finestraBusta.bottom() + 2 - lettera.inizioDettaglio;
}

double titolo(Sezione& sezione, double y, const QString& testo)
{
    metti(sezione, etichetta(u"lblTitolo"_s, {sinistra, y, 100, 8.5}, testo, {18, true, scuro}));
    Controllo numero = campo(u"txtNumero"_s, {sinistra, y + 9, 100, 5.5}, u"GINRGI"_s, {11, false, scuro});
    numero.formato = [](const Contesto& contesto) {
        return u"n. %1 / %2"_s.arg(contesto.valore.value_or(QString()), contesto.riga.testo(u"GIANGI"_s));
    };
    metti(sezione, numero);
    return y + 17.4;
}

void barreLdv(Sezione& sezione, const QRectF& area, const ColonneLdv& colonne, Allineamento allineamento)
{
    Controllo barre = campo(u"barLDV"_s, {area.x(), area.y(), area.width(), 11}, colonne.numero);
    barre.genere = Genere::barre;
    barre.allineamento = allineamento;
    barre.formato = [colonne](const Contesto& contesto) {
        return codiceLdv(contesto.riga.testo(colonne.filiale), contesto.riga.testo(colonne.numero),
                         contesto.riga.testo(colonne.anno));
    };
    metti(sezione, std::move(barre));
    Controllo leggibile =
        campo(u"txtBarLDV"_s, {area.x(), area.y() + 11.6, area.width(), 4}, colonne.numero, piccolo);
    leggibile.formato = [](const Contesto& contesto) {
        const QString ldv = contesto.valore.value_or(QString());
        return ldv.isEmpty() ? ldv : u"LDV "_s + ldv;
    };
    leggibile.allineamento = allineamento;
    metti(sezione, std::move(leggibile));
}

double capitolo(Sezione& sezione, double y, const QString& nome, const QString& testo, const QStringList& con)
{
    constexpr double altezza = 6.6;
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
    Controllo& nome = metti(
        sezione, etichetta(u"lbl"_s + campo.nome.mid(3),
                           {x, y + stessaBase, larghezzaEtichetta, passoVoce - stessaBase}, testo, nota));
    nome.gruppo = gruppo;
    nome.con = {campo.nome};
    campo.area = {x + larghezzaEtichetta, y, fino - x - larghezzaEtichetta, passoVoce};
    campo.altezza = Altezza::elastica;
    campo.gruppo = gruppo;
    metti(sezione, std::move(campo));
}

void voceNumero(Sezione& sezione, double y, Posto posto, const QString& testo, Controllo campo)
{
    constexpr double larghezzaNumero = 34;
    voce(sezione, y, posto, testo, std::move(campo));
    Controllo& numero = sezione.controlli.back();
    numero.area.setWidth(larghezzaNumero);
    numero.allineamento = Allineamento::destra;
}

double luogo(Sezione& sezione, double y, Posto posto, const QString& testo, std::vector<Controllo> righe)
{
    const double x = posto == Posto::destro ? colonnaDestra : sinistra;
    const double fino = posto == Posto::sinistro ? colonnaDestra - 5 : destra;
    const int gruppo = posto == Posto::destro ? gruppoDestro : gruppoSinistro;
    if (!testo.isEmpty()) {
        Controllo& nome = metti(
            sezione, etichetta(u"lbl"_s + righe.at(0).nome.mid(3), {x, y + 0.32, 60, 4.6}, testo, nota));
        nome.gruppo = gruppo;
        nome.con = nomiDi(righe);
        y += passoVoce;
    }
    righe.at(0).carattere.grassetto = true;
    for (Controllo& riga : righe) {
        riga.area = {x, y, fino - x, passoRiga};
        riga.altezza = Altezza::elastica;
        riga.gruppo = gruppo;
        metti(sezione, std::move(riga));
        y += passoRiga;
    }
    return y;
}

double testoLibero(Sezione& sezione, double y, const QString& nome, const QString& intestazione,
                   const QString& colonna)
{
    y = capitolo(sezione, y, u"lbl"_s + nome, intestazione, {u"txt"_s + nome});
    Controllo testo = campo(u"txt"_s + nome, {sinistra, y, larghezza, 5}, colonna, normale);
    testo.altezza = Altezza::elastica;
    testo.riducibile = true;
    metti(sezione, std::move(testo));
    return y + 5 + dopoCapitolo;
}

double spedizione(Sezione& sezione, double y)
{
    y = capitolo(sezione, y, u"lblSpedizione"_s, u"Spedizione"_s);
    luogo(sezione, y, Posto::destro, u"Destinatario"_s,
          {campo(u"txtDestinatario"_s, {}, u"ledest"_s), campo(u"txtIndDestinatario"_s, {}, u"leindd"_s),
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
    const auto peso = campoCon(u"txtPesoKg"_s, u"lepeso"_s, formati::quantita(u"kg"_s));
    const auto volume = campoCon(u"txtVolume"_s, u"levolu"_s, formati::quantita(u"m³"_s));
    const auto valore = campoCon(u"txtValMerce"_s, u"levame"_s, formati::importo);
    const auto contrassegno = campoCon(u"txtContrassegno"_s, u"lecnss"_s, formati::importo);
    const auto colli = campoCon(u"txtColli"_s, u"lecoll"_s, formati::quantita());
    const auto natura = campo(u"txtNaturaMerce"_s, {}, u"lenatu"_s, normale);
    y = capitolo(sezione, y, u"lblMerce"_s, u"Merce"_s,
                 nomiDi({natura, colli, peso, volume, valore, contrassegno}));
    voce(sezione, y, Posto::sinistro, u"Natura"_s, natura);
    voceNumero(sezione, y, Posto::destro, u"Colli"_s, colli);
    y += passoVoce;
    voceNumero(sezione, y, Posto::sinistro, u"Peso"_s, peso);
    voceNumero(sezione, y, Posto::destro, u"Valore dichiarato"_s, valore);
    y += passoVoce;
    voceNumero(sezione, y, Posto::sinistro, u"Volume"_s, volume);
    voceNumero(sezione, y, Posto::destro, u"Contrassegno"_s, contrassegno);
    return y + passoVoce + dopoCapitolo;
}

} // namespace giacenza::report::blocchi

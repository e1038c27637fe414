#include "schema/dati/nomi.h"

#include <array>

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

constexpr Comune elencoComuni[] = {
    {u"Milano", u"20121", u"MI", 0},    {u"Monza", u"20900", u"MB", 0},
    {u"Como", u"22100", u"CO", 0},      {u"Varese", u"21100", u"VA", 0},
    {u"Pavia", u"27100", u"PV", 0},     {u"Lodi", u"26900", u"LO", 0},
    {u"Torino", u"10121", u"TO", 1},    {u"Asti", u"14100", u"AT", 1},
    {u"Cuneo", u"12100", u"CN", 1},     {u"Alessandria", u"15121", u"AL", 1},
    {u"Novara", u"28100", u"NO", 1},    {u"Biella", u"13900", u"BI", 1},
    {u"Genova", u"16121", u"GE", 2},    {u"Savona", u"17100", u"SV", 2},
    {u"Imperia", u"18100", u"IM", 2},   {u"La Spezia", u"19121", u"SP", 2},
    {u"Brescia", u"25121", u"BS", 3},   {u"Bergamo", u"24121", u"BG", 3},
    {u"Cremona", u"26100", u"CR", 3},   {u"Mantova", u"46100", u"MN", 3},
    {u"Verona", u"37121", u"VR", 4},    {u"Vicenza", u"36100", u"VI", 4},
    {u"Trento", u"38121", u"TN", 4},    {u"Bolzano", u"39100", u"BZ", 4},
    {u"Padova", u"35121", u"PD", 5},    {u"Venezia", u"30121", u"VE", 5},
    {u"Treviso", u"31100", u"TV", 5},   {u"Udine", u"33100", u"UD", 5},
    {u"Trieste", u"34121", u"TS", 5},   {u"Bologna", u"40121", u"BO", 6},
    {u"Modena", u"41121", u"MO", 6},    {u"Reggio nell'Emilia", u"42121", u"RE", 6},
    {u"Parma", u"43121", u"PR", 6},     {u"Ferrara", u"44121", u"FE", 6},
    {u"Forlì", u"47121", u"FC", 6},     {u"Rimini", u"47921", u"RN", 6},
    {u"Firenze", u"50121", u"FI", 7},   {u"Prato", u"59100", u"PO", 7},
    {u"Pisa", u"56121", u"PI", 7},      {u"Lucca", u"55100", u"LU", 7},
    {u"Siena", u"53100", u"SI", 7},     {u"Arezzo", u"52100", u"AR", 7},
    {u"Ancona", u"60121", u"AN", 8},    {u"Pesaro", u"61121", u"PU", 8},
    {u"Macerata", u"62100", u"MC", 8},  {u"Perugia", u"06121", u"PG", 8},
    {u"Pescara", u"65121", u"PE", 8},   {u"L'Aquila", u"67100", u"AQ", 8},
    {u"Roma", u"00184", u"RM", 9},      {u"Latina", u"04100", u"LT", 9},
    {u"Frosinone", u"03100", u"FR", 9}, {u"Viterbo", u"01100", u"VT", 9},
    {u"Napoli", u"80121", u"NA", 10},   {u"Caserta", u"81100", u"CE", 10},
    {u"Salerno", u"84121", u"SA", 10},  {u"Avellino", u"83100", u"AV", 10},
    {u"Potenza", u"85100", u"PZ", 10},  {u"Bari", u"70121", u"BA", 11},
    {u"Foggia", u"71121", u"FG", 11},   {u"Lecce", u"73100", u"LE", 11},
    {u"Taranto", u"74121", u"TA", 11},  {u"Matera", u"75100", u"MT", 11},
};

constexpr std::array<QStringView, 36> attivita = {
    u"Ferramenta",         u"Oleificio",   u"Pastificio",        u"Torrefazione",     u"Calzaturificio",
    u"Maglificio",         u"Tipografia",  u"Cartotecnica",      u"Officine",         u"Autoricambi",
    u"Mobilificio",        u"Vetreria",    u"Ceramiche",         u"Conceria",         u"Salumificio",
    u"Caseificio",         u"Cantine",     u"Distilleria",       u"Dolciaria",        u"Erboristeria",
    u"Cosmetici",          u"Sanitari",    u"Articoli Medicali", u"Elettroforniture", u"Idroforniture",
    u"Illuminazione",      u"Utensileria", u"Colorificio",       u"Tessitura",        u"Biancheria",
    u"Confezioni",         u"Giocattoli",  u"Cancelleria",       u"Editoria",         u"Imballaggi",
    u"Carpenteria Leggera"};

constexpr std::array<QStringView, 40> luoghi = {
    u"del Garda",       u"della Brianza",  u"del Ticino",      u"dell'Adda",      u"del Piave",
    u"dell'Adige",      u"del Brenta",     u"del Conero",      u"del Cilento",    u"del Salento",
    u"della Murgia",    u"delle Marche",   u"dell'Appennino",  u"dei Colli",      u"della Laguna",
    u"di Levante",      u"di Ponente",     u"di Romagna",      u"d'Emilia",       u"di Toscana",
    u"della Sabina",    u"del Sannio",     u"dell'Irpinia",    u"della Tuscia",   u"del Mugello",
    u"del Casentino",   u"della Versilia", u"della Lunigiana", u"del Monferrato", u"delle Langhe",
    u"del Canavese",    u"dell'Ossola",    u"della Valsugana", u"del Cadore",     u"della Carnia",
    u"del Tagliamento", u"dell'Arno",      u"del Tevere",      u"del Volturno",   u"del Po"};

constexpr std::array<QStringView, 3> forme = {u"S.r.l.", u"S.p.A.", u"S.n.c."};

constexpr std::array<QStringView, 2> tipiVettore = {u"Autotrasporti", u"Distribuzione"};

constexpr std::array<QStringView, 24> negozi = {
    u"Ferramenta", u"Emporio",   u"Bar",       u"Trattoria",   u"Farmacia",    u"Cartoleria",
    u"Libreria",   u"Merceria",  u"Enoteca",   u"Panificio",   u"Alimentari",  u"Autofficina",
    u"Ottica",     u"Calzature", u"Boutique",  u"Casalinghi",  u"Colorificio", u"Vivaio",
    u"Albergo",    u"Pizzeria",  u"Gelateria", u"Tabaccheria", u"Lavanderia",  u"Arredamenti"};

constexpr std::array<QStringView, 24> insegne = {
    u"Centrale",  u"del Corso",  u"della Piazza", u"della Stazione", u"del Ponte",        u"della Torre",
    u"del Porto", u"del Duomo",  u"del Mercato",  u"della Fonte",    u"delle Rose",       u"dei Tigli",
    u"del Sole",  u"della Luna", u"Due Mari",     u"Tre Archi",      u"La Rocca",         u"Il Faro",
    u"Due Torri", u"Oltremare",  u"San Rocco",    u"Santa Lucia",    u"Quattro Stagioni", u"L'Angolo"};

constexpr std::array<QStringView, 16> vie = {
    u"Via Roma",           u"Corso Italia",         u"Viale Europa",         u"Via della Libertà",
    u"Via dell'Industria", u"Via dell'Artigianato", u"Via XX Settembre",     u"Via della Stazione",
    u"Via Milano",         u"Via Torino",           u"Via del Lavoro",       u"Piazza del Popolo",
    u"Viale dei Mille",    u"Via dei Mestieri",     u"Via della Repubblica", u"Strada della Fiera"};

constexpr std::array<QStringView, 12> merci = {
    u"VEDI DDT",         u"ABBIGLIAMENTO",    u"ALIMENTARI", u"ARREDAMENTO",
    u"CARTA E STAMPATI", u"ELETTRODOMESTICI", u"LIBRI",      u"MATERIALE ELETTRICO",
    u"MEDICINALI",       u"RICAMBI",          u"VINO",       u"COLLETTAME"};

constexpr std::array<QStringView, 5> note = {
    u"CONSEGNARE SOLO AL MATTINO", u"TELEFONARE PRIMA DELLA CONSEGNA", u"CONSEGNA AL PIANO",
    u"MERCE FRAGILE, NON SOVRAPPORRE", u"SCARICO A CURA DEL DESTINATARIO"};

constexpr std::array<QStringView, 8> motivi = {u"DESTINATARIO ASSENTE",    u"RIFIUTA LA MERCE",
                                               u"INDIRIZZO INSUFFICIENTE", u"CHIUSO PER FERIE",
                                               u"RIFIUTA IL CONTRASSEGNO", u"CHIEDE CONSEGNA SU APPUNTAMENTO",
                                               u"MERCE NON ORDINATA",      u"ATTIVITÀ CESSATA"};

} // namespace

QString frase(std::initializer_list<QStringView> parole)
{
    QString testo;
    for (const QStringView parola : parole) {
        if (!testo.isEmpty())
            testo += u' ';
        testo += parola;
    }
    return testo;
}

std::span<const Comune> comuni()
{
    return elencoComuni;
}

const Comune& comuneFiliale(int filiale)
{
    return *std::find_if(std::begin(elencoComuni), std::end(elencoComuni),
                         [filiale](const Comune& comune) { return comune.filiale == filiale; });
}

QString ragioneMittente(int i, Caso& caso)
{
    // 611 shares no factor with the number of pairs: every pair comes once before any comes again.
    const auto coppia = static_cast<std::size_t>(i) * 611 % (attivita.size() * luoghi.size());
    static_assert(attivita.size() * luoghi.size() == massimoMittenti);
    return frase({attivita[coppia % attivita.size()], luoghi[coppia / attivita.size()], caso.uno(forme)});
}

QString ragioneVettore(int i)
{
    const auto n = static_cast<std::size_t>(i);
    return frase({tipiVettore[n % tipiVettore.size()], luoghi[n * 7 % luoghi.size()], forme[n % 2 * 2]});
}

QString nomeDestinatario(Caso& caso)
{
    const QStringView negozio = caso.uno(negozi);
    return frase({negozio, caso.uno(insegne)});
}

QString indirizzo(Caso& caso)
{
    const QStringView via = caso.uno(vie);
    return u"%1, %2"_s.arg(via).arg(caso.tra(1, 180));
}

QString naturaMerce(Caso& caso)
{
    return caso.uno(merci).toString();
}

QString notaSpedizione(Caso& caso)
{
    return caso.uno(note).toString();
}

QString motivoGiacenza(Caso& caso)
{
    return caso.uno(motivi).toString();
}

QString partitaIva(int azienda, int ufficio)
{
    QString numero = u"%1%2"_s.arg(azienda, 7, 10, QChar(u'0')).arg(ufficio, 3, 10, QChar(u'0'));
    int somma = 0;
    for (int i = 0; i < 10; ++i) {
        const int cifra = numero.at(i).digitValue() * (i % 2 == 0 ? 1 : 2);
        somma += cifra > 9 ? cifra - 9 : cifra;
    }
    return numero + QString::number((10 - somma % 10) % 10);
}

} // namespace giacenza::dimostrazione

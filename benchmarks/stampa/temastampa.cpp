#include "benchmarks/quadro/temi.h"

#include "database/transazione.h"

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

constexpr int lettere = 1000;

/// Held shipments 1 to 1,000 of the year 2015, each with a waybill of its own, with the carrier and the line
/// that the management screen asks for; their letters are as full as the one that is painted by hand.
void riempi(Connessione& connessione)
{
    Transazione transazione(connessione);
    connessione.esegui(u"insert into filiali values ('MI', 'Milano', 'Via Roma 1', 'Milano', 'MI')"_s);
    connessione.esegui(u"insert into filiali values ('TO', 'Torino', 'Corso Francia 20', 'Torino', 'TO')"_s);
    connessione.esegui(u"insert into clien values (4711, 'Ceramiche dell''Arno S.p.A.', 'Via degli Orti 12', "
                       "'Montelupo Fiorentino', 'FI', '50056', null)"_s);
    connessione.esegui(u"insert into forni (Codice, RagioneSociale) values ('V01', 'Autotrasporti Adda')"_s);
    connessione.esegui(u"insert into codicizona (Codice, Descrizione) values ('L05', 'Lombardia')"_s);
    connessione.esegui(u"insert into ekelvorqzt_tabge00f (UltimoNumGiacenza, IstrSuAvvGiac) values (1000, "
                       "'Vi preghiamo di comunicarci entro 5 giorni se riconsegnare o rendere la merce.')"_s);
    for (int numero = 1; numero <= lettere; ++numero) {
        const QString ldv = QString::number(98'000 + numero);
        connessione.esegui(
            u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecmpe, ledest, leindd, lecapd, "
            "lelocd, leprod, lecdve, lelin1, lenatu, lerife, lerifd, lecoll, lepeso, levolu, lecnss, levame) "
            "values ('MI', '%1', 2015, '2015-03-02', 4711, 'A', 'Bottega del Gusto di Rossi Maria', 'Piazza "
            "Garibaldi 7/b', '10123', 'Torino', 'TO', 'V01', 'L05', 'Piastrelle', 'DDT 812', '2015-03-01', "
            "4, "
            "1234.50, 0.750, 250.00, 12345.60)"_s.arg(ldv));
        connessione.esegui(
            u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GINRGI, GIANGI, GIDTGI, GIGGSO, "
            "GINRAV, GIDTAV, GIDES1) values ('MI', '%1', 2015, 4711, 'TO', '%2', 2015, '2015-03-05', 7, "
            "'1', '2015-03-12', 'Destinatario assente al secondo passaggio')"_s.arg(ldv,
                                                                                    QString::number(numero)));
    }
    transazione.conferma();
}

QString logo()
{
    return QStringLiteral(BANCO_LOGO);
}

QString stringa(const Basi& basi, const QString& tipo)
{
    return basi.stringa(tipo, u"casi_%1"_s.arg(lettere), riempi);
}

Programma nostro(const Basi& basi, const Opzioni& opzioni, const QString& tipo, int quante)
{
    return {u"misura-avviso"_s, {QString::number(quante), opzioni.cartella, logo()}, stringa(basi, tipo)};
}

std::vector<Confronto> unaLettera(const Basi& basi, const Opzioni& opzioni)
{
    std::vector<Confronto> elenco;
    for (const QString& tipo : opzioni.basi)
        elenco.push_back({u"notice_pdf"_s,
                          tipo,
                          lettere,
                          nostro(basi, opzioni, tipo, 1),
                          {u"riferimento-avviso"_s, {opzioni.cartella, logo()}, stringa(basi, tipo)},
                          {.rapporto = 1.3}});
    return elenco;
}

/// Beside ten in one process: the time says whether a hundred times as many take a hundred times as long, the
/// peaks whether anything is left behind.
std::vector<Confronto> mille(const Basi& basi, const Opzioni& opzioni)
{
    constexpr int poche = 10;
    constexpr int svelte = 100;
    const int quante = opzioni.svelto ? svelte : lettere;
    std::vector<Confronto> elenco;
    for (const QString& tipo : opzioni.basi)
        elenco.push_back({u"notice_pdf_1000"_s,
                          tipo,
                          quante,
                          nostro(basi, opzioni, tipo, quante),
                          nostro(basi, opzioni, tipo, poche),
                          {.piccoInPiu = 2}});
    return elenco;
}

std::vector<Confronto> conLibreOffice(const Basi& basi, const Opzioni& opzioni)
{
    constexpr double unCinquantesimo = 0.02;
    std::vector<Confronto> elenco;
    for (const QString& tipo : opzioni.basi)
        elenco.push_back({u"notice_pdf_libreoffice"_s,
                          tipo,
                          lettere,
                          nostro(basi, opzioni, tipo, 1),
                          {u"riferimento-libreoffice"_s, {opzioni.cartella, logo()}, stringa(basi, tipo)},
                          {.rapporto = unCinquantesimo}});
    return elenco;
}

} // namespace

std::vector<Tema> temiStampa()
{
    return {{u"notice_pdf"_s, unaLettera},
            {u"notice_pdf_1000"_s, mille},
            {u"notice_pdf_libreoffice"_s, conLibreOffice}};
}

} // namespace banco

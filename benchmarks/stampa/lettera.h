#pragma once

/// One storage notice as it comes out of the component: what the programs beside it make by hand. Lengths are
/// millimetres from the paper's upper left corner.
namespace banco {

struct Scritta
{
    double x;
    double base;
    double punti;
    bool grassetto;
    unsigned colore;
    const char16_t* testo;
};

struct Filo
{
    double x;
    double y;
    double larghezza;
    double tratto;
    unsigned colore;
};

struct Barra
{
    double x;
    double larghezza;
};

/// Where the logo stands.
inline constexpr double logoX = 20;
inline constexpr double logoY = 12;
inline constexpr double logoLarghezza = 62;
inline constexpr double logoAltezza = 15.5;

inline constexpr Scritta scritte[] = {
    {137.46, 16.16, 13, true, 0x1f2d3d, u"Trasporti del Ponte S.r.l."},
    {137.07, 21.72, 8.5, false, 0x555b63, u"Via dell'Industria 14 - 10148 Torino (TO)"},
    {144.3, 25.92, 8.5, false, 0x555b63, u"Tel. 011 000000 - Fax 011 000001"},
    {140.43, 30.12, 8.5, false, 0x555b63, u"giacenze@trasportidelponte.example"},
    {20, 50.2, 9, false, 0x555b63, u"Data"},
    {54, 50.2, 10, false, 0x000000, u"12/03/2015"},
    {20, 56, 9, false, 0x555b63, u"Codice cliente"},
    {54, 56, 10, false, 0x000000, u"4711"},
    {108, 44.88, 9, false, 0x555b63, u"Spett.le"},
    {108, 50.51, 11, true, 0x000000, u"Ceramiche dell'Arno S.p.A."},
    {108, 55.91, 11, false, 0x000000, u"Via degli Orti 12"},
    {108, 61.31, 11, false, 0x000000, u"50056 Montelupo Fiorentino (FI)"},
    {20, 77.75, 18, true, 0x1f2d3d, u"Avviso di giacenza"},
    {20, 84.51, 11, false, 0x1f2d3d, u"n. 1234 / 2015"},
    {172.75, 86.15, 8, false, 0x555b63, u"LDV 0098765"},
    {20, 94.2, 10, false, 0x000000,
     u"Vi informiamo che la spedizione qui descritta non è stata consegnata ed è in giacenza nel nostro "
     u"magazzino."},
    {20, 98.73, 10, false, 0x000000, u"Restiamo in attesa delle Vostre istruzioni."},
    {20, 108.2, 10, true, 0x1f2d3d, u"Spedizione"},
    {108, 115.2, 9, false, 0x555b63, u"Destinatario"},
    {108, 121, 10, true, 0x000000, u"Bottega del Gusto di Rossi Maria"},
    {108, 126.4, 10, false, 0x000000, u"Piazza Garibaldi 7/b"},
    {108, 131.8, 10, false, 0x000000, u"10123 Torino (TO)"},
    {20, 115.2, 9, false, 0x555b63, u"Lettera di vettura"},
    {54, 115.2, 10, true, 0x000000, u"0098765"},
    {20, 121, 9, false, 0x555b63, u"Data"},
    {54, 121, 10, false, 0x000000, u"02/03/2015"},
    {20, 126.8, 9, false, 0x555b63, u"Filiale"},
    {54, 126.8, 10, false, 0x000000, u"Milano"},
    {20, 132.6, 9, false, 0x555b63, u"Vostro riferimento"},
    {54, 132.6, 10, false, 0x000000, u"DDT 812"},
    {20, 142, 10, true, 0x1f2d3d, u"Merce"},
    {20, 149, 9, false, 0x555b63, u"Natura"},
    {54, 149, 10, false, 0x000000, u"Piastrelle"},
    {108, 149, 9, false, 0x555b63, u"Colli"},
    {142, 149, 10, false, 0x000000, u"4"},
    {20, 154.8, 9, false, 0x555b63, u"Peso"},
    {54, 154.8, 10, false, 0x000000, u"1.234,5 kg"},
    {108, 154.8, 9, false, 0x555b63, u"Volume"},
    {142, 154.8, 10, false, 0x000000, u"0,75 m³"},
    {20, 160.6, 9, false, 0x555b63, u"Valore dichiarato"},
    {54, 160.6, 10, false, 0x000000, u"12.345,60 €"},
    {108, 160.6, 9, false, 0x555b63, u"Contrassegno"},
    {142, 160.6, 10, false, 0x000000, u"250,00 €"},
    {20, 170, 10, true, 0x1f2d3d, u"Giacenza"},
    {20, 177, 9, false, 0x555b63, u"Numero"},
    {54, 177, 10, true, 0x000000, u"1234"},
    {108, 177, 9, false, 0x555b63, u"In deposito dal"},
    {142, 177, 10, false, 0x000000, u"05/03/2015"},
    {20, 182.8, 9, false, 0x555b63, u"Avviso numero"},
    {54, 182.8, 10, false, 0x000000, u"1 del 12/03/2015"},
    {108, 182.8, 9, false, 0x555b63, u"Giorni di sosta"},
    {142, 182.8, 10, false, 0x000000, u"7"},
    {20, 188.6, 9, false, 0x555b63, u"Magazzino"},
    {54, 188.6, 10, false, 0x000000, u"Corso Francia 20 Torino (TO)"},
    {20, 198, 10, true, 0x1f2d3d, u"Motivo della giacenza"},
    {20, 205, 10, false, 0x000000, u"Destinatario assente al secondo passaggio"},
    {20, 213.6, 10, true, 0x1f2d3d, u"Istruzioni"},
    {20, 220.6, 10, false, 0x000000,
     u"Vi preghiamo di comunicarci entro 5 giorni se riconsegnare o rendere la merce."},
    {20, 230.2, 10, false, 0x000000, u"Distinti saluti"},
    {20, 284.55, 8, false, 0x555b63, u"Avviso di giacenza 1234/2015"},
    {173.54, 284.55, 8, false, 0x555b63, u"Pagina 1 di 1"},
};

inline constexpr Filo fili[] = {
    {20, 35, 170, 0.5, 0x1f2d3d},    {20, 110.4, 170, 0.2, 0xb4bac2}, {20, 144.2, 170, 0.2, 0xb4bac2},
    {20, 172.2, 170, 0.2, 0xb4bac2}, {20, 200.2, 170, 0.2, 0xb4bac2}, {20, 215.8, 170, 0.2, 0xb4bac2},
    {20, 280, 170, 0.2, 0xb4bac2},
};

inline constexpr double barreY = 72;
inline constexpr double barreAltezza = 11;
inline constexpr Barra barre[] = {
    {145, 1},     {146.5, 0.5}, {148, 1.5}, {150.5, 1},   {152, 1},     {154, 1},     {156, 2},
    {158.5, 0.5}, {160.5, 0.5}, {161.5, 1}, {163.5, 0.5}, {164.5, 0.5}, {167, 0.5},   {168, 2},
    {170.5, 1.5}, {172.5, 1},   {174, 1.5}, {176.5, 0.5}, {178, 0.5},   {179.5, 0.5}, {181.5, 1},
    {183.5, 1},   {186, 1.5},   {188, 0.5}, {189, 1},
};

} // namespace banco

#include "desk/documenti/estrattoxlsx.h"

#include "desk/documenti/colonneestratto.h"

#include <QFile>
#include <QTemporaryDir>

#include <clocale>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

/// The longest text of a cell.
constexpr qsizetype massimoCella = 32'767;

void pretendi(lxw_error esito)
{
    if (esito != LXW_NO_ERROR)
        throw Errore(
            u"Impossibile comporre il foglio di calcolo: %1."_s.arg(QString::fromUtf8(lxw_strerror(esito))));
}

/// While it lives the C library writes numbers with a point in this thread: the workbook's writer leaves them
/// to it, and a decimal comma is no number in a workbook.
class ConIlPunto
{
public:
    ConIlPunto()
        : mPunto(::newlocale(LC_NUMERIC_MASK, "C", ::duplocale(::uselocale(nullptr)))),
          mPrima(::uselocale(mPunto))
    {}
    ConIlPunto(const ConIlPunto&) = delete;
    ConIlPunto& operator=(const ConIlPunto&) = delete;
    ~ConIlPunto()
    {
        ::uselocale(mPrima);
        ::freelocale(mPunto);
    }

private:
    locale_t mPunto;
    locale_t mPrima;
};

/// A workbook in a file of its own while it is written.
class Cartella
{
public:
    Cartella()
    {
        if (!mPosto.isValid())
            throw Errore(u"Impossibile comporre il foglio di calcolo: %1."_s.arg(mPosto.errorString()));
        QByteArray cartella = QFile::encodeName(mPosto.path());
        lxw_workbook_options opzioni{};
        opzioni.tmpdir = cartella.data();
        mLibro = workbook_new_opt(QFile::encodeName(percorso()).constData(), &opzioni);
        mFoglio = mLibro ? workbook_add_worksheet(mLibro, "Estratto giacenze") : nullptr;
        if (!mFoglio)
            throw Errore(u"Impossibile comporre il foglio di calcolo."_s);
        mForte = formato(nullptr, true);
        mGiorno = formato("dd/mm/yyyy");
        mIntero = formato("0");
        mDecimale = formato("#,##0.00");
        mEuro = formato("#,##0.00 \"€\"");
        mEuroForte = formato("#,##0.00 \"€\"", true);
        mTesto = formato("@");
        format_set_text_wrap(mTesto);
        for (lxw_format* quale : {mGiorno, mIntero, mDecimale, mEuro, mTesto})
            format_set_align(quale, LXW_ALIGN_VERTICAL_TOP);
    }
    Cartella(const Cartella&) = delete;
    Cartella& operator=(const Cartella&) = delete;
    ~Cartella()
    {
        if (mLibro) // only after a failure: closing is what frees it
            workbook_close(mLibro);
    }

    void scrivi(lxw_row_t riga, lxw_col_t colonna, const Cella& valore)
    {
        if (const auto* testo = std::get_if<QString>(&valore)) {
            pretendi(worksheet_write_string(mFoglio, riga, colonna,
                                            testo->left(massimoCella).toUtf8().constData(), mTesto));
        } else if (const auto* giorno = std::get_if<QDate>(&valore)) {
            lxw_datetime data{};
            data.year = giorno->year();
            data.month = giorno->month();
            data.day = giorno->day();
            // The sheet's calendar begins with 1900.
            if (giorno->year() < 1900)
                scrivi(riga, colonna, Cella(dataBreve(*giorno)));
            else
                pretendi(worksheet_write_datetime(mFoglio, riga, colonna, &data, mGiorno));
        } else if (const auto* numero = std::get_if<Numero>(&valore)) {
            pretendi(worksheet_write_number(mFoglio, riga, colonna, numero->valore.toDouble(),
                                            numero->euro           ? mEuro
                                            : numero->decimali > 0 ? mDecimale
                                                                   : mIntero));
        }
    }

    void intesta(const QStringList& titoli)
    {
        for (qsizetype i = 0; i < titoli.size(); ++i)
            pretendi(worksheet_write_string(mFoglio, 0, static_cast<lxw_col_t>(i),
                                            titoli[i].toUtf8().constData(), mForte));
        worksheet_freeze_panes(mFoglio, 1, 0);
    }

    void larghezza(lxw_col_t colonna, double caratteri)
    {
        pretendi(worksheet_set_column(mFoglio, colonna, colonna, caratteri, nullptr));
    }

    /// The sum of a column from the second row on, with the value that it has.
    void somma(lxw_row_t riga, lxw_col_t colonna, const QString& valore)
    {
        char prima[LXW_MAX_CELL_NAME_LENGTH];
        char ultima[LXW_MAX_CELL_NAME_LENGTH];
        lxw_rowcol_to_cell(prima, 1, colonna);
        lxw_rowcol_to_cell(ultima, riga - 1, colonna);
        const QString formula = u"=SUM(%1:%2)"_s.arg(QLatin1String(prima), QLatin1String(ultima));
        pretendi(worksheet_write_formula_num(mFoglio, riga, colonna, formula.toUtf8().constData(), mEuroForte,
                                             valore.toDouble()));
    }

    void totale(lxw_row_t riga) { pretendi(worksheet_write_string(mFoglio, riga, 0, "Totale", mForte)); }

    void filtra(lxw_row_t ultima, lxw_col_t colonne)
    {
        pretendi(worksheet_autofilter(mFoglio, 0, 0, ultima, static_cast<lxw_col_t>(colonne - 1)));
    }

    /// Ends the workbook and gives its bytes.
    QByteArray chiudi()
    {
        pretendi(workbook_close(std::exchange(mLibro, nullptr)));
        QFile file(percorso());
        if (!file.open(QIODevice::ReadOnly))
            throw Errore(u"Impossibile comporre il foglio di calcolo: %1."_s.arg(file.errorString()));
        return file.readAll();
    }

private:
    QString percorso() const { return mPosto.filePath(u"estratto.xlsx"_s); }

    lxw_format* formato(const char* modello, bool forte = false)
    {
        lxw_format* nuovo = workbook_add_format(mLibro);
        if (!nuovo)
            throw Errore(u"Impossibile comporre il foglio di calcolo."_s);
        if (modello)
            format_set_num_format(nuovo, modello);
        if (forte)
            format_set_bold(nuovo);
        return nuovo;
    }

    QTemporaryDir mPosto;
    lxw_workbook* mLibro = nullptr;
    lxw_worksheet* mFoglio = nullptr;
    lxw_format* mForte = nullptr;
    lxw_format* mGiorno = nullptr;
    lxw_format* mIntero = nullptr;
    lxw_format* mDecimale = nullptr;
    lxw_format* mEuro = nullptr;
    lxw_format* mEuroForte = nullptr;
    lxw_format* mTesto = nullptr;
};

double larghezzaDi(const QString& titolo)
{
    constexpr std::pair<const char16_t*, double> larghe[] = {
        {u"Ragione sociale", 28}, {u"Destinatario", 28}, {u"Località", 18},
        {u"Riferimento", 16},     {u"Importi", 24},      {u"Che cosa è successo", 60}};
    for (const auto& [nome, caratteri] : larghe)
        if (titolo == QStringView(nome))
            return caratteri;
    return 12;
}

} // namespace

QByteArray estrattoXlsx(const Estratto& estratto)
{
    const ConIlPunto punto;
    Cartella cartella;
    const QStringList titoli = titoliEstratto();
    cartella.intesta(titoli);
    for (qsizetype i = 0; i < titoli.size(); ++i)
        cartella.larghezza(static_cast<lxw_col_t>(i), larghezzaDi(titoli[i]));
    lxw_row_t riga = 0;
    for (const CasoEstratto& caso : estratto.casi) {
        ++riga;
        lxw_col_t colonna = 0;
        for (const Cella& valore : celleEstratto(estratto, caso))
            cartella.scrivi(riga, colonna++, valore);
    }
    if (riga > 0) {
        cartella.filtra(riga, static_cast<lxw_col_t>(titoli.size()));
        cartella.totale(riga + 1);
        for (const auto& [titolo, valore] :
             {std::pair{u"Fisso"_s, estratto.fisso}, std::pair{u"Sosta"_s, estratto.sosta},
              std::pair{u"Totale"_s, estratto.totale}})
            cartella.somma(riga + 1, static_cast<lxw_col_t>(titoli.indexOf(titolo)), valore);
    }
    return cartella.chiudi();
}

} // namespace giacenza::documenti

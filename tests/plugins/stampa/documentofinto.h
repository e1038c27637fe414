#pragma once

#include <giacenza/Documento.h>

#include <QPainter>

#include <functional>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A document of as many pages as a test wants, each with its number on it.
class DocumentoFinto : public Documento
{
public:
    /// alDipingere: called before each page; false gives the print up.
    explicit DocumentoFinto(int pagine, std::function<bool(int pagina)> alDipingere = {})
        : mPagine(pagine), mAlDipingere(std::move(alDipingere))
    {}

    QString titolo() const override { return u"Elenco di prova"_s; }
    QPageLayout impaginazione() const override
    {
        QPageLayout impaginazione(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF());
        impaginazione.setMode(QPageLayout::FullPageMode);
        return impaginazione;
    }
    int pagine() const override { return mPagine; }
    bool dipingi(int pagina, QPainter& pittore) override
    {
        const int dpi = pittore.device()->logicalDpiX();
        pittore.drawText(QPoint(dpi, dpi), u"foglio %1"_s.arg(pagina + 1));
        return !mAlDipingere || mAlDipingere(pagina);
    }
    void ricomincia() override { ++ricominciato; }

    int ricominciato = 0;

private:
    int mPagine;
    std::function<bool(int)> mAlDipingere;
};

/// A source of one document, which it keeps until it is asked.
class FonteFinta : public FonteDocumenti
{
public:
    FonteFinta(const QString& cartella, std::unique_ptr<Documento> documento)
        : mCartella(cartella), mDocumento(std::move(documento))
    {}

    std::unique_ptr<Documento> documento(const RichiestaDocumento&) override { return std::move(mDocumento); }
    QString cartellaDocumenti() const override { return mCartella; }
    QString impostazione(const QString& chiave) const override
    {
        return chiave == "Modalita"_L1 ? modalita : QString();
    }

    void archiviato(const QString& percorso) override { archiviati << percorso; }

    QString modalita;
    QStringList archiviati;

private:
    QString mCartella;
    std::unique_ptr<Documento> mDocumento;
};

} // namespace giacenza::prove

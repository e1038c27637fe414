#pragma once

#include <giacenza/Errore.h>
#include <giacenza/ModuloStampa.h>

#include <QPageLayout>

#include <memory>

class QPainter;
class QWidget;

namespace giacenza {

/// A document of the component, laid out: pages that only need painting, whatever the paper is (a file, a
/// printer, an image). It stands by itself: it keeps nothing of the database open.
class GIACENZA_EXPORT Documento
{
public:
    Documento() = default;
    Documento(const Documento&) = delete;
    Documento& operator=(const Documento&) = delete;
    virtual ~Documento() = default;

    /// What the document is called, for a title bar or a file's metadata: "Avviso di giacenza 1234/2015".
    virtual QString titolo() const = 0;

    /// Paper, orientation and margins; the margins are the document's own, so the paper is painted whole.
    virtual QPageLayout impaginazione() const = 0;

    /// How many pages there are, at least one.
    virtual int pagine() const = 0;

    /// Paints a page.
    ///
    /// pagina: 0 to pagine() - 1. pittore: active; its origin is the paper's upper left corner and its units
    /// are the device's own, from which the size of the page follows. Its state is put back afterwards.
    /// False when the operator, asked because printing takes long, gave it up: nothing more is to be painted.
    virtual bool dipingi(int pagina, QPainter& pittore) = 0;

    /// The pages are about to be painted once more, on another paper: how long a print takes is counted from
    /// here.
    virtual void ricomincia() {}
};

/// What a document is made from: what the print module was told.
struct RichiestaDocumento
{
    TipoDocumento tipo = TipoDocumento::avviso; ///< which document
    QString chiave;                             ///< held-shipment number + "_" + year
    QString percorsoDatabase;                   ///< connection string
    QString percorsoLogo;                       ///< a file, or a folder that holds "logo.gif"; empty: no logo
    std::array<QString, 4> didascalie;          ///< the letterhead's four lines, any may be empty
};

/// Where a print module gets the component's own documents from. It belongs to the component and outlives the
/// module.
class GIACENZA_EXPORT FonteDocumenti
{
public:
    FonteDocumenti() = default;
    FonteDocumenti(const FonteDocumenti&) = delete;
    FonteDocumenti& operator=(const FonteDocumenti&) = delete;
    virtual ~FonteDocumenti() = default;

    /// Reads and lays out a document, with the controls that the component has hidden left out.
    ///
    /// Nothing when no document came out and the operator knows why: he gave it up, or was shown the error.
    /// Throws giacenza::Errore when there is no such held shipment or the database cannot be reached.
    virtual std::unique_ptr<Documento> documento(const RichiestaDocumento& richiesta) = 0;

    /// The folder in which documents are kept, absolute; it need not exist yet.
    virtual QString cartellaDocumenti() const = 0;

    /// A value of the settings file, section "DLLStampe"; empty when absent.
    virtual QString impostazione(const QString& chiave) const = 0;

    /// For the module to say which file it left, so that the operator can open it from the screen.
    /// percorso: absolute.
    virtual void archiviato(const QString& percorso) = 0;
};

/// A print module that prints the component's own documents. The component hands the source over after
/// making the module and before everything else.
class GIACENZA_EXPORT ModuloStampaConFonte : public ModuloStampa
{
public:
    /// fonte: never null. padre: the window over which the module's dialogs open, may be null.
    virtual void setFonte(FonteDocumenti* fonte, QWidget* padre) = 0;
};

} // namespace giacenza

#pragma once

#include <giacenza/ParteEsterna.h>

#include <array>

namespace giacenza {

/// The documents that a print module can be asked for.
enum class TipoDocumento : int
{
    avviso = 5,   ///< the storage notice
    buonFine = 6, ///< the closure document
};

/// The print module, class name "ReportDoc" + identifier + ".cModuliStampa". The component drives it in the
/// order of the members: everything is set first, then the document is asked for, then the object is
/// released.
class GIACENZA_EXPORT ModuloStampa : public ParteEsterna
{
public:
    /// percorso: the connection string of the host's database, as the host gave it.
    virtual void setPercorsoDatabase(const QString& percorso) = 0;
    /// percorso: the letterhead logo: a file, or a folder that holds "logo.gif"; empty: no logo.
    virtual void setPercorsoLogo(const QString& percorso) = 0;
    /// didascalie: the captions of the notice's four labels, in order; any may be empty.
    virtual void setDidascalie(const std::array<QString, 4>& didascalie) = 0;
    /// stampa: true when the document is to be produced for good; the component always gives true.
    virtual void setStampa(bool stampa) = 0;
    /// tipo: which document is asked for.
    virtual void setTipoDocumento(TipoDocumento tipo) = 0;

    /// Produces the document.
    ///
    /// chiave: the document's key: held-shipment number + "_" + year.
    /// nonProdotto: false when called; the module sets it when no document came out and it told the operator
    /// why. Throws giacenza::Errore when printing cannot be done; its text is shown to the operator.
    virtual void stampaDocumento(const QString& chiave, bool& nonProdotto) = 0;
};

} // namespace giacenza

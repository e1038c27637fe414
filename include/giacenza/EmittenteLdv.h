#pragma once

#include <giacenza/ParteEsterna.h>

#include <optional>

namespace giacenza {

/// A waybill's record as it was read from the database, read only.
class GIACENZA_EXPORT RecordLdv
{
public:
    RecordLdv() = default;
    RecordLdv(const RecordLdv&) = delete;
    RecordLdv& operator=(const RecordLdv&) = delete;
    virtual ~RecordLdv() = default;

    /// True when there is no such waybill, or it could not be read.
    virtual bool vuoto() const = 0;

    /// The names of the columns, in the order of the table; none when the record could not be read.
    virtual QStringList colonne() const = 0;

    /// A column's value, found without case: text, decimals with a point, dates "yyyy-mm-dd"; nothing for
    /// null. Throws giacenza::Errore for an empty record and for a column that it does not have.
    virtual std::optional<QString> valore(const QString& colonna) const = 0;
};

/// The host's waybill issuer, class name "EmissioneLdv.cEmittente". The component makes one for each issue
/// and drives it in the order of the members: everything is set first, then the waybill is issued, then the
/// object is released.
///
/// An issuer tells the operator by itself what went wrong, through the context (Contesto.h): the component
/// shows no message of its own for it.
class GIACENZA_EXPORT EmittenteLdv : public ParteEsterna
{
public:
    /// percorso: the connection string of the host's database, as the host gave it.
    virtual void setPercorsoDatabase(const QString& percorso) = 0;
    /// cartella: where the printed waybills go: the program's folder + "/imp"; it need not exist yet.
    virtual void setCartellaStampa(const QString& cartella) = 0;
    /// percorso: the letterhead logo: the program's folder + "/logo.gif"; it need not exist.
    virtual void setPercorsoLogo(const QString& percorso) = 0;
    /// stampa: whether the operator wants the new waybill printed.
    virtual void setStampa(bool stampa) = 0;
    /// definitiva: the waybill is to be issued for good; the component always gives true.
    virtual void setDefinitiva(bool definitiva) = 0;

    /// Issues the follow-up of a waybill.
    ///
    /// ldv: the waybill that was held; it lives as long as the call.
    /// Returns what was issued, in words for a status line, also when something of it went wrong afterwards
    /// or when it is not known whether it was; empty only when nothing was.
    virtual QString emetti(const RecordLdv& ldv) = 0;
};

/// The class name under which an issuer is asked for.
inline constexpr char16_t classeEmittenteLdv[] = u"EmissioneLdv.cEmittente";

} // namespace giacenza

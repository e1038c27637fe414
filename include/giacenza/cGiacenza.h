#pragma once

#include <giacenza/Errore.h>
#include <giacenza/esporta.h>

#include <QObject>
#include <QString>
#include <QVariant>

#include <memory>

/// What the component publishes for C++: the class that a host uses, the interfaces of the parts that it
/// calls, the exceptions, and the functions beside them.
namespace giacenza {

/// The component's one public class: the host creates it, sets the paths that every screen needs, asks for a
/// screen and is told by fine() when the operator has left it.
///
/// The settings live once for each thread: two objects of one thread share them, and share the screens. The
/// class is used from the user-interface thread only: an opening method throws giacenza::ErroreChiamata
/// (Chiamata.h) on any other, and where there is no QApplication. Failures of a call are the call's:
/// giacenza::ErroreDatabase comes back unchanged from an opening method when the database cannot be reached,
/// and no screen is shown.
class GIACENZA_EXPORT cGiacenza : public QObject
{
    Q_OBJECT

public:
    /// The kind of movement that the re-delivery screen issues. Any value may be given, also one that is not
    /// named.
    enum Reso : int
    {
        ResoDestinatario = 1, ///< re-delivery to the recipient
        ResoMittente = 2,     ///< return to the sender
    };
    Q_ENUM(Reso)

    /// The numbers by which a host that binds late calls the members.
    enum IdMembro : quint32
    {
        IdTipoReso = 0x68030000,                 ///< setTipoReso(): write-only property
        IdPercorsoLogoIntestazione = 0x68030001, ///< setPercorsoLogoIntestazione(): write-only property
        IdPercorsoFileIni = 0x68030002,          ///< PercorsoFileIni(), setPercorsoFileIni(): property
        IdPercorsoDatabase = 0x68030003,         ///< PercorsoDatabase(), setPercorsoDatabase(): property
        IdNuovaGiacenza = 0x60030005,            ///< NuovaGiacenza(): method
        IdNuovaGiacenzaEXT = 0x60030006,         ///< NuovaGiacenzaEXT(): method
        IdMostraRiconsegna = 0x60030008,         ///< MostraRiconsegna(): method
        IdConsultaGiacenza = 0x6003000B,         ///< ConsultaGiacenza(): method
        IdEsegui = 0x6003000C,                   ///< Esegui(): method
    };
    Q_ENUM(IdMembro)

    /// parent: who owns the object, as in Qt; may be null.
    explicit cGiacenza(QObject* parent = nullptr);
    ~cGiacenza() override;

    /// The ODBC connection string shared by all screens, kept unchanged: no check, no trimming.
    Q_INVOKABLE QString PercorsoDatabase() const;
    /// The same, given. percorso: the connection string.
    Q_INVOKABLE void setPercorsoDatabase(const QString& percorso);

    /// The settings file; its folder also holds the goods-type list. Kept unchanged.
    Q_INVOKABLE QString PercorsoFileIni() const;
    /// The same, given. percorso: the file.
    Q_INVOKABLE void setPercorsoFileIni(const QString& percorso);

    /// Opens the registration screen, empty, modeless; returns at once. Throws what the screen's loading
    /// throws.
    Q_INVOKABLE void NuovaGiacenza();

    /// Opens the registration screen for a waybill; the screen looks it up by itself once it is active.
    ///
    /// strLdv: waybill number; strDataLdv: its date, "dd/mm/yyyy"; strFiliale: branch code; strCliente:
    /// customer code. Read only. With one of them empty, or a wrong date, the screen opens without a lookup.
    Q_INVOKABLE void NuovaGiacenzaEXT(const QString& strLdv, const QString& strDataLdv,
                                      const QString& strFiliale, const QString& strCliente);

    /// The letterhead logo of the notice: a file, or a folder that holds "logo.gif". Write-only, kept
    /// unchanged.
    Q_INVOKABLE void setPercorsoLogoIntestazione(const QString& percorso);

    /// Opens the re-delivery or return screen, modeless; returns at once.
    Q_INVOKABLE void MostraRiconsegna();

    /// Write-only. ResoMittente gives "Reso a Mittente"; every other value "Riconsegna a Destinatario".
    Q_INVOKABLE void setTipoReso(giacenza::cGiacenza::Reso tipo);

    /// Opens the held-shipment management screen, modeless; returns at once.
    Q_INVOKABLE void ConsultaGiacenza();

    /// Reserved: does nothing and returns an empty variant, whatever the arguments.
    Q_INVOKABLE QVariant Esegui(const QString& Azione, const QVariant& Arg = {});

Q_SIGNALS:
    /// The operator has left a screen: raised once for each close, last, after the screen's connection is
    /// closed.
    void fine();

private:
    class Interno;
    std::unique_ptr<Interno> mInterno;
};

} // namespace giacenza

#include "screens/chiavericerca.h"

#include "database/valori.h"
#include "screens/campi.h"
#include "widgets/campodata.h"
#include "widgets/tasti.h"

namespace giacenza {

ChiaveRicerca::ChiaveRicerca(Schermata& schermata, ModoRicerca modo, QLineEdit* campo, CampoData* data,
                             const std::function<void()>& elenca)
    : mModo(modo), mCampo(campo), mData(data)
{
    for (QLineEdit* riga : {campo, static_cast<QLineEdit*>(data)}) {
        QObject::connect(riga, &QLineEdit::textEdited, &schermata, [this] { mModificata = true; });
        suTasto(riga, Qt::Key_F9, elenca);
    }
}

QString ChiaveRicerca::valore() const
{
    // A key looks up before the field is left, and so before its blanks are taken off.
    return (perNumero() ? numeroLdv(mCampo) : testo(mCampo)).trimmed();
}

QString ChiaveRicerca::data() const
{
    return testo(mData);
}

std::optional<QDate> ChiaveRicerca::giorno() const
{
    return leggiData(data());
}

} // namespace giacenza

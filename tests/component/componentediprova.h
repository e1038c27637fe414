#pragma once

#include "base/formafinta.h"
#include "base/forme.h"
#include "base/impostazioni.h"
#include "component/registraforme.h"

#include <giacenza/cGiacenza.h>

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

inline constexpr char nomeGiacenza[] = "frmGiacenza";
inline constexpr char nomeRiconsegna[] = "frmRiconsegna";
inline constexpr char nomeGestione[] = "frmGestGia";

inline const QString frmGiacenza = QString::fromLatin1(nomeGiacenza);
inline const QString frmRiconsegna = QString::fromLatin1(nomeRiconsegna);
inline const QString frmGestGia = QString::fromLatin1(nomeGestione);

inline QStringList eventi(const QString& forma, const QStringList& quali)
{
    QStringList tutti;
    for (const QString& quale : quali)
        tutti.append(forma + u' ' + quale);
    return tutti;
}

inline const QString creata = u"creata"_s;
inline const QString mostrata = u"mostrata"_s;
inline const QString chiusa = u"chiusa"_s;
inline const QString distrutta = u"distrutta"_s;

/// The public class with forms of the test's own in place of the component's.
class ComponenteDiProva : public ::testing::Test
{
protected:
    ComponenteDiProva()
    {
        impostazioni() = {};
        registraForme(*mForme);
        accaduto().clear();
    }
    ~ComponenteDiProva() override
    {
        mClasse.reset();
        svuota();
        impostazioni() = {};
    }

    static void svuota() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    std::shared_ptr<Forme> mForme = Forme::delThread();
    std::unique_ptr<cGiacenza> mClasse = std::make_unique<cGiacenza>();
};

} // namespace giacenza::prove

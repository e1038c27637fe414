#include "screens/campi.h"

#include "widgets/campodata.h"

#include <QComboBox>
#include <QDynamicPropertyChangeEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStyle>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr char proprietaAvanzo[] = "avanzo";
constexpr char proprietaTag[] = "tag";
/// True once a row gave the control its value: only then can the value be a left-over of another waybill.
constexpr char proprietaRiempito[] = "riempito";

void segnaAvanzo(QWidget* controllo, bool avanzo)
{
    if (eAvanzo(controllo) == avanzo)
        return;
    controllo->setProperty(proprietaAvanzo, avanzo);
    controllo->setToolTip(avanzo ? u"Valore di un'altra lettera di vettura: non viene usato."_s : QString());
    rinnovaAspetto(controllo);
}

void scriviMostrato(QWidget* controllo, const QString& testo)
{
    if (auto* data = qobject_cast<CampoData*>(controllo))
        data->imposta(testo);
    else if (auto* riga = qobject_cast<QLineEdit*>(controllo))
        riga->setText(testo);
    else if (auto* etichetta = qobject_cast<QLabel*>(controllo))
        etichetta->setText(testo);
    else if (auto* elenco = qobject_cast<QComboBox*>(controllo))
        elenco->setCurrentText(testo);
    else if (auto* blocco = qobject_cast<QPlainTextEdit*>(controllo))
        blocco->setPlainText(QString(testo).replace(u"\r\n"_s, u"\n"_s));
    else
        throw std::logic_error("a control of a kind that holds no text");
}

/// What was typed, or set by the program, is nobody's left-over.
void proprio(QWidget* controllo)
{
    controllo->setProperty(proprietaRiempito, false);
    segnaAvanzo(controllo, false);
}

class CambioAvanzo : public QObject
{
public:
    CambioAvanzo(QWidget* controllo, std::function<void()> azione)
        : QObject(controllo), mAzione(std::move(azione))
    {
        controllo->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() == QEvent::DynamicPropertyChange &&
            static_cast<QDynamicPropertyChangeEvent*>(evento)->propertyName() == proprietaAvanzo)
            mAzione();
        return false;
    }

private:
    std::function<void()> mAzione;
};

} // namespace

QString testoMostrato(const QWidget* controllo)
{
    if (const auto* data = qobject_cast<const CampoData*>(controllo))
        return data->testo();
    if (const auto* riga = qobject_cast<const QLineEdit*>(controllo))
        return riga->text();
    if (const auto* etichetta = qobject_cast<const QLabel*>(controllo))
        return etichetta->text();
    if (const auto* elenco = qobject_cast<const QComboBox*>(controllo))
        return elenco->currentText();
    if (const auto* blocco = qobject_cast<const QPlainTextEdit*>(controllo))
        return blocco->toPlainText();
    throw std::logic_error("a control of a kind that holds no text");
}

QString testo(const QWidget* controllo)
{
    return eAvanzo(controllo) ? QString() : testoMostrato(controllo);
}

void scrivi(QWidget* controllo, const QString& testo)
{
    // The mark goes first: who hears of the new text reads it as empty while the mark is there.
    proprio(controllo);
    scriviMostrato(controllo, testo);
}

void scriviDelCaso(QWidget* controllo, const QString& testo)
{
    scrivi(controllo, testo);
    segnaDelCaso(controllo);
}

void segnaDelCaso(QWidget* controllo)
{
    controllo->setProperty(proprietaRiempito, true);
}

void quandoCambiaAvanzo(QWidget* controllo, std::function<void()> azione)
{
    new CambioAvanzo(controllo, std::move(azione));
}

void rinnovaAspetto(QWidget* controllo)
{
    const auto rinnova = [controllo] {
        controllo->style()->unpolish(controllo);
        controllo->style()->polish(controllo);
    };
    QMetaObject::invokeMethod(controllo, rinnova, Qt::QueuedConnection);
}

bool eAvanzo(const QWidget* controllo)
{
    return controllo->property(proprietaAvanzo).toBool();
}

bool eRiempito(const QWidget* controllo)
{
    return controllo->property(proprietaRiempito).toBool();
}

QString numeroLdv(const QLineEdit* campo)
{
    return campo->text().isEmpty() ? tag(campo) : campo->text();
}

QString tag(const QLineEdit* campo)
{
    return campo->property(proprietaTag).toString();
}

CampiSchermata::CampiSchermata(QWidget* schermata, const MappaSpedizione& mappa) : QObject(schermata)
{
    for (const PassoSpedizione& passo : mappa) {
        const QLatin1String nome(passo.controllo);
        if (nome.isEmpty() || mControlli.contains(nome))
            continue;
        auto* trovato = schermata->findChild<QWidget*>(nome);
        if (!trovato)
            throw std::logic_error("no control of the name " + std::string(nome.data(), nome.size()));
        mControlli.insert(nome, trovato);
        osserva(trovato);
    }
}

void CampiSchermata::osserva(QWidget* controllo)
{
    const auto digitato = [controllo] { proprio(controllo); };
    if (auto* riga = qobject_cast<QLineEdit*>(controllo))
        connect(riga, &QLineEdit::textEdited, this, digitato);
    else if (auto* elenco = qobject_cast<QComboBox*>(controllo)) {
        connect(elenco, &QComboBox::editTextChanged, this, digitato);
        connect(elenco, &QComboBox::activated, this, digitato);
    } else if (auto* blocco = qobject_cast<QPlainTextEdit*>(controllo))
        connect(blocco, &QPlainTextEdit::textChanged, this, digitato);
}

void CampiSchermata::scrivi(QLatin1String nome, const QString& testo)
{
    scriviDelCaso(controllo(nome), testo);
}

void CampiSchermata::scriviTag(QLatin1String nome, const QString& testo)
{
    QWidget* dove = controllo(nome);
    dove->setProperty(proprietaTag, testo);
    if (auto* riga = qobject_cast<QLineEdit*>(dove))
        riga->setPlaceholderText(testo);
}

void CampiSchermata::seleziona(QLatin1String nome, int riga)
{
    auto* elenco = qobject_cast<QComboBox*>(controllo(nome));
    if (!elenco)
        throw std::logic_error("rows can be selected in a list only");
    if (riga < -1 || riga >= elenco->count())
        return lascia(nome);
    proprio(elenco);
    elenco->setCurrentIndex(riga);
    segnaDelCaso(elenco);
}

void CampiSchermata::lascia(QLatin1String nome)
{
    if (nome.isEmpty())
        return;
    QWidget* dove = controllo(nome);
    if (eRiempito(dove) && !testoMostrato(dove).isEmpty())
        segnaAvanzo(dove, true);
}

void CampiSchermata::giaInGiacenza(bool giacente)
{
    Q_EMIT giacenzaLetta(giacente);
}

QWidget* CampiSchermata::controllo(QLatin1String nome) const
{
    QWidget* trovato = mControlli.value(nome);
    if (!trovato)
        throw std::logic_error("the mapping has no control of the name " +
                               std::string(nome.data(), nome.size()));
    return trovato;
}

} // namespace giacenza

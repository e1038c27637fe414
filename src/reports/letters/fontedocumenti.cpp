#include "reports/letters/fontedocumenti.h"

#include "base/orologio.h"
#include "base/servizi.h"
#include "reports/letters/reportcondivisi.h"

#include <QPointer>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

class FonteReport : public FonteDocumenti
{
public:
    void setPadre(QWidget* padre)
    {
        mPadre = padre;
        mArchiviato.clear();
    }
    const QString& documentoArchiviato() const { return mArchiviato; }

    std::unique_ptr<Documento> documento(const RichiestaDocumento& richiesta) override
    {
        report::Report& report = richiesta.tipo == TipoDocumento::buonFine
                                     ? static_cast<report::Report&>(rptBuonFine())
                                     : rptAvviso();
        return report.componi(richiesta, oggi(), mPadre);
    }

    QString cartellaDocumenti() const override { return giacenza::cartellaDocumenti(); }

    QString impostazione(const QString& chiave) const override { return LeggiIni(u"DLLStampe"_s, chiave); }

    void archiviato(const QString& percorso) override { mArchiviato = percorso; }

private:
    QPointer<QWidget> mPadre;
    QString mArchiviato;
};

FonteReport& fonteDelThread()
{
    thread_local FonteReport fonte;
    return fonte;
}

} // namespace

void collegaFonte(ModuloStampa& modulo, QWidget* padre)
{
    FonteReport& fonte = fonteDelThread();
    fonte.setPadre(padre);
    if (auto* conFonte = dynamic_cast<ModuloStampaConFonte*>(&modulo))
        conFonte->setFonte(&fonte, padre);
}

QString documentoArchiviato()
{
    return fonteDelThread().documentoArchiviato();
}

} // namespace giacenza

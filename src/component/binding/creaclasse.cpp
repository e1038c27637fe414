#include "component/binding/creaclasse.h"

#include "component/binding/confine.h"
#include "component/binding/valori.h"
#include "component/descriptor/libreria.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>
#include <map>
#include <mutex>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// An object of another copy of this library.
class OggettoAltrui : public Oggetto
{
public:
    explicit OggettoAltrui(const Libreria& libreria) : mLibreria(libreria)
    {
        controlla(mLibreria.crea(&mSuo));
    }
    ~OggettoAltrui() override { mLibreria.rilascia(mSuo); }

    void invoca(uint32_t id, int32_t modo, const giacenza_valore* argomenti, int32_t numero,
                giacenza_valore& risultato) override
    {
        giacenza_valore suo = {GIACENZA_VUOTO, 0, nullptr};
        controlla(mLibreria.invoca(mSuo, id, modo, argomenti, numero, &suo));
        risultato = suo;
        if (suo.tipo != GIACENZA_TESTO)
            return;
        risultato = {GIACENZA_VUOTO, 0, nullptr};
        riempi(risultato, suo.testo);
        mLibreria.libera(&suo);
    }

    void ascolta(uint32_t evento) override
    {
        controlla(mLibreria.ascolta(
            mSuo, evento, [](giacenza_oggetto, void* questo) { static_cast<Oggetto*>(questo)->racconta(); },
            static_cast<Oggetto*>(this)));
    }

private:
    void controlla(int32_t codice) const
    {
        if (codice != GIACENZA_BENE)
            throw ErroreConfine(codice, QString::fromUtf8(mLibreria.errore_testo()),
                                QString::fromUtf8(mLibreria.errore_sqlstate()), mLibreria.errore_nativo());
    }

    const Libreria& mLibreria;
    giacenza_oggetto mSuo = 0;
};

/// The file of this library.
QString questaLibreria()
{
    Dl_info dove = {};
    if (::dladdr(reinterpret_cast<const void*>(&giacenza_abi), &dove) == 0 || !dove.dli_fname)
        return {};
    return QFileInfo(QFile::decodeName(dove.dli_fname)).canonicalFilePath();
}

int32_t codice(ErroreDescrittore::Motivo motivo)
{
    switch (motivo) {
    case ErroreDescrittore::malfatto:
    case ErroreDescrittore::scrittura:
        return GIACENZA_DESCRITTORE;
    case ErroreDescrittore::libreria:
        return GIACENZA_LIBRERIA;
    case ErroreDescrittore::versione:
        return GIACENZA_VERSIONE;
    }
    return GIACENZA_INATTESO;
}

std::unique_ptr<Oggetto> creato(const QString& classe)
{
    const QStringList cartelle = cartelleDescrittori();
    const auto descrittore = cercaDescrittore(cartelle, classe);
    if (!descrittore)
        throw ErroreConfine(
            GIACENZA_CLASSE_IGNOTA,
            u"La classe \"%1\" non è registrata: la registra giacenza-registra. Cercata in: %2."_s.arg(
                classe, cartelle.join(u", "_s)));
    controllaFile(*descrittore);
    const QString file = QFileInfo(descrittore->libreria).canonicalFilePath();
    // Never unloaded: what a library of Qt's kind leaves behind may be called at any time.
    static auto* const porta = new std::mutex;
    static auto* const caricate = new std::map<QString, Libreria>;
    const std::lock_guard chiusa(*porta);
    const Libreria& libreria = caricate->try_emplace(file, descrittore->libreria).first->second;
    libreria.controllaVersione(*descrittore);
    if (file == questaLibreria())
        return nuovoOggetto();
    libreria.controllaUso(QString::fromLatin1(giacenza_versione()));
    return std::make_unique<OggettoAltrui>(libreria);
}

} // namespace

std::unique_ptr<Oggetto> oggettoDellaClasse(const QString& classe)
{
    try {
        return creato(classe);
    } catch (const ErroreDescrittore& errore) {
        throw ErroreConfine(codice(errore.motivo()), errore.testo());
    }
}

} // namespace giacenza

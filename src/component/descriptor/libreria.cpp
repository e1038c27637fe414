#include "component/descriptor/libreria.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>
#include <dlfcn.h>
#include <link.h>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

[[noreturn]] void rifiuta(ErroreDescrittore::Motivo motivo, const QString& testo)
{
    throw ErroreDescrittore(motivo, testo);
}

} // namespace

Libreria::Libreria(const QString& percorso) : mPercorso(percorso)
{
    if (percorso.contains(u'/') && !QFileInfo(percorso).isFile())
        rifiuta(ErroreDescrittore::libreria, u"La libreria \"%1\" non c'è."_s.arg(percorso));
    // Its own names first: the program may have loaded another copy of the component.
    mAperta = ::dlopen(QFile::encodeName(percorso).constData(), RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND);
    if (!mAperta)
        rifiuta(ErroreDescrittore::libreria,
                u"La libreria \"%1\" non si carica: %2"_s.arg(percorso, QString::fromLocal8Bit(::dlerror())));
    link_map* mappa = nullptr;
    if (::dlinfo(mAperta, RTLD_DI_LINKMAP, &mappa) == 0 && mappa)
        mPercorso = QFileInfo(QFile::decodeName(mappa->l_name)).absoluteFilePath();
    trova(mVersione, "giacenza_versione");
    trova(mAbi, "giacenza_abi");
    trova(descrizione, "giacenza_descrizione");
    trova(errore_testo, "giacenza_errore_testo");
    trova(errore_sqlstate, "giacenza_errore_sqlstate");
    trova(errore_nativo, "giacenza_errore_nativo");
    trova(crea, "giacenza_crea");
    trova(rilascia, "giacenza_rilascia");
    trova(ascolta, "giacenza_ascolta");
    trova(invoca, "giacenza_invoca");
    trova(libera, "giacenza_libera");
}

template<class Funzione>
void Libreria::trova(Funzione& funzione, const char* nome)
{
    void* const indirizzo = ::dlsym(mAperta, nome);
    if (!indirizzo)
        rifiuta(ErroreDescrittore::libreria,
                u"\"%1\" non è il componente delle giacenze: manca la funzione %2."_s.arg(
                    mPercorso, QLatin1StringView(nome)));
    static_assert(sizeof funzione == sizeof indirizzo);
    std::memcpy(&funzione, &indirizzo, sizeof indirizzo);
}

void Libreria::controllaVersione(const Descrittore& descrittore) const
{
    if (!stessaMaggiore(versione(), descrittore.versione))
        rifiuta(
            ErroreDescrittore::versione,
            u"La libreria \"%1\" è della versione %2, il descrittore \"%3\" della %4. Registrare di nuovo la "
            "classe con giacenza-registra."_s.arg(mPercorso, versione(), descrittore.file,
                                                  descrittore.versione));
}

void Libreria::controllaUso(const QString& versioneDiChiUsa) const
{
    if (!stessaMaggiore(versione(), versioneDiChiUsa))
        rifiuta(ErroreDescrittore::versione,
                u"La libreria \"%1\" è della versione %2, il programma della %3."_s.arg(mPercorso, versione(),
                                                                                        versioneDiChiUsa));
    if (mAbi() != GIACENZA_ABI)
        rifiuta(ErroreDescrittore::versione,
                u"La libreria \"%1\" ha l'interfaccia binaria %2, il programma la %3."_s.arg(mPercorso)
                    .arg(mAbi())
                    .arg(GIACENZA_ABI));
}

void controllaFile(const Descrittore& descrittore)
{
    if (!QFileInfo(descrittore.libreria).isFile())
        rifiuta(ErroreDescrittore::libreria,
                u"La libreria \"%1\", indicata dal descrittore \"%2\", non c'è più. Registrare di nuovo la "
                u"classe "
                "con giacenza-registra."_s.arg(descrittore.libreria, descrittore.file));
}

} // namespace giacenza

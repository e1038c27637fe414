#include "azioni.h"

#include "component/descriptor/descrittore.h"

#include <QCoreApplication>

namespace {

registra::Codice codice(giacenza::ErroreDescrittore::Motivo motivo)
{
    switch (motivo) {
    case giacenza::ErroreDescrittore::malfatto:
        return registra::Codice::descrittore;
    case giacenza::ErroreDescrittore::libreria:
        return registra::Codice::libreria;
    case giacenza::ErroreDescrittore::versione:
        return registra::Codice::altraVersione;
    case giacenza::ErroreDescrittore::scrittura:
        break;
    }
    return registra::Codice::nonScritto;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    try {
        const registra::Codice esito = registra::esegui(registra::leggiRiga(applicazione));
        return static_cast<int>(registra::uscitaScritta() ? esito : registra::Codice::senzaUscita);
    } catch (const giacenza::ErroreDescrittore& errore) {
        registra::lamenta(errore.testo());
        return static_cast<int>(codice(errore.motivo()));
    }
}

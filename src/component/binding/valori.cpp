#include "component/binding/valori.h"

#include "component/binding/confine.h"

#include <QStringDecoder>

#include <cstring>

using namespace Qt::StringLiterals;

namespace giacenza {

QString testoDato(const char* testo, const char* nome)
{
    dato(testo, nome);
    // Unchanged: a byte-order mark at the beginning is a character like any other.
    QStringDecoder decodifica(QStringConverter::Utf8,
                              QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    QString letto = decodifica(QByteArrayView(testo));
    if (decodifica.hasError())
        throw ErroreConfine(GIACENZA_TESTO_NON_VALIDO,
                            u"Il testo \"%1\" non è in UTF-8."_s.arg(QLatin1StringView(nome)));
    return letto;
}

QVariantList argomentiDati(const giacenza_valore* argomenti, int32_t numero)
{
    QVariantList dati;
    if (numero > 0)
        dato(argomenti, "argomenti");
    for (int32_t i = 0; i < numero; ++i) {
        switch (argomenti[i].tipo) {
        case GIACENZA_VUOTO:
            dati.append(QVariant());
            break;
        case GIACENZA_TESTO:
            dati.append(testoDato(argomenti[i].testo, "argomenti.testo"));
            break;
        case GIACENZA_INTERO:
            dati.append(int{argomenti[i].intero});
            break;
        case GIACENZA_LOGICO:
            dati.append(argomenti[i].intero != 0);
            break;
        default:
            throw ErroreConfine(
                GIACENZA_TIPO_ARGOMENTO,
                u"L'argomento %1 è di un tipo sconosciuto: %2."_s.arg(i + 1).arg(argomenti[i].tipo));
        }
    }
    return dati;
}

void riempi(giacenza_valore& risultato, const char* testo)
{
    const std::size_t byte = std::strlen(testo) + 1;
    char* copia = new char[byte];
    std::memcpy(copia, testo, byte);
    risultato = {GIACENZA_TESTO, 0, copia};
}

void riempi(giacenza_valore& risultato, const QVariant& valore)
{
    switch (valore.typeId()) {
    case QMetaType::UnknownType:
        risultato = {GIACENZA_VUOTO, 0, nullptr};
        return;
    case QMetaType::Bool:
        risultato = {GIACENZA_LOGICO, valore.toBool() ? 1 : 0, nullptr};
        return;
    case QMetaType::Int:
        risultato = {GIACENZA_INTERO, valore.toInt(), nullptr};
        return;
    case QMetaType::QString:
        break;
    default:
        throw ErroreConfine(GIACENZA_INATTESO, u"Il risultato è di un tipo che non si può restituire."_s);
    }
    const QString testo = valore.toString();
    if (testo.contains(QChar(u'\0')) || !testo.isValidUtf16())
        throw ErroreConfine(GIACENZA_TESTO_NON_VALIDO,
                            u"Il risultato contiene un carattere che non si può restituire."_s);
    riempi(risultato, testo.toUtf8().constData());
}

void liberaValore(giacenza_valore& valore) noexcept
{
    if (valore.tipo == GIACENZA_TESTO)
        delete[] valore.testo;
    valore = {GIACENZA_VUOTO, 0, nullptr};
}

} // namespace giacenza

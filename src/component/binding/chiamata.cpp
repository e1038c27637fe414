#include <giacenza/Chiamata.h>

#include "component/binding/membri.h"

#include <QThread>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool delTipo(const QVariant& valore, int tipo)
{
    switch (tipo) {
    case GIACENZA_TESTO:
        return valore.typeId() == QMetaType::QString;
    case GIACENZA_RESO:
        return valore.typeId() == QMetaType::Int ||
               valore.metaType() == QMetaType::fromType<cGiacenza::Reso>();
    default:
        return tipo == GIACENZA_VARIANTE;
    }
}

void controllaTipi(const Membro& membro, const QVariantList& argomenti)
{
    for (qsizetype i = 0; i < argomenti.size(); ++i) {
        const giacenza_argomento& voluto = membro.argomenti[static_cast<std::size_t>(i)];
        if (!delTipo(argomenti[i], voluto.tipo))
            throw ErroreChiamata(ErroreChiamata::tipoArgomento,
                                 u"L'argomento %1 di \"%2\" (%3) dev'essere %4."_s.arg(i + 1).arg(
                                     QString::fromLatin1(membro.nome), QString::fromLatin1(voluto.nome),
                                     voluto.tipo == GIACENZA_TESTO ? u"un testo"_s : u"un intero"_s));
    }
}

} // namespace

quint32 idMembro(const QString& nome)
{
    const auto tutti = membri();
    // Of its letters those of ASCII alone have a case: no other letter folds to one of theirs.
    const QByteArray byte = nome.toUtf8();
    const auto trovato = std::find_if(tutti.begin(), tutti.end(), [&](const Membro& m) {
        return byte.compare(m.nome, Qt::CaseInsensitive) == 0;
    });
    if (trovato == tutti.end())
        throw ErroreChiamata(ErroreChiamata::membroIgnoto,
                             u"La classe non ha il membro \"%1\"."_s.arg(nome.left(120)));
    return trovato->id;
}

QVariant chiama(cGiacenza& oggetto, quint32 id, Modo modo, const QVariantList& argomenti)
{
    const Membro& membro = membroDaChiamare(id, modo, argomenti.size());
    controllaTipi(membro, argomenti);
    if (QThread::currentThread() != oggetto.thread())
        throw ErroreChiamata(ErroreChiamata::altroThread, u"L'oggetto si usa nel thread che lo ha creato."_s);
    return membro.chiama(oggetto, argomenti);
}

QVariant chiama(cGiacenza& oggetto, const QString& nome, Modo modo, const QVariantList& argomenti)
{
    return chiama(oggetto, idMembro(nome), modo, argomenti);
}

} // namespace giacenza

#pragma once

#include <QAccessible>
#include <QHash>
#include <QStringList>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// What a screen reader has to say of the inputs of a window, as the accessible tree gives it.
struct AlberoAccessibile
{
    int ingressi = 0;
    QStringList senzaNome; ///< class and object name of the inputs without a name
    QStringList doppi;     ///< the names that two inputs of one group have, as "group: name"
};

/// Walks the accessible tree of a window. What an input is made of (the line of a list, the cells of a table)
/// is its own business.
inline AlberoAccessibile alberoAccessibile(QWidget* finestra)
{
    AlberoAccessibile albero;
    QHash<QString, QStringList> nomi;
    const auto visita = [&](const auto& io, QAccessibleInterface* voce, const QString& gruppo) -> void {
        const QAccessible::Role ruolo = voce->role();
        const QString nome = voce->text(QAccessible::Name);
        const bool ingresso = ruolo == QAccessible::EditableText || ruolo == QAccessible::ComboBox ||
                              ruolo == QAccessible::SpinBox || ruolo == QAccessible::CheckBox ||
                              ruolo == QAccessible::RadioButton || ruolo == QAccessible::PushButton ||
                              ruolo == QAccessible::ButtonMenu || ruolo == QAccessible::List ||
                              ruolo == QAccessible::Table;
        if (ingresso) {
            ++albero.ingressi;
            const QObject* oggetto = voce->object();
            if (nome.isEmpty())
                albero.senzaNome << QLatin1String(oggetto->metaObject()->className()) + u' ' +
                                        oggetto->objectName();
            if (nomi[gruppo].contains(nome))
                albero.doppi << gruppo + u": "_s + nome;
            nomi[gruppo] << nome;
            // A calendar is made of buttons and days that are reached one by one.
            if (!oggetto->inherits("QCalendarWidget"))
                return;
        }
        const QString sotto = ruolo == QAccessible::Grouping ? nome : gruppo;
        for (int i = 0; i < voce->childCount(); ++i)
            if (QAccessibleInterface* figlio = voce->child(i))
                io(io, figlio, sotto);
    };
    visita(visita, QAccessible::queryAccessibleInterface(finestra), finestra->objectName());
    return albero;
}

} // namespace giacenza::prove

#pragma once

#include <QObject>
#include <QStringList>

#include <optional>
#include <vector>

class QMenu;

namespace giacenza::desk {

class TabellaDesk;

/// The columns of a table as its user wants them: their order, their widths, those that are hidden, and what
/// the rows are sorted by.
class ColonneScelte : public QObject
{
    Q_OBJECT

public:
    /// The table has its model, its widths and its order: those are what ripristina() gives back.
    explicit ColonneScelte(TabellaDesk* tabella);

    /// A line each, from left to right: title, width in hundredths of a character (0: its usual one), 1 when
    /// it is shown. A width in characters stays right when the font changes.
    QStringList scritte() const;
    /// "Franchi|crescente" or "Franchi|decrescente".
    QString ordine() const;

    /// Puts them as they were written down. What is damaged changes nothing; columns that are not named come
    /// last.
    void rimetti(const QStringList& scritte, const QString& ordine);
    /// As if nobody had touched them.
    void ripristina();

    /// An entry for each column, to show and hide it, and one that gives the usual ones back. The titles of
    /// the table show the same menu.
    void riempi(QMenu* menu);

private:
    struct Voce;
    std::optional<std::vector<Voce>> leggi(const QStringList& scritte) const;
    int colonnaDi(const QString& titolo) const;
    QString titolo(int colonna) const;
    int ultimaVista() const;
    void mostra(int colonna, bool vista);

    TabellaDesk* mTabella;
    QString mOrdineSolito;
};

} // namespace giacenza::desk

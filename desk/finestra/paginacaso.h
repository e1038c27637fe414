#pragma once

#include "desk/dati/catena.h"

#include <QWidget>

class QGridLayout;
class QLabel;
class QStandardItemModel;

namespace giacenza::desk {

class TabellaDesk;

/// One case with its whole chain.
class PaginaCaso : public QWidget
{
    Q_OBJECT

public:
    explicit PaginaCaso(QWidget* padre = nullptr);

    void mostra(const Catena& catena);
    /// The case on it; nothing before the first.
    const std::optional<Catena>& catena() const { return mCatena; }

Q_SIGNALS:
    /// Enter on a step: a document's, or another's.
    void documento(const QString& file);
    void preso(const giacenza::desk::Caso& caso);

private:
    void componi();
    void mostraTesta();
    void mostraPassi();
    QLabel* voce(QGridLayout* griglia, int riga, int colonna, const QString& nome);

    std::optional<Catena> mCatena;
    QLabel* mTitolo;
    QLabel* mStato;
    QLabel* mCliente = nullptr;
    QLabel* mDestinatario = nullptr;
    QLabel* mRiferimento = nullptr;
    QLabel* mSosta = nullptr;
    QLabel* mImporto = nullptr;
    QLabel* mScritto = nullptr;
    QLabel* mMotivo = nullptr;
    TabellaDesk* mPassi;
    QStandardItemModel* mModello;
};

} // namespace giacenza::desk

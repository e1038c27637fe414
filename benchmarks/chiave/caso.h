#pragma once

#include <QDate>
#include <QStringList>

#include <string>
#include <vector>

namespace banco {

/// What one run of an operation by key works on, as a request says it; see casi.h for who writes it.
struct Caso
{
    /// parti: branch, number, year and date of the waybill, customer, number, year and date of the held
    /// shipment, its days of storage, then the statements that put everything back. Dates are "yyyy-mm-dd",
    /// what there is not is empty.
    explicit Caso(const std::vector<std::string>& parti)
    {
        QStringList campi;
        for (const std::string& parte : parti)
            campi += QString::fromStdString(parte);
        const auto giorno = [&](qsizetype i) { return QDate::fromString(campi.value(i), Qt::ISODate); };
        filiale = campi.value(0);
        numero = campi.value(1);
        anno = campi.value(2).toInt();
        data = giorno(3);
        cliente = campi.value(4);
        giacenza = campi.value(5);
        dataGiacenza = giorno(7);
        ripristino = campi.mid(9);
    }

    QString filiale;
    QString numero;
    int anno;
    QDate data;
    QString cliente;
    QString giacenza;
    QDate dataGiacenza;
    QStringList ripristino;
};

} // namespace banco

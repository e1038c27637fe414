#pragma once

#include <QDate>
#include <QString>

#include <ostream>

// How GoogleTest shows the values of Qt in a failure; found by argument-dependent lookup.
QT_BEGIN_NAMESPACE

inline void PrintTo(const QString& testo, std::ostream* uscita)
{
    *uscita << '"' << testo.toStdString() << '"';
}

inline void PrintTo(const QDate& data, std::ostream* uscita)
{
    *uscita << data.toString(Qt::ISODate).toStdString();
}

QT_END_NAMESPACE

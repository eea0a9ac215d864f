#pragma once

#include "common/currency.h"

#include <QDate>
#include <QString>
#include <ostream>

// Failed comparisons show the text and not its bytes. GoogleTest finds these by the type's namespace.

inline void PrintTo(const QString& texto, std::ostream* salida)
{
    *salida << '"' << texto.toStdString() << '"';
}

inline void PrintTo(QDate fecha, std::ostream* salida)
{
    *salida << fecha.toString(Qt::ISODate).toStdString();
}

namespace valmerix {

inline void PrintTo(Currency importe, std::ostream* salida)
{
    *salida << importe.decimal().toStdString();
}

} // namespace valmerix

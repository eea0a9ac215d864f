#pragma once

#include <QDate>
#include <QString>
#include <QStringView>
#include <QVariant>
#include <memory>

namespace valmerix {

class ColumnaResultado;

/// A read-only snapshot of a SELECT: typed columns, each with its text arena, random access by row number
/// from 1.
/// Copies share the data. Field names are looked up blind to case.
class ConjuntoResultados
{
public:
    struct Datos;

    ConjuntoResultados();
    explicit ConjuntoResultados(std::shared_ptr<const Datos> datos);

    qint32 RecordCount() const;
    int Campos() const;
    QString NombreCampo(int columna) const;

    /// Text as QString, whole numbers as qlonglong, other numbers as double, dates as QDate, NULL as an
    /// invalid QVariant. Throws ErrorAlmacen for an unknown field or a row that is not there.
    QVariant Valor(QStringView campo, qint32 fila = 1) const;
    /// The same without a variant: NULL reads as "", 0, an invalid date; a number as Spanish text, a Spanish
    /// text as the number it begins with, a date as "dd/mm/yyyy".
    QString Texto(QStringView campo, qint32 fila = 1) const;
    double Numero(QStringView campo, qint32 fila = 1) const;
    qint64 Entero(QStringView campo, qint32 fila = 1) const;
    QDate Fecha(QStringView campo, qint32 fila = 1) const;

    /// The row's fields in SELECT order, joined by tabs; numbers as Spanish text, dates "dd/mm/yyyy".
    QString ValorRegistroGrid(qint32 fila) const;

    /// By position, for walks over many rows: the UTF-8 bytes of a text cell (empty for any other), valid
    /// while the snapshot lives.
    QUtf8StringView Utf8(int columna, qint32 fila) const;
    qsizetype Utf8Bytes(int columna) const; ///< of all the text cells of the column together
    qint64 Entero(int columna, qint32 fila) const;
    int Columna(QStringView campo) const;

    size_t bytes() const; ///< memory held

    void Cerrar();

private:
    quint32 Fila(qint32 fila) const;
    const ColumnaResultado& columna(QStringView campo) const;

    std::shared_ptr<const Datos> datos_;
};

} // namespace valmerix

#pragma once

#include "store/snapshot.h"

#include <QHash>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <vector>

struct sqlite3_stmt;
struct sqlite3_value;

namespace valmerix {

/// A growing run of plain values. It grows by realloc, which moves pages instead of copying them: half the
/// time of std::vector over a million rows.
template <class T>
class Tira
{
    static_assert(std::is_trivially_copyable_v<T>);

public:
    void Añadir(const T* valores, size_t n)
    {
        if (n > capacidad_ - tamaño_)
            Reservar(std::max(tamaño_ + n, capacidad_ + capacidad_ / 2 + 16));
        if (n != 0)
            std::memcpy(datos_.get() + tamaño_, valores, n * sizeof(T));
        tamaño_ += n;
    }
    void Añadir(T valor)
    {
        if (tamaño_ == capacidad_)
            Reservar(capacidad_ + capacidad_ / 2 + 16);
        datos_.get()[tamaño_++] = valor;
    }
    void Ajustar()
    {
        if (tamaño_ != 0)
            Reservar(tamaño_);
    }
    size_t size() const { return tamaño_; }
    size_t bytes() const { return capacidad_ * sizeof(T); }
    const T& operator[](size_t i) const { return datos_.get()[i]; }
    T& operator[](size_t i) { return datos_.get()[i]; }
    const T* data() const { return datos_.get(); }

private:
    struct Liberar
    {
        void operator()(T* p) const { std::free(p); }
    };

    void Reservar(size_t n)
    {
        auto* nuevo = static_cast<T*>(std::realloc(datos_.get(), n * sizeof(T)));
        if (nuevo == nullptr)
            throw std::bad_alloc();
        (void)datos_.release();
        datos_.reset(nuevo);
        capacidad_ = n;
    }

    std::unique_ptr<T, Liberar> datos_;
    size_t tamaño_ = 0;
    size_t capacidad_ = 0;
};

enum class ClaseCelda : quint8 { Nula, Entero, Real, Texto };

/// One column: a class for all its cells, whole or real numbers in 8 bytes each or texts one behind the
/// other with the place where each ends. NULLs are bits; the few cells of another class than the column's
/// stand apart, in the order of their rows.
class ColumnaResultado
{
public:
    ColumnaResultado(QString nombre, bool esFecha)
        : nombre_(std::move(nombre))
        , esFecha_(esFecha)
    {
    }

    void Añadir(quint32 fila, sqlite3_value* valor);
    void Ajustar();

    const QString& nombre() const { return nombre_; }
    bool esFecha() const { return esFecha_; }
    ClaseCelda clase(quint32 fila) const { return pura() ? clase_ : claseMezclada(fila); }
    qint64 entero(quint32 fila) const; ///< for cells of class Entero
    double real(quint32 fila) const;   ///< for cells of class Real
    std::string_view texto(quint32 fila) const
    {
        return pura() && clase_ == ClaseCelda::Texto ? textoPropio(fila) : textoMezclado(fila);
    }
    size_t bytes() const;
    size_t bytesDeTexto() const;

private:
    struct Aparte
    {
        quint32 fila;
        ClaseCelda clase;
        qint64 numero; // the bits of a real
        std::string texto;
    };

    void AñadirAparte(quint32 fila, ClaseCelda clase, sqlite3_value* valor);
    void AñadirTexto(std::string_view texto);
    void Fundar(ClaseCelda clase, quint32 fila);
    void MarcarNula(quint32 fila);
    bool pura() const { return aparte_.empty() && nulas_.size() == 0; } ///< all cells of the column's class
    ClaseCelda claseMezclada(quint32 fila) const;
    std::string_view textoPropio(quint32 fila) const
    {
        const quint32 inicio = fila == 0 ? 0 : finales_[fila - 1];
        return {letras_.data() + inicio, finales_[fila] - inicio};
    }
    std::string_view textoMezclado(quint32 fila) const;
    bool nula(quint32 fila) const;
    const Aparte* aparte(quint32 fila) const;

    QString nombre_;
    bool esFecha_;
    ClaseCelda clase_ = ClaseCelda::Nula; // of the column; Nula while it has only NULLs
    Tira<qint64> numeros_;
    Tira<quint32> finales_;
    Tira<char> letras_;
    Tira<quint64> nulas_;
    std::vector<Aparte> aparte_;
};

struct PicadilloSinCaja
{
    size_t operator()(QStringView s) const noexcept;
};

struct IgualSinCaja
{
    bool operator()(QStringView a, QStringView b) const noexcept
    {
        return a.compare(b, Qt::CaseInsensitive) == 0;
    }
};

struct ConjuntoResultados::Datos
{
    std::vector<ColumnaResultado> columnas;
    std::unordered_map<QStringView, int, PicadilloSinCaja, IgualSinCaja> porNombre; // views of their names
    quint32 filas = 0;
    std::vector<quint32>
        orden; ///< places of the rows in the columns, empty when they stand as they were read
    QString sql;
};

/// Steps the statement to its end. Gives the engine's result code beside the data.
struct LecturaConsulta
{
    std::shared_ptr<ConjuntoResultados::Datos> datos;
    int codigo = 0; ///< SQLITE_DONE, or what stopped it
};
LecturaConsulta LeerTodo(sqlite3_stmt* sentencia, const QString& sql);

} // namespace valmerix

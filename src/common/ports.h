#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace valmerix {

enum class IconoMensaje { Ninguno, Informacion, Pregunta, Aviso, Critico };

/// Boxes that stop the program until she answers.
class Dialogos
{
public:
    virtual ~Dialogos() = default;
    virtual void Mensaje(const QString& texto, const QString& titulo, IconoMensaje icono) = 0;
    /// Yes or no; closing the box is no.
    virtual bool Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono) = 0;
    /// The standard error report: "Continuar" (true, the default) or "Cerrar Valmerix" (false).
    virtual bool InformarFallo(const QString& texto, const QString& detalle) = 0;
    /// Lets her choose one file that is there. `filtro`: descriptions and patterns by turns, joined by '|',
    /// the patterns of one description by ';'. Its path; nothing when she leaves without choosing.
    virtual std::optional<QString> ElegirFichero(const QString& filtro) = 0;
    /// The calendar, opened on `fecha`; nothing when she leaves it without choosing.
    virtual std::optional<QDate> MostrarCalendario(QDate fecha) = 0;
};

class Reloj
{
public:
    virtual ~Reloj() = default;
    virtual QDate hoy() const = 0;
    /// Local time.
    virtual QDateTime ahora() const = 0;
};

/// The machine outside the program.
class Sistema
{
public:
    virtual ~Sistema() = default;
    /// Absolute, without a separator at its end.
    virtual QString carpetaPrograma() const = 0;
    /// Where the files of the installation stand that nobody changes; the program's folder unless a package
    /// has installed them elsewhere.
    virtual QString carpetaInstalacion() const { return carpetaPrograma(); }
    /// True when another instance already runs for this program folder.
    virtual bool otraInstancia() = 0;
    /// Starts `orden` with `argumentos` in `carpeta`; false when it could not be started.
    virtual bool Arrancar(const QString& orden, const QStringList& argumentos, const QString& carpeta) = 0;
    virtual void Pitar() = 0;
    virtual void PunteroOcupado(bool ocupado) = 0;
    /// Lets pending window messages run.
    virtual void DejarPintar() = 0;
    virtual void CopiarAlPortapapeles(const QString& texto) = 0;
    /// Empties the clipboard and puts the picture of a file there, upright. False when the file holds none
    /// that can be read; the clipboard then stays as it is.
    virtual bool CopiarImagenAlPortapapeles(const QString& ruta) = 0;
    /// Runs `tarea` once from the event loop, so many milliseconds from now.
    virtual void Aplazar(int milisegundos, std::function<void()> tarea) = 0;
    /// Ends the process. In the running program it does not return to ordinary work.
    virtual void TerminarProceso(int codigo) = 0;
};

enum class FuenteImagen { Fichero, Camara, Escaner };

/// Takes a picture from outside: a file, the camera, the scanner.
class CapturaImagenes
{
public:
    virtual ~CapturaImagenes() = default;
    /// Path of a bitmap file with the picture, kept while the process runs; nothing when she cancels or the
    /// source fails, which it has told her then.
    virtual std::optional<QString> LoadCapture(FuenteImagen fuente, const QString& carpetaPrograma) = 0;
};

} // namespace valmerix

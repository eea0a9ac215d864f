#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <memory>
#include <stdexcept>
#include <vector>

namespace valmerix {

class Sistema;

/// The manual cannot be read; what() tells her why, in UTF-8.
class ErrorManual : public std::runtime_error
{
public:
    explicit ErrorManual(const QString& texto)
        : std::runtime_error(texto.toStdString())
    {
    }
};

/// A stretch of a page under a heading of its own.
struct SeccionManual
{
    QString titulo; ///< the page's own title for what stands before the first heading
    QString ancla;  ///< place in the page; empty for its beginning
    QString texto;  ///< without marks, for the search
};

struct PaginaManual
{
    QString nombre; ///< by which links lead to it
    QString titulo;
    QString html;
    QStringList ventanas; ///< names of the windows that it tells of
    std::vector<SeccionManual> secciones;
};

/// A place that the search has found.
struct HallazgoManual
{
    QString pagina; ///< name
    QString ancla;
    QString titulo;   ///< of the page and, behind " › ", of the section
    QString extracto; ///< a line of text around the first word found
};

/// The user manual: pages in their order, pictures, search.
class Manual
{
public:
    Manual(std::vector<PaginaManual> paginas, QMap<QString, QByteArray> imagenes);

    const std::vector<PaginaManual>& paginas() const { return paginas_; }
    /// Null when there is none.
    const PaginaManual* pagina(QStringView nombre) const;
    /// The page that tells of a window; the first page when none does, null in an empty manual.
    const PaginaManual* PaginaDe(QStringView ventana) const;
    /// Bytes of a picture's file; empty when there is none.
    QByteArray imagen(const QString& nombre) const { return imagenes_.value(nombre); }
    const QMap<QString, QByteArray>& imagenes() const { return imagenes_; }

    /// The sections that hold a word beginning with each of those looked for, blind to case and accents;
    /// those that say them in the title first, then those that say them most often. Nothing for a text
    /// without letters or digits.
    std::vector<HallazgoManual> Buscar(const QString& buscado) const;

private:
    std::vector<PaginaManual> paginas_;
    QMap<QString, QByteArray> imagenes_;
};

/// Whoever shows the manual.
class VisorAyuda
{
public:
    virtual ~VisorAyuda() = default;
    /// Shows the page of that name, in front of the window in hand. An empty name is the page that is in view
    /// already, the first one when none is.
    virtual void Mostrar(const std::shared_ptr<const Manual>& manual, const QString& pagina) = 0;
};

/// "Valmerix.chm" in the program's folder or, where that has none, among the files of the installation.
QString RutaManual(const Sistema& sistema);
/// Reads the manual's file whole. Throws ErrorManual for one that is missing, damaged or of another make.
std::shared_ptr<const Manual> LeerManual(const QString& ruta);
/// Writes it afresh. Throws ErrorManual.
void EscribirManual(const QString& ruta, const Manual& manual);

} // namespace valmerix

#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace valmerix {

struct LineaImpresa
{
    QString texto; ///< one paragraph; its leading blanks say where it stands
    bool negrita = false;
};

struct FotografiaImpresa
{
    QString ruta; ///< empty: no picture, the caption alone
    QString pie;
};

/// Head of the first page. A missing or damaged logo is no error.
struct MembreteImpreso
{
    QString Logo; ///< path
    QString lblNombreEmpresa;
    QString lblDomicilio;
    QString lblPoblación;
    QString lblCodigoPostal;
    QString lblProvincia;
    QString lblNIF;
};

/// What is printed: the text, and behind it, on pages of their own, the photographs.
struct DocumentoImpreso
{
    QString caption; ///< of the preview window
    int zoom = 100;  ///< percent, when the preview opens
    QString titulo;  ///< of the document, for those who list or archive it
    QString autor;
    std::optional<MembreteImpreso> membrete;
    std::vector<LineaImpresa> lineas;
    std::vector<FotografiaImpresa> fotografias;
};

/// Shows pages before they are printed.
class Impresion
{
public:
    virtual ~Impresion() = default;
    /// Returns once she has closed the preview.
    virtual void Previsualizar(const DocumentoImpreso& documento) = 0;
};

} // namespace valmerix

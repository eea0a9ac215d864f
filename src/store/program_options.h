#pragma once

#include "store/query.h"

#include <QString>

namespace valmerix {

/// The one row of `Opciones`, as the windows and the report use it. Defaults are those of the installation.
struct OpcionesPrograma
{
    int EdadViviendas = 100; ///< years, above 0
    int EdadLocales = 50;
    int EdadNaves = 35;
    QString Trayectoria; ///< path of the word processor
    bool CerrarAlSalir = false;
    QString MonedaSingular = QStringLiteral("euro");
    QString MonedaPlural = QStringLiteral("euros");
    QString MonedaAbreviatura = QStringLiteral("€");
    int MonedaDecimales = 2;
    bool MonedaMasculina = true;
    QString Cabecera =
        QStringLiteral("111111111"); ///< nine digits, one a piece of the presentation paragraph
    bool Membrete = false;
    QString TipoSuperficie = QStringLiteral("Const"); ///< or "Util"
    bool MostrarCabecera = true;
    QString PerfilPiso, PerfilApartamento, PerfilCasa, PerfilNave, PerfilLocal, PerfilTerreno;
    QString Equivalencia = QStringLiteral("831,0964"); ///< square metres to one hanegada

    /// Whether piece i (0 to 8) of the presentation paragraph is on.
    bool encabezamiento(int i) const { return Cabecera.mid(i, 1) == u'1'; }
};

/// Reads "SELECT * FROM Opciones". False, with `opciones` untouched, when the table has no row. A value that
/// is NULL or makes no sense leaves the default. Throws ErrorAlmacen.
bool LeerOpciones(AccesoDatos::clsConsulta& consulta, OpcionesPrograma& opciones);

} // namespace valmerix

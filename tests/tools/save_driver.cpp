// Opens a stored flat in its window and saves it, or changes one field of it by a single statement, so that
// the file syncs of the one can be held against those of the other:
//   save_driver BASE "VALUER" NUMBER save|update

#include "shell/headless_ports.h"
#include "store/case_loading.h"
#include "store/case_saving.h"
#include "store/query.h"
#include "valuation/case_form.h"
#include "valuation/kind_descriptions.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace valmerix {

namespace {

/// Answers yes: the stored case may be overwritten.
class DialogosQueAsienten : public DialogosSinPantalla
{
public:
    using DialogosSinPantalla::DialogosSinPantalla;
    bool Preguntar(const QString&, const QString&, IconoMensaje) override { return true; }
};

bool Guardar(const QString& base, const QString& tasador, qint32 numero, QIODevice& errores)
{
    DialogosQueAsienten dialogos(errores);
    RelojDelSistema reloj;
    SistemaSinPantalla sistema;
    EntornoSinPantalla entorno;
    EstadoCompartido compartido;
    EstadoCalculo calculo;
    FrasesInforme frases;
    OpcionesPrograma opciones;
    compartido.RutaBaseDatos = base;
    compartido.SeparadorFecha = u"/"_s;
    compartido.FormatoMoneda = u"###,###,##0.00"_s;
    Formulario piso(*DescripcionDe(u'P'),
                    {compartido, calculo, frases, opciones, dialogos, reloj, sistema, entorno});
    piso.Load();
    CargaVivienda(piso, compartido, u"P"_s, tasador, numero);
    piso.campo(u"BoxSit").setText(u"C/ Nueva, 1"_s);
    return SalvaVivienda(piso, compartido, dialogos);
}

bool Cambiar(const QString& base, qint32 numero)
{
    AccesoDatos::clsConsulta consulta;
    consulta.AbrirBaseDatosEmpresa(base);
    consulta.EjecutarSentencia(
        u"Empresa"_s,
        u"UPDATE Viviendas SET Situacion = 'C/ Nueva, 1' WHERE NumeroTasacion = %1"_s.arg(numero));
    consulta.Confirmar();
    return true;
}

} // namespace

} // namespace valmerix

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    QFile errores;
    if (argumentos.size() != 5 || !errores.open(stderr, QIODevice::WriteOnly)) {
        return 2;
    }
    const qint32 numero = argumentos[3].toInt();
    const bool hecho = argumentos[4] == u"save"
                           ? valmerix::Guardar(argumentos[1], argumentos[2], numero, errores)
                           : valmerix::Cambiar(argumentos[1], numero);
    return hecho ? 0 : 1;
}

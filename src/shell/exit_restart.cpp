#include "shell/exit_restart.h"

namespace valmerix {

using namespace Qt::StringLiterals;

SALIDA::SALIDA(Sistema& sistema, const Pantalla& pantalla)
    : Ventana(u"SALIDA"_s, u"Fin de Valmerix"_s)
{
    Añadir<Etiqueta>(u"Label1"_s).setCaption(u"¿Desea abandonar Valmerix?"_s);
    Añadir<Etiqueta>(u"Label2"_s)
        .setCaption(u"Pulse SI para dar por terminada esta sesión, pulse NO para cancelar esta orden y "
                    u"continuar la ejecución del programa."_s);
    Añadir<Boton>(u"SSCommand1"_s).setCaption(u"NO"_s);
    Añadir<Boton>(u"SSCommand2"_s).setCaption(u"SI"_s);
    connect(&boton(u"SSCommand1"), &Boton::Click, this, [this] { Cerrar(); });
    connect(&boton(u"SSCommand2"), &Boton::Click, this, [&sistema] { sistema.TerminarProceso(0); });
    Mover(QRect(0, 0, 460, 180));
    Centrar(*this, pantalla);
}

Reinicio::Reinicio(const Pantalla& pantalla)
    : Ventana(u"Reinicio"_s, u"Solicitud de REINICIO"_s)
{
    Añadir<Etiqueta>(u"Label1"_s).setCaption(u"¿Desea volver al menú gráfico inicial?"_s);
    Añadir<Etiqueta>(u"Label2"_s)
        .setCaption(u"Esta orden supone la pérdida de todos los datos que no hayan sido salvados "
                    u"previamente."_s);
    Añadir<Boton>(u"SSCommand1"_s).setCaption(u"SI"_s);
    Añadir<Boton>(u"SSCommand2"_s).setCaption(u"NO"_s);
    connect(&boton(u"SSCommand1"), &Boton::Click, this, &Reinicio::Confirmado);
    connect(&boton(u"SSCommand2"), &Boton::Click, this, [this] { Cerrar(); });
    Mover(QRect(0, 0, 460, 180));
    Centrar(*this, pantalla);
}

} // namespace valmerix

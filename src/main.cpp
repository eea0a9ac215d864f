#include "shell/application.h"
#include "ui/desktop.h"
#include "ui/dialogs.h"
#include "ui/extension_loader.h"
#include "ui/help/help_port.h"
#include "ui/look/application.h"
#include "ui/machine.h"
#include "ui/pictures/capture.h"
#include "ui/printing/printing_port.h"

#include <QString>

int main(int argc, char* argv[])
{
    valmerix::AplicacionQt qt(argc, argv);
    valmerix::DialogosQt dialogos;
    valmerix::RelojQt reloj;
    valmerix::SistemaQt sistema;
    valmerix::CapturaQt captura;
    sistema.setAlTerminar([&captura] { captura.Limpiar(); });
    valmerix::PantallaQt pantalla;
    valmerix::ImpresionQt impresion(dialogos);
    pantalla.RecordarLugares(sistema.carpetaPrograma() + QStringLiteral("/Datos/ventanas.json"));
    valmerix::AyudaQt ayuda;
    valmerix::CargadorQt extension;
    valmerix::Aplicacion valmerix(
        {dialogos, reloj, sistema, pantalla, captura, impresion, &ayuda, &extension});
    qt.setAyuda([&valmerix](const QString& ventana) { valmerix.MostrarAyuda(ventana); });
    qt.setInforme([&valmerix](const std::exception& fallo) { valmerix.InformarFallo(fallo); });
    valmerix.Arrancar();
    return valmerix::AplicacionQt::exec();
}

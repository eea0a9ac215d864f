#include "shell/application.h"
#include "ui/application.h"
#include "ui/desktop.h"

int main(int argc, char* argv[])
{
    valmerix::AplicacionQt qt(argc, argv);
    valmerix::PantallaQt pantalla;
    valmerix::DialogosQt dialogos;
    valmerix::RelojQt reloj;
    valmerix::SistemaQt sistema;
    valmerix::Aplicacion valmerix({dialogos, reloj, sistema, pantalla});
    qt.setInforme([&valmerix](const std::exception& fallo) { valmerix.InformarFallo(fallo); });
    valmerix.Arrancar();
    return valmerix::AplicacionQt::exec();
}

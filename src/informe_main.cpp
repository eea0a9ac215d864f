#include "shell/report_tool.h"

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

int main(int argc, char* argv[])
{
    const QCoreApplication aplicacion(argc, argv);
    QFile salida;
    QFile errores;
    if (!salida.open(stdout, QIODevice::WriteOnly) || !errores.open(stderr, QIODevice::WriteOnly))
        return 4;
    return valmerix::EjecutarInforme(QCoreApplication::arguments().mid(1), salida, errores);
}

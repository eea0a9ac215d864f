#include "ui/look/application.h"
#include "ui/look/theme.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/// A screen of 1280 x 800 points, whatever the scale: the smallest that the windows must fit.
QByteArray DescripcionPantalla()
{
    const double escala = std::max(1.0, qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    return QStringLiteral(R"({"screens":[{"name":"prueba","x":0,"y":0,"width":%1,"height":%2,)"
                          R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":1}]})")
        .arg(qRound(1280 * escala))
        .arg(qRound(800 * escala))
        .toUtf8();
}

} // namespace

int main(int argc, char** argv)
{
    // Tests need no screen, and must not touch hers.
    const QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath(QStringLiteral("pantalla.json"));
    const QByteArray plataforma = qgetenv("QT_QPA_PLATFORM");
    if (plataforma.isEmpty() || plataforma == "offscreen") {
        QFile pantalla(fichero);
        if (pantalla.open(QIODevice::WriteOnly))
            pantalla.write(DescripcionPantalla());
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + fichero.toUtf8());
    }
    valmerix::AplicacionQt aplicacion(argc, argv);
    if (qEnvironmentVariableIsSet("VALMERIX_OSCURO"))
        valmerix::AplicarTema(aplicacion, valmerix::Tema::Oscuro);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}

#include "shell/headless_ports.h"

namespace valmerix {

using namespace Qt::StringLiterals;

void DialogosSinPantalla::Mensaje(const QString& texto, const QString& titulo, IconoMensaje)
{
    errores_.write((titulo + u": "_s + texto + u'\n').toUtf8());
}

bool DialogosSinPantalla::Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono)
{
    Mensaje(texto, titulo, icono);
    return false;
}

bool DialogosSinPantalla::InformarFallo(const QString& texto, const QString& detalle)
{
    Mensaje(detalle.isEmpty() ? texto : texto + u'\n' + detalle, u"Error"_s, IconoMensaje::Critico);
    return false;
}

} // namespace valmerix

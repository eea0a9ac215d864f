#include "controls/date_picker.h"

#include "common/dates.h"

namespace valmerix {

bool ElegirFecha(CampoTexto& campo, Dialogos& dialogos, const Reloj& reloj)
{
    std::optional<QDate> fecha = LeerFecha(campo.Text());
    if (!fecha) {
        fecha = reloj.hoy();
        campo.setText(FechaVisible(*fecha));
    }
    const std::optional<QDate> elegida = dialogos.MostrarCalendario(*fecha);
    if (!elegida)
        return false;
    campo.setText(FechaVisible(*elegida));
    return true;
}

} // namespace valmerix

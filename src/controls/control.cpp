#include "controls/control.h"

namespace valmerix {

Control::Control(const QString& nombre)
    : nombre_(nombre)
{
    setObjectName(nombre);
}

void Control::setCaption(const QString& texto)
{
    if (caption_ == texto)
        return;
    caption_ = texto;
    Q_EMIT PresentacionCambiada();
}

void Control::setEnabled(bool valor)
{
    if (enabled_ == valor)
        return;
    enabled_ = valor;
    Q_EMIT PresentacionCambiada();
}

void Control::setVisible(bool valor)
{
    if (visible_ == valor)
        return;
    visible_ = valor;
    Q_EMIT PresentacionCambiada();
}

void Control::setToolTip(const QString& texto)
{
    if (ayuda_ == texto)
        return;
    ayuda_ = texto;
    Q_EMIT PresentacionCambiada();
}

void Control::setAspecto(Aspecto valor)
{
    if (aspecto_ == valor)
        return;
    aspecto_ = valor;
    Q_EMIT PresentacionCambiada();
}

void Boton::Pulsar()
{
    if (Enabled())
        Q_EMIT Click();
}

bool Casilla::Poner(int valor)
{
    const int nuevo = valor != 0 ? 1 : 0;
    if (nuevo == valor_)
        return false;
    valor_ = nuevo;
    Q_EMIT PresentacionCambiada();
    return true;
}

void Casilla::setValue(int valor)
{
    if (Poner(valor))
        Q_EMIT Click();
}

void Casilla::Pulsar()
{
    if (Enabled())
        setValue(1 - valor_);
}

void OpcionSuelta::Agrupar(const std::vector<OpcionSuelta*>& opciones)
{
    for (const OpcionSuelta* una : opciones) {
        connect(una, &Casilla::Click, una, [una, opciones] {
            for (OpcionSuelta* otra : opciones) {
                if (una->Value() == 1 && otra != una)
                    otra->Poner(0);
            }
        });
    }
}

void OpcionSuelta::Pulsar()
{
    if (Enabled())
        setValue(1);
}

void Temporizador::Tic()
{
    if (Enabled())
        Q_EMIT Timer();
}

void Imagen::setPicture(const QString& ruta)
{
    if (ruta_ == ruta)
        return;
    ruta_ = ruta;
    Q_EMIT PresentacionCambiada();
}

bool Imagen::CopiarLoMostrado()
{
    bool copiada = false;
    Q_EMIT CopiaPedida(copiada);
    return copiada;
}

void BarraProgreso::setValue(double porcentaje)
{
    if (valor_ == porcentaje)
        return;
    valor_ = porcentaje;
    Q_EMIT PresentacionCambiada();
}

void Solapas::setTab(int pagina)
{
    if (pagina == tab_ || pagina < 0 || pagina >= paginas_)
        return;
    tab_ = pagina;
    Q_EMIT PresentacionCambiada();
    Q_EMIT Click();
}

} // namespace valmerix

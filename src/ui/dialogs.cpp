#include "ui/dialogs.h"

#include "ui/look/application.h"
#include "ui/widgets/calendar_dialog.h"

#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>

namespace valmerix {

using namespace Qt::StringLiterals;

namespace {

QMessageBox::Icon IconoDeQt(IconoMensaje icono)
{
    switch (icono) {
    case IconoMensaje::Informacion:
        return QMessageBox::Information;
    case IconoMensaje::Pregunta:
        return QMessageBox::Question;
    case IconoMensaje::Aviso:
        return QMessageBox::Warning;
    case IconoMensaje::Critico:
        return QMessageBox::Critical;
    case IconoMensaje::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

/// A box with our texts; the text is shown as it stands, whatever characters it has.
class Caja : public QMessageBox
{
public:
    Caja(const QString& texto, const QString& titulo, IconoMensaje icono)
        : QMessageBox(IconoDeQt(icono), titulo, texto, QMessageBox::NoButton, VentanaDelante())
    {
        setTextFormat(Qt::PlainText);
        setWindowModality(Qt::ApplicationModal);
    }

    QPushButton* Poner(const QString& titulo, ButtonRole papel)
    {
        auto* boton = new QPushButton(titulo, this);
        addButton(boton, papel);
        return boton;
    }
};

} // namespace

void DialogosQt::Mensaje(const QString& texto, const QString& titulo, IconoMensaje icono)
{
    Caja caja(texto, titulo, icono);
    caja.Poner(u"&Aceptar"_s, QMessageBox::AcceptRole)->setDefault(true);
    caja.exec();
}

bool DialogosQt::Preguntar(const QString& texto, const QString& titulo, IconoMensaje icono)
{
    Caja caja(texto, titulo, icono);
    QPushButton* si = caja.Poner(u"&Sí"_s, QMessageBox::YesRole);
    QPushButton* no = caja.Poner(u"&No"_s, QMessageBox::NoRole);
    caja.setDefaultButton(si);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

bool DialogosQt::InformarFallo(const QString& texto, const QString& detalle)
{
    Caja caja(texto, u"Valmerix"_s, IconoMensaje::Critico);
    caja.setInformativeText(detalle);
    QPushButton* seguir = caja.Poner(u"&Continuar"_s, QMessageBox::AcceptRole);
    QPushButton* cerrar = caja.Poner(u"C&errar Valmerix"_s, QMessageBox::DestructiveRole);
    caja.setDefaultButton(seguir);
    caja.setEscapeButton(seguir);
    caja.exec();
    return caja.clickedButton() != cerrar;
}

std::optional<QString> DialogosQt::ElegirFichero(const QString& filtro)
{
    QFileDialog dialogo(VentanaDelante(), u"Abrir"_s);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    // The descriptions name their patterns themselves.
    dialogo.setOption(QFileDialog::HideNameFilterDetails);
    dialogo.setNameFilters(FiltrosDeFichero(filtro));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty())
        return std::nullopt;
    return dialogo.selectedFiles().constFirst();
}

QStringList FiltrosDeFichero(const QString& filtro)
{
    const QStringList piezas = filtro.split(u'|');
    QStringList filtros;
    for (qsizetype i = 0; i + 1 < piezas.size(); i += 2) {
        QString patrones = piezas[i + 1];
        filtros << piezas[i] + u" ("_s + patrones.replace(u';', u' ') + u')';
    }
    return filtros << u"Todos los ficheros (*)"_s;
}

std::optional<QDate> DialogosQt::MostrarCalendario(QDate fecha)
{
    DialogoCalendario dialogo(fecha, VentanaDelante());
    if (dialogo.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialogo.fecha();
}

} // namespace valmerix
